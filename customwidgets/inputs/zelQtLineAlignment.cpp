#include "zelQtLineAlignment_p.h"

#include "zelDimensions.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCalcVarInput.h"
#include "zelQtConversions.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtTextHelpers.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>

namespace {

constexpr int widthOfMissingInputs = 100;

int textWidth(const ZelQtLabel *label)
{
    // The free function, with its reserve, and not the member of the same name.
    return ::plainTextWidth(label->text(), label->fontMetrics());
}

void relayoutParent(QWidget *parent)
{
    if (QLayout *layout = parent->layout()) {
        layout->invalidate();
        parent->updateGeometry();
    }
}

} // namespace

void ZelQtLineAlignment::add(const ZelQtCalcVarInput *line, bool withPrompt)
{
    if (withPrompt)
        mPrompt = qMax(mPrompt, textWidth(line->mPrompt));
    mFormula = qMax(mFormula, textWidth(line->mFormula));
    mInput = qMax(mInput, line->inputWidth());
    mUnit = qMax(mUnit, line->mUnit->absUnitWidth());
    mButtons = qMax(mButtons, line->buttonAreaWidth());
}

void ZelQtLineAlignment::finish()
{
    if (mInput == 0)
        mInput = widthOfMissingInputs;
}

void ZelQtLineAlignment::apply(ZelQtCalcVarInput *line, bool withPrompt) const
{
    if (withPrompt)
        line->adjustPromptWidth(mPrompt);
    line->adjustFormulaWidth(mFormula);
    line->adjustInputWidth(mInput);
    line->adjustUnitWidth(mUnit);
    line->adjustButtonAreaWidth(mButtons);
    relayout(line);
}

void ZelQtLineAlignment::applyToHeader(ZelQtCalcVarInput *line, bool withPrompt) const
{
    if (withPrompt)
        line->adjustPromptWidth(mPrompt);
    line->adjustFormulaWidth(mFormula);
    line->adjustInputWidth(mInput);
    line->mUnit->hide();
    line->mLayout->invalidate();
}

void ZelQtLineAlignment::relayout(ZelQtCalcVarInput *line)
{
    line->mLayout->invalidate();
    line->updateGeometry();
}

int ZelQtCalcVarInput::buttonAreaWidth() const
{
    const int spacing = mLayout->spacing();
    int width = 0;
    if (mEditButton->isVisibleTo(this))
        width += mEditButton->sizeHint().width() + spacing;
    const QList<QWidget *> buttons = smallButtons();
    for (const QWidget *button : buttons) {
        if (!button->isHidden())
            width += button->sizeHint().width() + spacing;
    }
    if (mExternal)
        width += mExternal->sizeHint().width() + spacing;
    return width > 0 ? width - spacing : width;
}

int ZelQtCalcVarInput::inputWidth() const
{
    return 0;
}

void ZelQtCalcVarInput::adjustPromptWidth(int width)
{
    mPrompt->setVisible(width != 0);
    if (width != 0)
        mPrompt->setPreferedWidth(width);
}

void ZelQtCalcVarInput::adjustFormulaWidth(int width)
{
    mFormula->setVisible(width != 0);
    if (width != 0)
        mFormula->setFixedWidth(width);
}

void ZelQtCalcVarInput::adjustInputWidth(int)
{
}

void ZelQtCalcVarInput::adjustUnitWidth(int width)
{
    mUnit->setVisible(width != 0);
    if (width != 0)
        mUnit->setFixedWidth(width);
}

void ZelQtCalcVarInput::adjustButtonAreaWidth(int width)
{
    if (width == 0) {
        // Out for good: later widths only change the size of the spacer.
        mLayout->removeItem(mSpacer);
        return;
    }
    const int taken = buttonAreaWidth();
    const int gap = taken == 0 ? width + mLayout->spacing() : qMax(0, width - taken);
    mSpacer->changeSize(gap, 10, QSizePolicy::Fixed, QSizePolicy::Minimum);
}

void ZelQtCalcVarInput::checkSize(QWidget *parent)
{
    QList<ZelQtCalcVarInput *> lines;
    ZelQtLineAlignment alignment;
    const QObjectList children = parent->children();
    for (QObject *child : children) {
        if (auto *line = qobject_cast<ZelQtCalcVarInput *>(child)) {
            alignment.add(line, false);
            lines.append(line);
        } else if (child->isWidgetType()) {
            checkSize(static_cast<QWidget *>(child));
        }
    }
    // Invalidating layouts without lines as well would triple the cost of a resize of large masks.
    if (lines.isEmpty())
        return;
    alignment.finish();
    for (ZelQtCalcVarInput *line : qAsConst(lines))
        alignment.apply(line, false);
    relayoutParent(parent);
}

void ZelQtCalcVarInput::checkSizeGlobally(QWidget *parent)
{
    const auto lines = parent->findChildren<ZelQtCalcVarInput *>();
    if (lines.isEmpty())
        return;
    ZelQtLineAlignment alignment;
    for (const ZelQtCalcVarInput *line : lines)
        alignment.add(line, false);
    alignment.finish();
    for (ZelQtCalcVarInput *line : lines)
        alignment.apply(line, false);
    relayoutParent(parent);
}

void ZelQtCalcVarInput::checkVBoxSize(const QList<ZelQtCalcVarInput *> &inputs, bool adjustPrompt)
{
    ZelQtLineAlignment alignment;
    for (const ZelQtCalcVarInput *line : inputs)
        alignment.add(line, true);
    alignment.finish();
    for (ZelQtCalcVarInput *line : inputs)
        alignment.apply(line, adjustPrompt);
}

void ZelQtCalcVarInput::checkVBoxSize(ZelQtCalcVarInput *header, QWidget *widget,
                                      const QList<ZelQtCalcVarInput *> &inputs, bool adjustPrompt)
{
    ZelQtLineAlignment alignment;
    for (const ZelQtCalcVarInput *line : inputs)
        alignment.add(line, true);
    alignment.finish();
    const QWidget *box = widget->parentWidget();
    const int spacing = box && box->layout() ? box->layout()->spacing() : 0;
    alignment.mButtons =
        qMax(alignment.mButtons, widget->sizeHint().width() - alignment.mUnit - spacing);
    for (ZelQtCalcVarInput *line : inputs)
        alignment.apply(line, adjustPrompt);
    alignment.applyToHeader(header, adjustPrompt);
}

void ZelQtCalcVarInput::checkUnits(QWidget *parent, bool keepDefault)
{
    const QObjectList children = parent->children();
    if (children.isEmpty())
        return;
    for (QObject *child : children) {
        if (auto *line = qobject_cast<ZelQtCalcVarInput *>(child)) {
            QString unit = line->defaultUnit();
            if (!unit.isEmpty() && !keepDefault)
                unit = unitToString(ZelDimensions::defaultUnit(stringToUnit(unit), true));
            line->changeInputUnit(unit);
            line->mUnit->setCurrentUnit(unit, false);
        } else if (child->isWidgetType()) {
            checkUnits(static_cast<QWidget *>(child), keepDefault);
        }
    }
    relayoutParent(parent);
}
