#include "zelUiColumnBuilder_p.h"

#include "zelDomNode.h"
#include "zelUIButtonBox.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIFlagElement.h"
#include "zelUIImageElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUINotepadElement.h"
#include "zelUIOutputElement.h"
#include "zelUIStdElement.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextElement.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParser.h"
#include "zelUiParts_p.h"

#include <algorithm>

namespace {

bool expands(const ZelDomNode &node)
{
    return ZelUiParser::isTrue(node.attribute(L"expand"));
}

int spanOf(const ZelDomNode &node)
{
    const int span = node.attribute(L"span").toInt();
    return span > 0 ? span : ZelUIColumn::mColSpan;
}

// Set up and with its parts, but in no column yet: what lacks its main part is left out.
template <class Element>
std::unique_ptr<Element> makeElement(const ZelDomNode &node, ZelUIVar *variable)
{
    auto element = std::make_unique<Element>();
    element->modelSetNode(&node);
    AttrMap attributes = node.attributes();
    element->setup(variable, attributes);
    element->modelMakeParts();
    return element;
}

} // namespace

ZelUiColumnBuilder::ZelUiColumnBuilder(ZelUIColumn &column, ZelUiBuild &build)
    : mColumn(column)
    , mBuild(build)
{
}

template <class Element> Element *ZelUiColumnBuilder::own(std::unique_ptr<Element> element)
{
    Element *plain = element.get();
    mColumn.mOwned.push_back(std::move(element));
    return plain;
}

void ZelUiColumnBuilder::add(const ZelDomNode &node)
{
    const zelWString &tag = node.name();
    if (tag == L"image" && !node.hasAttribute(L"name"))
        addImage(node, nullptr);
    else if (tag == L"var" || tag == L"table" || tag == L"image")
        addVariable(node);
    else if (tag == L"line")
        addLine(node);
    else if (tag == L"text")
        addText(node, nullptr);
    else if (tag == L"button")
        addButton(node, nullptr);
    else if (tag == L"output")
        addOutput(node);
}

void ZelUiColumnBuilder::addVariable(const ZelDomNode &node)
{
    ZelUIVar *variable = mBuild.variableOf(node);
    if (!variable)
        return;
    if (dynamic_cast<ZelUIVarBool *>(variable))
        addFlag(node, variable);
    else if (dynamic_cast<ZelUIVarText *>(variable))
        addText(node, variable);
    else if (dynamic_cast<ZelUIVarMultilineString *>(variable))
        addNotepad(node, variable);
    else if (dynamic_cast<ZelUIVarTextButton *>(variable))
        addButton(node, variable);
    else if (dynamic_cast<ZelUIVarMatList *>(variable))
        addMaterial(node, variable);
    else if (dynamic_cast<ZelUIVarLubList *>(variable))
        addLubricant(node, variable);
    else if (dynamic_cast<ZelUIVarTable *>(variable))
        addTable(node, variable);
    else if (dynamic_cast<ZelUIVarImage *>(variable))
        addImage(node, variable);
    else
        addStandard(node, variable);
}

void ZelUiColumnBuilder::addStandard(const ZelDomNode &node, ZelUIVar *variable)
{
    auto element = makeElement<ZelUIStdElement>(node, variable);
    if (!element->mInputs.empty())
        mColumn.addStdElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addLine(const ZelDomNode &node)
{
    auto element = std::make_unique<ZelUIStdElement>();
    element->modelSetupLine(&node);
    element->modelMakeParts();
    if (!element->mInputs.empty())
        mColumn.addStdElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addFlag(const ZelDomNode &node, ZelUIVar *variable)
{
    auto element = makeElement<ZelUIFlagElement>(node, variable);
    if (element->mFlag)
        mColumn.addFlagElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addText(const ZelDomNode &node, ZelUIVar *variable)
{
    std::unique_ptr<ZelUITextElement> element;
    if (variable) {
        element = makeElement<ZelUITextElement>(node, variable);
    } else {
        element = std::make_unique<ZelUITextElement>();
        element->modelSetupText(&node);
        element->modelMakeParts();
    }
    if (element->mLabel || !element->mValueLabels.empty())
        mColumn.addTextElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addNotepad(const ZelDomNode &node, ZelUIVar *variable)
{
    auto element = makeElement<ZelUINotepadElement>(node, variable);
    if (element->mNotepad)
        mColumn.addNotepadElement(own(std::move(element)), expands(node), spanOf(node));
}

void ZelUiColumnBuilder::addButton(const ZelDomNode &node, ZelUIVar *variable)
{
    auto element = makeElement<ZelUIButtonBox>(node, variable);
    if (element->mButton)
        mColumn.addButtonElement(own(std::move(element)));
}

// The list of materials alone: a list of their types stands before it only in forms by hand, since
// the variable says which types fit.
void ZelUiColumnBuilder::addMaterial(const ZelDomNode &node, ZelUIVar *variable)
{
    auto *material = static_cast<ZelUIVarMatList *>(variable);
    ZelUIComboBox *box = mBuild.factory().makeComboBox();
    if (!box)
        return;
    AttrMap attributes = node.attributes();
    box->setup(material, attributes, false);
    if (material->mTypes.size() == 1)
        box->mListKey = static_cast<uint64_t>(std::max<short>(material->mTypes.front(), 0));
    auto element = makeElement<ZelUIMatElement>(node, variable);
    element->mCombo2 = box;
    element->mLabel1 = zelMakePrompt(mBuild, variable, attributes, &node);
    const auto buttons = zelMakeIconButtons(mBuild, variable, attributes, &node, 1);
    element->mButton2 = buttons.empty() ? nullptr : buttons.front();
    mColumn.addMatElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addLubricant(const ZelDomNode &node, ZelUIVar *variable)
{
    ZelUIComboBox *box = mBuild.factory().makeComboBox();
    if (!box)
        return;
    AttrMap attributes = node.attributes();
    box->setup(static_cast<ZelUIVarLubList *>(variable), attributes, false, true);
    auto element = makeElement<ZelUILubElement>(node, variable);
    element->mCombo2 = box;
    element->mLabel = zelMakePrompt(mBuild, variable, attributes, &node);
    const auto buttons = zelMakeIconButtons(mBuild, variable, attributes, &node, 2);
    element->mButton2 = buttons.empty() ? nullptr : buttons[0];
    element->mButton3 = buttons.size() < 2 ? nullptr : buttons[1];
    mColumn.addLubElement(own(std::move(element)));
}

void ZelUiColumnBuilder::addTable(const ZelDomNode &node, ZelUIVar *variable)
{
    ZelUITable *table = mBuild.factory().makeTable();
    if (!table)
        return;
    AttrMap attributes = node.attributes();
    table->setup(&mBuild.meta(), static_cast<ZelUIVarTable *>(variable), attributes);
    auto element = makeElement<ZelUITableElement>(node, variable);
    element->mTable = table;
    mColumn.addTableElement(own(std::move(element)), expands(node), spanOf(node));
}

// The factory owns views: they are the elements themselves.
void ZelUiColumnBuilder::addImage(const ZelDomNode &node, ZelUIVar *variable)
{
    ZelUIImageElement *image = mBuild.factory().makeImage();
    if (!image)
        return;
    AttrMap attributes = node.attributes();
    image->setup(static_cast<ZelUIVarImage *>(variable), attributes);
    image->modelSetNode(&node);
    mColumn.addViewElement(image, expands(node) || image->isExpanding(), spanOf(node));
}

void ZelUiColumnBuilder::addOutput(const ZelDomNode &node)
{
    ZelUIOutputElement *output = mBuild.factory().makeOutput();
    if (!output)
        return;
    output->setup(&node);
    mColumn.addViewElement(output, output->isExpanding(), spanOf(node));
}
