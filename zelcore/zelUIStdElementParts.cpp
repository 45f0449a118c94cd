#include "meta.h"
#include "zelDomNode.h"
#include "zelUIEditButton.h"
#include "zelUIFormulaLabel.h"
#include "zelUIMultiVar.h"
#include "zelUISpacer.h"
#include "zelUIStdButtonBox.h"
#include "zelUIStdElement.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParts_p.h"

#include <algorithm>

// The half of the element that makes its parts during a build.

/// A variable of the line, with the attributes of its node. The node is null for one that was given
/// by setup().
struct ZelUIStdElement::Entry
{
    ZelUIVar *mVariable = nullptr;
    AttrMap mAttributes;
    const ZelDomNode *mNode = nullptr;
    std::vector<ZelUIInput *> mInputs;
};

struct ZelUIStdElement::Announced
{
    std::vector<Entry> mEntries;
    const ZelDomNode *mLine = nullptr;
};

static bool fitsInLine(ZelUiBuild &build, const ZelUIMultiVar &number, const ZelUIMultiVar &first,
                       const ZelDomNode &node)
{
    if (ZelDimensions::getType(number.mDefaultUnit) == ZelDimensions::getType(first.mDefaultUnit))
        return true;
    build.fault(ZelFaultCode::UnlikeUnits, node.attributeValuePlace(L"name"),
                "\"" + number.name().toUtf8() + "\" has another dimension than \""
                    + first.name().toUtf8() + "\" in the same line",
                "quantities of one dimension, since a line has one unit");
    return false;
}

ZelUIStdElement::ZelUIStdElement() = default;
ZelUIStdElement::~ZelUIStdElement() = default;

void ZelUIStdElement::announce(ZelUIVar *variable, const AttrMap &attributes,
                               const ZelDomNode *node)
{
    if (!mAnnounced)
        mAnnounced = std::make_unique<Announced>();
    mAnnounced->mEntries.push_back({variable, attributes, node, {}});
}

void ZelUIStdElement::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIElement::setup(variable, attributes);
    if (variable)
        announce(variable, attributes, nullptr);
}

void ZelUIStdElement::modelSetupLine(const ZelDomNode *line)
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !line)
        return;
    modelSetNode(line);
    mAnnounced = std::make_unique<Announced>();
    mAnnounced->mLine = line;
    const ZelUIMultiVar *first = nullptr;
    for (const ZelDomNode *node = line->firstChild(L"var"); node;
         node = node->nextSibling(L"var")) {
        ZelUIVar *variable = build->variableOf(*node);
        if (!variable) {
            mAnnounced.reset();
            return;
        }
        const auto *number = dynamic_cast<const ZelUIMultiVar *>(variable);
        if (number && !first)
            first = number;
        if (!number || fitsInLine(*build, *number, *first, *node))
            announce(variable, node->attributes(), node);
    }
}

void ZelUIStdElement::modelMakeParts()
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (build && mAnnounced) {
        const std::unique_ptr<Announced> announced = std::move(mAnnounced);
        if (makeInputs(*build, *announced)) {
            makeLabels(*build, *announced);
            makeEditButtons(*build, *announced);
            makeUnitLabel(*build, *announced);
            makeIconBox(*build, *announced);
            mHidesWithInputs = announced->mLine != nullptr;
        }
    }
    modelAdoptParts();
}

bool ZelUIStdElement::makeInputs(ZelUiBuild &build, Announced &announced)
{
    for (Entry &entry : announced.mEntries) {
        const auto *number = dynamic_cast<const ZelUIMultiVar *>(entry.mVariable);
        const int count = number ? number->componentCount() : 1;
        for (int component = 0; component < count; ++component) {
            ZelUIInput *input = zelMakeInput(build, entry.mVariable, entry.mAttributes, component);
            if (!input) {
                mInputs.clear();
                return false;
            }
            if (component == 0)
                input->modelSetupNode(entry.mNode);
            else
                input->modelShareConditions(*entry.mInputs.front());
            entry.mInputs.push_back(input);
            mInputs.push_back(input);
        }
    }
    return !mInputs.empty();
}

void ZelUIStdElement::makeLabels(ZelUiBuild &build, const Announced &announced)
{
    const Entry &first = announced.mEntries.front();
    if (announced.mLine)
        mLabel = zelMakePrompt(build, nullptr, announced.mLine->attributes(), announced.mLine);
    else
        mLabel = zelMakePrompt(build, first.mVariable, first.mAttributes, modelNode());

    std::wstring formula;
    for (const Entry &entry : announced.mEntries) {
        const std::wstring symbol = entry.mVariable->mFormula;
        if (!symbol.empty())
            formula += (formula.empty() ? L"" : L", ") + symbol;
    }
    mFormulaLabel = formula.empty() ? nullptr : build.factory().makeFormulaLabel();
    if (!mFormulaLabel)
        return;
    // Set before set-up, so that a widget finds it, and afterwards, since set-up takes that of its
    // variable alone.
    AttrMap attributes = first.mAttributes;
    mFormulaLabel->setModelFormula(formula);
    if (auto *number = dynamic_cast<ZelUIMultiVar *>(first.mVariable))
        mFormulaLabel->setup(number, attributes);
    else
        mFormulaLabel->setup(first.mVariable, attributes);
    mFormulaLabel->setModelFormula(formula);
}

// Two or more edit buttons stand beside their inputs in pairs: inputs without a switch then get an
// empty one.
void ZelUIStdElement::makeEditButtons(ZelUiBuild &build, const Announced &announced)
{
    const auto typeOf = [&build](const Entry &entry) {
        return ZelUIEditButton::modelTypeFor(*entry.mVariable, build.meta());
    };
    const auto count = std::count_if(
        announced.mEntries.begin(), announced.mEntries.end(),
        [&](const Entry &entry) { return typeOf(entry) != ZelUIEditButtonType::LABEL; });
    if (count == 0) {
        mSpacer = build.factory().makeSpacer();
        return;
    }
    for (const Entry &entry : announced.mEntries) {
        for (ZelUIInput *input : entry.mInputs) {
            const bool first = input == entry.mInputs.front();
            const ZelUIEditButtonType type = first ? typeOf(entry) : ZelUIEditButtonType::LABEL;
            if (type == ZelUIEditButtonType::LABEL && count == 1)
                continue;
            ZelUIEditButton *button = build.factory().makeEditButton(type);
            if (!button) {
                mEditButtons.clear();
                return;
            }
            AttrMap attributes = entry.mAttributes;
            if (auto *number = dynamic_cast<ZelUIMultiVar *>(entry.mVariable))
                button->setup(number, attributes, input->modelComponent());
            else
                button->setup(entry.mVariable, attributes);
            button->modelShareConditions(*input);
            mEditButtons.push_back(button);
        }
    }
}

void ZelUIStdElement::makeUnitLabel(ZelUiBuild &build, const Announced &announced)
{
    for (const Entry &entry : announced.mEntries) {
        auto *number = dynamic_cast<ZelUIMultiVar *>(entry.mVariable);
        if (!number || number->mDefaultUnit == ZelDimensions::NoUnit)
            continue;
        mUnitLabel = build.factory().makeUnitLabel();
        if (mUnitLabel) {
            AttrMap attributes = entry.mAttributes;
            mUnitLabel->setup(number, attributes);
        }
        return;
    }
}

void ZelUIStdElement::makeIconBox(ZelUiBuild &build, const Announced &announced)
{
    if (announced.mLine)
        mIconBox = zelMakeIconBox(build, nullptr, announced.mLine->attributes(), announced.mLine);
    for (const Entry &entry : announced.mEntries) {
        if (mIconBox)
            return;
        const ZelDomNode *node = announced.mLine ? entry.mNode : modelNode();
        mIconBox = zelMakeIconBox(build, entry.mVariable, entry.mAttributes, node);
    }
}
