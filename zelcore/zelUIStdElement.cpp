#include "zelUIStdElement.h"

#include "meta.h"
#include "zelUIEditButton.h"
#include "zelUIFormulaLabel.h"
#include "zelUISpacer.h"
#include "zelUIStdButtonBox.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"
#include "zelUiParts_p.h"

#include <algorithm>

void ZelUIStdElement::modelAdoptParts()
{
    modelAddItem(mLabel);
    modelAddItem(mFormulaLabel);
    mNumbers.clear();
    for (ZelUIInput *input : mInputs) {
        modelAddItem(input);
        if (auto *number = dynamic_cast<ZelUIValueEdit *>(input))
            mNumbers.push_back(number);
    }
    for (ZelUIEditButton *button : mEditButtons)
        modelAddItem(button);
    modelAddItem(mUnitLabel);
    if (mSpacer)
        mSpacer->setModelParent(this);
    if (mIconBox)
        mIconBox->setModelParent(this);
}

void ZelUIStdElement::modelForget(ZelUIObject *child)
{
    zelForget(mLabel, child);
    zelForget(mFormulaLabel, child);
    zelForget(mInputs, child);
    zelForget(mNumbers, child);
    zelForget(mEditButtons, child);
    zelForget(mSpacer, child);
    zelForget(mUnitLabel, child);
    zelForget(mIconBox, child);
    ZelUIElement::modelForget(child);
}

bool ZelUIStdElement::showsAnInput(const Meta &meta, int64_t id) const
{
    return std::any_of(mInputs.begin(), mInputs.end(), [&](const ZelUIInput *input) {
        return input->modelConditionsShow(meta, id);
    });
}

// A line of several variables has no condition of theirs: it goes with the last of them.
void ZelUIStdElement::updateState(Meta *meta, int64_t id)
{
    if (meta && mHidesWithInputs)
        modelHide(!showsAnInput(*meta, id));
    ZelUIElement::updateState(meta, id);
    if (mSpacer)
        mSpacer->updateState(state());
    if (mIconBox)
        mIconBox->updateState(mVisible);
}

void ZelUIStdElement::setData(Meta *meta, int64_t id)
{
    if (meta) {
        mMeta = meta;
        mId = id;
        syncUnit(*meta, id);
    }
    ZelUIElement::setData(meta, id);
}

// The widget of the unit label takes its text from setUnit alone. Numbers whose unit was changed in
// another line follow the first one: the line shows one unit.
void ZelUIStdElement::syncUnit(const Meta &meta, int64_t id)
{
    const ZelUIVar *variable = nullptr;
    if (mUnitLabel && !mNumbers.empty())
        variable = mNumbers.front()->modelVariable();
    if (!variable || mUnitLabel->mDefaultUnit == ZelDimensions::DynamicUnit)
        return;
    const ZelDimensions::Unit unit = meta.currentUnit(*variable, id);
    const auto differs = [&](const ZelUIValueEdit *number) {
        const ZelUIVar *own = number->modelVariable();
        return number->mCurrentUnit != unit || (own && meta.currentUnit(*own, id) != unit);
    };
    if (mUnitLabel->mCurrentUnit != unit || std::any_of(mNumbers.begin(), mNumbers.end(), differs))
        mUnitLabel->setUnit(unit, false);
}

void ZelUIStdElement::modelSetUnit(ZelDimensions::Unit unit)
{
    for (ZelUIValueEdit *number : mNumbers) {
        number->setCurrentUnit(unit);
        // The validator of a field keeps limits in the unit it was made for.
        if (number->mHasBottom && number->mHasTop)
            number->setRange(number->mBottom, number->mTop, false);
        else if (number->mHasBottom)
            number->setBottom(number->mBottom);
        else if (number->mHasTop)
            number->setTop(number->mTop);
        const ZelUIVar *variable = number->modelVariable();
        if (mMeta && variable && mMeta->currentUnit(*variable, mId) != unit)
            mMeta->setCurrentUnit(*variable, mId, unit);
    }
}

void ZelUIStdElement::updateUnitSystem(bool keepDefault)
{
    ZelDimensions::Unit defaultUnit = ZelDimensions::NoUnit;
    if (mUnitLabel)
        defaultUnit = mUnitLabel->mDefaultUnit;
    else if (!mNumbers.empty())
        defaultUnit = mNumbers.front()->mDefaultUnit;
    if (ZelDimensions::getType(defaultUnit) == ZelDimensions::NoType)
        return;
    // What the user chose is forgotten, so that the line goes on following the unit system.
    if (mMeta && !keepDefault) {
        for (const ZelUIValueEdit *number : mNumbers) {
            if (number->modelVariable())
                mMeta->setCurrentUnit(*number->modelVariable(), mId, ZelDimensions::NoUnit);
        }
    }
    const ZelDimensions::Unit unit =
        keepDefault ? defaultUnit : ZelDimensions::defaultUnit(defaultUnit, true);
    if (mUnitLabel)
        mUnitLabel->setUnit(unit, false);
    else
        modelSetUnit(unit);
}

void ZelUIStdElement::resetUnits(bool keepDefault)
{
    updateUnitSystem(keepDefault);
}
