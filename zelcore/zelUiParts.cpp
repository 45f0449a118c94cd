#include "zelUiParts_p.h"

#include "zelDomNode.h"
#include "zelUIComboBox.h"
#include "zelUIMultiVar.h"
#include "zelUIPushButton.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUITextEdit.h"
#include "zelUITextLabel.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"
#include "zelUiBuild.h"
#include "zelUiFactory.h"
#include "zelUiParser.h"

namespace {

// A spin box knows no units, so that only a number without unit can have one.
ZelUIInput *makeNumber(ZelUiFactory &factory, ZelUIMultiVar *variable, AttrMap attributes,
                       int component)
{
    if (variable->mStepped && variable->mDefaultUnit == ZelDimensions::NoUnit) {
        if (ZelUISpinBox *box = factory.makeSpinBox()) {
            box->setup(variable, attributes, component, variable->mStep);
            return box;
        }
    }
    ZelUIValueEdit *edit = factory.makeValueEdit();
    if (edit)
        edit->setup(variable, attributes, component);
    return edit;
}

template <class Variable>
ZelUIInput *makeText(ZelUiFactory &factory, Variable *variable, AttrMap attributes)
{
    ZelUITextEdit *edit = factory.makeTextEdit();
    if (edit)
        edit->setup(variable, attributes, 0);
    return edit;
}

template <class Variable>
bool setupList(ZelUiFactory &factory, ZelUIVar *variable, AttrMap &attributes, ZelUIInput *&input)
{
    auto *list = dynamic_cast<Variable *>(variable);
    if (!list)
        return false;
    ZelUIComboBox *box = factory.makeComboBox();
    if (box)
        box->setup(list, attributes, 0);
    input = box;
    return true;
}

template <class... Variables>
ZelUIInput *makeList(ZelUiFactory &factory, ZelUIVar *variable, AttrMap attributes)
{
    ZelUIInput *input = nullptr;
    (setupList<Variables>(factory, variable, attributes, input) || ...);
    return input;
}

ZelUITextHandler promptText(const ZelUIVar *variable, const ZelDomNode *node)
{
    ZelUITextHandler text;
    if (node && node->hasAttribute(L"text"))
        text.setup(node);
    else if (variable)
        text = variable->mText;
    return text;
}

bool buttonType(const zelWString &name, ZelUIPushButtonType &type)
{
    static const std::map<zelWString, ZelUIPushButtonType> types{
        {L"size", ZelUIPushButtonType::Size},         {L"convert", ZelUIPushButtonType::Convert},
        {L"plus", ZelUIPushButtonType::Plus},         {L"info", ZelUIPushButtonType::Info},
        {L"offer", ZelUIPushButtonType::Offer},       {L"database", ZelUIPushButtonType::Database},
        {L"settings", ZelUIPushButtonType::Settings}, {L"file", ZelUIPushButtonType::File}};
    const auto found = types.find(name);
    if (found == types.end())
        return false;
    type = found->second;
    return true;
}

void setupIconButton(ZelUIPushButton &button, ZelUIPushButtonType type, const zelWString &name,
                     ZelUIVar *variable, AttrMap attributes, const ZelUITextHandler &quantity)
{
    button.setPushButtonType(type);
    button.setModelQuantity(quantity);
    const zelWString function =
        zelAttribute(attributes, (std::wstring(name) + L"function").c_str());
    if (!function.empty())
        button.setModelFunction({function, variable ? variable->name() : zelWString()});
    button.setup(variable, attributes);
    const bool told = !button.mInfoIds.empty() || !button.mInfoFiles.empty();
    if (type == ZelUIPushButtonType::Info && !told && button.getAuthorItCode() > 0)
        button.setInfoId(button.getAuthorItCode());
}

} // namespace

ZelUIInput *zelMakeInput(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                         int component)
{
    ZelUiFactory &factory = build.factory();
    if (auto *number = dynamic_cast<ZelUIMultiVar *>(variable))
        return makeNumber(factory, number, attributes, component);
    if (auto *text = dynamic_cast<ZelUIVarString *>(variable))
        return makeText(factory, text, attributes);
    if (auto *text = dynamic_cast<ZelUIVarFuncText *>(variable))
        return makeText(factory, text, attributes);
    return makeList<ZelUIVarList, ZelUIVarRealList, ZelUIVarFuncList, ZelUIVarFuncListDynamic,
                    ZelUIVarRealFuncList, ZelUIVarDBList, ZelUIVarDBFuncList>(factory, variable,
                                                                              attributes);
}

ZelUITextLabel *zelMakePrompt(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                              const ZelDomNode *node)
{
    const ZelUITextHandler text = promptText(variable, node);
    if (text.empty())
        return nullptr;
    ZelUITextLabel *label = build.factory().makeTextLabel(ZelUIAlignment::Left);
    if (!label)
        return nullptr;
    label->setModelText(text);
    AttrMap own = attributes;
    label->setup(variable, own);
    return label;
}

std::vector<ZelUIPushButton *> zelMakeIconButtons(ZelUiBuild &build, ZelUIVar *variable,
                                                  const AttrMap &attributes, const ZelDomNode *node,
                                                  size_t limit)
{
    const ZelUITextHandler quantity = promptText(variable, node);
    std::vector<ZelUIPushButton *> buttons;
    for (const zelWString &name : ZelUiParser::words(zelAttribute(attributes, L"buttons"))) {
        if (buttons.size() >= limit)
            break;
        ZelUIPushButtonType type = ZelUIPushButtonType::Push;
        ZelUIPushButton *button =
            buttonType(name, type) ? build.factory().makeIconButton(type) : nullptr;
        if (!button)
            continue;
        setupIconButton(*button, type, name, variable, attributes, quantity);
        buttons.push_back(button);
    }
    return buttons;
}

ZelUIStdButtonBox *zelMakeIconBox(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                                  const ZelDomNode *node)
{
    const bool wanted = !ZelUiParser::words(zelAttribute(attributes, L"buttons")).empty();
    ZelUIStdButtonBox *box = wanted ? build.factory().makeStdButtonBox() : nullptr;
    if (!box)
        return nullptr;
    for (ZelUIPushButton *button : zelMakeIconButtons(build, variable, attributes, node))
        box->modelAddButton(button);
    return box;
}

ZelUIAlignment zelAlignment(const zelWString &name)
{
    if (name == L"right")
        return ZelUIAlignment::Right;
    return name == L"center" ? ZelUIAlignment::Center : ZelUIAlignment::Left;
}

zelWString zelAttribute(const AttrMap &attributes, const wchar_t *name)
{
    const auto found = attributes.find(name);
    return found == attributes.end() ? zelWString() : found->second;
}
