// The lines with lists and the tables of the column grid.

#include "zelQtColumnLayout.h"

#include "zelQtConversions.h"
#include "zelQtLayoutLine.h"
#include "zelQtModelParts_p.h"
#include "zelQtSpacerItems.h"
#include "zelUIComboBox.h"
#include "zelUIFlag.h"
#include "zelUILSElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUIPushButton.h"
#include "zelUISpinBox.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextLabel.h"

namespace {

void keepNaturalWidth(QWidget *label)
{
    if (label)
        label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
}

template <class Part> QVBoxLayout *pairBelowEachOther(Part *upper, Part *lower)
{
    auto *pair = new QVBoxLayout;
    appendPart(pair, upper);
    appendPart(pair, lower);
    return pair;
}

} // namespace

void ZelQtColumnLayout::addMatElement(ZelUIMatElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addMatElement(element);
    if (!element)
        return;
    if (element->mLabel2 && element->mCombo1 && element->mButton1)
        addTwoLineMaterial(row, element);
    else
        addOneLineMaterial(row, element);
}

// Both lines share one row of the grid.
void ZelQtColumnLayout::addTwoLineMaterial(int row, ZelUIMatElement *element)
{
    addLayout(pairBelowEachOther(element->mLabel1, element->mLabel2), row, 0);
    addLayout(pairBelowEachOther(element->mCombo1, element->mCombo2), row, mInputCol);
    addLayout(pairBelowEachOther(element->mButton1, element->mButton2), row, mIconCol);
}

void ZelQtColumnLayout::addOneLineMaterial(int row, ZelUIMatElement *element)
{
    keepNaturalWidth(placePart(this, element->mLabel1, row, 0));
    const bool withType = element->mCombo1 && element->mButton1;
    if (withType) {
        placePart(this, element->mCombo1, row, mInputCol);
        placePart(this, element->mButton1, row, mInputCol + 1);
    }
    placePart(this, element->mCombo2, row, withType ? mInputCol + 2 : mInputCol);
    placePart(this, element->mButton2, row, mIconCol);
}

void ZelQtColumnLayout::addLubElement(ZelUILubElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addLubElement(element);
    if (!element)
        return;
    keepNaturalWidth(placePart(this, element->mLabel, row, 0));
    if (element->mCombo1) {
        placePart(this, element->mCombo1, row, mInputCol);
        placePart(this, element->mButton1, row, mInputCol + 1);
    }
    placePart(this, element->mCombo2, row, element->mCombo1 ? mInputCol + 2 : mInputCol);
    addLayout(rowOfParts<ZelUIPushButton>({element->mButton2, element->mButton3}), row, mIconCol);
}

void ZelQtColumnLayout::addLSElement(ZelUILSElement *element)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addLSElement(element);
    if (!element)
        return;
    placePart(this, element->mLabel1, row, 0);
    auto *combo = dynamic_cast<QWidget *>(element->mCombo);
    auto *label = dynamic_cast<QWidget *>(element->mLabel2);
    auto *spinBox = dynamic_cast<QWidget *>(element->mSpinBox);
    if (!combo || !label || !spinBox)
        return;

    keepNaturalWidth(label);
    // The height of the hint, not its width: that is meant, the field holds few digits.
    spinBox->setFixedWidth(spinBox->sizeHint().height()
                           + 6 * spinBox->fontMetrics().averageCharWidth());
    auto *line = new QHBoxLayout;
    if (element->hasAdvancedLayout())
        addWidget(combo, row, mInputCol);
    else
        line->addWidget(combo);
    line->addWidget(label);
    line->addWidget(spinBox);
    if (element->hasAdvancedLayout())
        addLayout(line, row, mIconCol);
    else if (element->mLabel1)
        addLayout(line, row, mInputCol);
    else
        addLayout(line, row, 0, 1, mInputCol + 1);
}

void ZelQtColumnLayout::addTableElement(ZelUITableElement *element, bool expanding, int span)
{
    const int row = rowOfNewElement();
    ZelUIColumn::addTableElement(element, expanding, span);
    if (!element)
        return;
    reserveStretch(expanding);
    placePart(this, element->mTable, row, 0, span);
    QHBoxLayout *line = tableButtons(element);
    if (line->count() == 0) // isEmpty() is true for buttons that have no parent yet
        delete line;
    else
        addLayout(line, row + 1, 0, 1, span, Qt::AlignRight);
}

// The leading flag needs the leading button: without that it is left out, and that is meant.
QHBoxLayout *ZelQtColumnLayout::tableButtons(ZelUITableElement *element) const
{
    auto *line = new QHBoxLayout;
    const QString name = toQString(element->getName());
    if (element->mLeadingButton) {
        appendPart(line, element->mLeadingButton, 1);
        appendPart(line, element->mLeadingFlag, 1);
        line->addItem(hRightSpacerItem());
    }
    for (size_t i = 0; i < element->mButtonLists.size(); ++i) {
        const auto &buttons = element->mButtonLists[i];
        if (i > 0 && !buttons.empty() && endsWithButton(line)) {
            auto *separator = new ZelQtLayoutLine;
            separator->setObjectName(name);
            line->addWidget(separator);
        }
        for (ZelUIPushButton *button : buttons)
            appendPart(line, button);
    }
    return line;
}

bool ZelQtColumnLayout::endsWithButton(QHBoxLayout *line)
{
    if (!line || line->count() == 0)
        return false;
    return dynamic_cast<ZelUIPushButton *>(line->itemAt(line->count() - 1)->widget());
}
