#include "zelQtColumnLayout.h"

#include "zelQtAlignment_p.h"
#include "zelQtModelParts_p.h"
#include "zelUIButtonBox.h"
#include "zelUIEditButton.h"
#include "zelUIFileElement.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUIFormulaLabel.h"
#include "zelUIInput.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIPushButton.h"
#include "zelUISpacer.h"
#include "zelUIStdButtonBox.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIViewElement.h"

#include <QGraphicsView>

namespace {

// Flags and right-aligned texts leave the column of the icon buttons free.
constexpr int spanBeforeIcons = 5;

template <class Test> bool anyGraphicsView(const QLayout *layout, Test test)
{
    for (int i = 0; i < layout->count(); ++i) {
        auto *view = qobject_cast<QGraphicsView *>(layout->itemAt(i)->widget());
        if (view && test(view))
            return true;
    }
    return false;
}

} // namespace

ZelQtColumnLayout::ZelQtColumnLayout(QWidget *parent)
    : QGridLayout(parent)
{
}

ZelQtColumnLayout::~ZelQtColumnLayout() = default;

// An empty grid answers 1 to rowCount(), hence the test. To be asked before the model takes the
// element.
int ZelQtColumnLayout::rowOfNewElement() const
{
    return elemCount() == 0 ? 0 : rowCount();
}

// The column behind the grid takes the stretch, so that the span of a view can reach into it.
void ZelQtColumnLayout::reserveStretch(bool expanding)
{
    if (expanding)
        setColumnStretch(mColSpan, 10);
}

// A line without a prompt starts at the left edge.
void ZelQtColumnLayout::addSingleInput(int row, ZelUIInput *input, bool hasPrompt)
{
    if (hasPrompt)
        placePart(this, input, row, mInputCol);
    else
        placePart(this, input, row, 0, mInputCol + 1);
}

void ZelQtColumnLayout::addStdElement(ZelUIStdElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addStdElement(element);
    if (!element)
        return;
    placePart(this, element->mLabel, row, 0);
    placePart(this, element->mFormulaLabel, row, mFormulaCol);

    const bool single = element->mInputs.size() == 1;
    const bool pairs = !single && element->mEditButtons.size() > 1;
    if (single) {
        addSingleInput(row, element->mInputs.front(), element->mLabel || element->mFormulaLabel);
    } else if (pairs) {
        auto *line = new QHBoxLayout;
        for (size_t i = 0; i < element->mInputs.size(); ++i) {
            appendPart(line, element->mInputs[i]);
            appendPart(line, partAt(element->mEditButtons, i));
        }
        addLayout(line, row, mInputCol);
    } else {
        addLayout(rowOfParts(element->mInputs), row, mInputCol);
    }

    // Pairs carry their edit buttons themselves: the edit column stays empty, without spacer too.
    if (element->mEditButtons.size() == 1)
        placePart(this, element->mEditButtons.front(), row, mEditCol);
    else if (!pairs)
        placePart(this, element->mSpacer, row, mEditCol);
    placePart(this, element->mUnitLabel, row, mUnitCol);
    addIconButtons(row, 0, element->mIconBox);
}

// Formula label, unit label and spacer of a file line have no place in it.
void ZelQtColumnLayout::addFileElement(ZelUIFileElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addFileElement(element);
    if (!element)
        return;
    placePart(this, element->mLabel, row, 0);

    const bool single = element->mInputs.size() == 1;
    if (single) {
        // The single file button stands nowhere, and that is meant.
        addSingleInput(row, element->mInputs.front(), element->mLabel || element->mFormulaLabel);
    } else {
        auto *line = new QHBoxLayout;
        const bool withEditButtons = element->mEditButtons.size() > 1;
        for (size_t i = 0; i < element->mInputs.size(); ++i) {
            appendPart(line, element->mInputs[i]);
            appendPart(line, partAt(element->mFileButtons, i));
            if (withEditButtons)
                appendPart(line, partAt(element->mEditButtons, i));
        }
        addLayout(line, row, mInputCol);
    }
    if (element->mEditButtons.size() == 1)
        placePart(this, element->mEditButtons.front(), row, mEditCol);
    addIconButtons(row, 0, element->mIconBox);
}

void ZelQtColumnLayout::addTextElement(ZelUITextElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addTextElement(element);
    if (!element)
        return;
    if (const ZelUITextLabel *label = element->mLabel) {
        if (label->getAlignment() == ZelUIAlignment::Right)
            placePart(this, element->mLabel, row, 0, spanBeforeIcons);
        else
            placePart(this, element->mLabel, row, 0, mColSpan, qtAlignment(label->getAlignment()));
    }
    if (element->mValueLabels.size() == 1)
        placePart(this, element->mValueLabels.front(), row, mInputCol);
    else if (!element->mValueLabels.empty())
        addLayout(rowOfParts(element->mValueLabels), row, mInputCol);
}

void ZelQtColumnLayout::addFlagElement(ZelUIFlagElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addFlagElement(element);
    if (!element)
        return;
    placePart(this, element->mFlag, row, 0, spanBeforeIcons);
    addIconButtons(row, 0, element->mIconBox);
}

void ZelQtColumnLayout::addViewElement(ZelUIViewElement *element, bool expanding, int span)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addViewElement(element, expanding, span);
    if (!element)
        return;
    reserveStretch(expanding);
    placePart(this, element, row, 0, span);
}

void ZelQtColumnLayout::addNotepadElement(ZelUINotepadElement *element, bool expanding, int span)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addNotepadElement(element, expanding, span);
    if (!element)
        return;
    reserveStretch(expanding);
    placePart(this, element->mNotepad, row, 0, span);
}

// Unlike all other elements a button alone always takes rowCount(): as the first one of a column it
// stands in row 1. That is meant.
void ZelQtColumnLayout::addButtonElement(ZelUIButtonBox *element)
{
    ZelUIColumn::addButtonElement(element);
    if (!element)
        return;
    placePart(this, element->getSingleButton(), rowCount(), 0, mColSpan,
              qtAlignment(element->getAlignment()));
}

void ZelQtColumnLayout::addIconButtons(int row, int columnOffset, ZelUIStdButtonBox *box)
{
    auto *widget = dynamic_cast<QWidget *>(box);
    if (!widget)
        return;
    if (!box->empty()) {
        auto *line = new QHBoxLayout;
        line->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        line->setContentsMargins(0, 0, 0, 0);
        line->setSpacing(1);
        for (int i = 0; i < box->count(); ++i)
            appendPart(line, box->getPushButton(i));
        widget->setLayout(line);
    }
    addWidget(widget, row, mIconCol + columnOffset); // an empty box keeps its column too
}

void ZelQtColumnLayout::finishLayout()
{
    ZelUIColumn::finishLayout();
    mBottomSpacer = new QSpacerItem(20, 0, QSizePolicy::Minimum, QSizePolicy::Expanding);
    addItem(mBottomSpacer, rowCount(), 0, 1, 1);
}

void ZelQtColumnLayout::setData(Meta *meta, int64_t id)
{
    ZelUIContainer::setData(meta, id); // past the column's own, which the walk does not need
    if (!mBottomSpacer)
        return;
    const QSizePolicy::Policy former = mBottomSpacer->sizePolicy().verticalPolicy();
    const QSizePolicy::Policy policy =
        containsViews(true) ? QSizePolicy::Fixed : QSizePolicy::Expanding;
    mBottomSpacer->changeSize(20, 0, QSizePolicy::Minimum, policy);
    if (policy != former) // setData runs at every refresh, a new layout is dear
        invalidate();
}

// Every item that comes or goes invalidates the layout, but for takeAt().
void ZelQtColumnLayout::invalidate()
{
    mCountedItems = -1;
    QGridLayout::invalidate();
}

bool ZelQtColumnLayout::holdsGraphicsView() const
{
    if (mCountedItems != count()) {
        mCountedItems = count();
        mHoldsGraphicsView = anyGraphicsView(this, [](const QGraphicsView *) { return true; });
    }
    return mHoldsGraphicsView;
}

bool ZelQtColumnLayout::containsViews(bool visibleOnly) const
{
    return ZelUIColumn::containsViews(visibleOnly) || holdsGraphicsView();
}

bool ZelQtColumnLayout::containsExpandingViews(bool visibleOnly) const
{
    return ZelUIColumn::containsExpandingViews(visibleOnly) || holdsGraphicsView();
}

bool ZelQtColumnLayout::isContentVisible()
{
    const QWidget *parent = parentWidget();
    return ZelUIColumn::isContentVisible()
        || anyGraphicsView(
               this, [parent](const QGraphicsView *view) { return view->isVisibleTo(parent); });
}
