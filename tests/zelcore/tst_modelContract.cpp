#include "internMessage.h"
#include "isDifferent.h"
#include "meta.h"
#include "runde.h"
#include "tarvexModule.h"
#include "translator.h"
#include "zelAutoDirty.h"
#include "zelDatabase.h"
#include "zelDomNode.h"
#include "zelFStream.h"
#include "zelFile.h"
#include "zelString.h"
#include "zelUIBoard.h"
#include "zelUIButtonBox.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIEditButton.h"
#include "zelUIExternalItem.h"
#include "zelUIFileElement.h"
#include "zelUIFileType.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUIFormulaLabel.h"
#include "zelUIGroup.h"
#include "zelUIImageElement.h"
#include "zelUILSElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUIMultiVar.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIOutputElement.h"
#include "zelUIPushButton.h"
#include "zelUISpacer.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUITabContainer.h"
#include "zelUITabPage.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextEdit.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"
#include "zelUIVarChoice.h"
#include "zelUIVarLists.h"
#include "zelUiParser.h"

#include <QtTest>
#include <concepts>

// The interface that widgets and applications stand on: what changes here breaks them, or another
// implementation of the model layer. Most of it is checked by the compiler.

namespace {

// The two arguments below are converted to the type that is written out: exactly one overload fits.
template <class Operation> constexpr bool offers(Operation)
{
    return true;
}

template <class Type, class Class> constexpr bool holds(Type Class::*)
{
    return true;
}

template <class Base, class... Classes>
constexpr bool areAll = (std::is_base_of_v<Base, Classes> && ...);

template <class Class, class... Others>
constexpr bool standsAlone = (int(std::is_base_of_v<Class, Others>) + ...) == 1;

// No overload of the root is hidden by those of the class.
template <class Class>
concept KeepsTheOverloads = requires(Class &object, ZelUIVar *variable, AttrMap &attributes,
                                     Meta *meta)
{
    object.setup(variable, attributes);
    object.setup(attributes);
    object.setup(variable);
    object.updateState(meta, int64_t(0));
};

template <class... Classes> constexpr bool keepTheOverloads = (KeepsTheOverloads<Classes> && ...);

using Unit = ZelDimensions::Unit;
using Type = ZelDimensions::Type;
using IdList = std::vector<std::pair<zelWString, short>>;

} // namespace

// Values

static_assert(std::is_constructible_v<zelWString> && std::is_convertible_v<int, zelWString>);
static_assert(std::is_convertible_v<const wchar_t *, zelWString>);
static_assert(std::is_convertible_v<std::wstring, zelWString>);
static_assert(std::is_nothrow_move_constructible_v<zelWString>);
static_assert(std::is_assignable_v<zelWString &, const wchar_t *>);
static_assert(std::is_convertible_v<zelWString, std::wstring>);
// A second conversion would make calls ambiguous.
static_assert(!std::is_convertible_v<zelWString, std::wstring_view>);
static_assert(!std::is_convertible_v<zelWString, const wchar_t *>);
static_assert(offers<const wchar_t *(zelWString::*)() const>(&zelWString::data));
static_assert(offers<std::wstring (zelWString::*)() const>(&zelWString::getWStringData));
static_assert(offers<bool (zelWString::*)() const>(&zelWString::empty));
static_assert(offers<int (zelWString::*)() const>(&zelWString::toInt));
static_assert(offers<bool (zelWString::*)(const wchar_t *) const>(&zelWString::operator==));
static_assert(std::is_convertible_v<zelString, std::string>);
static_assert(std::is_convertible_v<zelString, const char *>);
static_assert(offers<bool (zelString::*)(const char *) const>(&zelString::contains));
static_assert(std::is_same_v<AttrMap, std::map<zelWString, zelWString>>);
static_assert(offers<zelWString (Translator::*)(int) const>(&Translator::GetString));
static_assert(std::is_same_v<decltype(pool), Translator>);
static_assert(std::is_same_v<decltype(poolUi), Translator>);
static_assert(offers<zelFStream &(zelFStream::*)(const zelWString &)>(&zelFStream::operator<<));
static_assert(offers<zelFStream &(zelFStream::*)(char)>(&zelFStream::operator<<));

// Functions

static_assert(offers<double (*)(double, short)>(&Runde));
static_assert(offers<bool (*)(double, double)>(&isDifferent));
static_assert(offers<void (*)(const char *, long, const char *)>(&internMessage));
static_assert(
    offers<int (*)(const char *, const char *, short, long &, long &, wchar_t *)>(&GetDBName));
static_assert(offers<std::map<short, zelWString> (*)(const zelWString &, const zelWString &,
                                                     const zelWString &)>(&DBreadmap));
static_assert(offers<IdList (*)(const zelWString &, int)>(&DBreadmatlist));

static_assert(offers<int (*)(ZelUIFileType)>(&FileFilter));
static_assert(std::is_constructible_v<zelFile, const zelWString &, int, bool, zelFileEncoding>);
static_assert(std::has_virtual_destructor_v<zelFile>);
static_assert(offers<zelFStream &(zelFile::*)()>(&zelFile::stream));
static_assert(offers<zelWString (*)()>(&zelFile::GetProjectDir));
static_assert(offers<zelWString (*)(const zelWString &)>(&zelFile::CheckForStandardPath));
static_assert(offers<zelWString (*)(const wchar_t *)>(&zelFile::GetFullName));
static_assert((zelFile::Write | zelFile::Truncate) == 18 && int(zelFileEncoding::Utf8) == 1);

// Units

static_assert(ZelDimensions::NoUnit == 213 && ZelDimensions::DynamicUnit == 212);
static_assert(ZelDimensions::NoType == 58 && ZelDimensions::DegreeAngle == 133);
static_assert(offers<Unit (*)(const std::wstring &)>(&ZelDimensions::getUnit));
static_assert(offers<std::wstring (*)(Unit)>(&ZelDimensions::getString));
static_assert(offers<std::wstring (*)(Unit)>(&ZelDimensions::getEnumString));
static_assert(offers<Type (*)(Unit)>(&ZelDimensions::getType));
static_assert(offers<Type (*)(const std::wstring &)>(&ZelDimensions::getType));
static_assert(offers<std::vector<std::wstring> (*)(Type)>(&ZelDimensions::getStringList));
static_assert(offers<std::vector<Unit> (*)(Type)>(&ZelDimensions::getList));
static_assert(offers<Unit (*)(Unit, bool)>(&ZelDimensions::defaultUnit));
static_assert(offers<double (*)(double, Unit, Unit)>(&ZelDimensions::changeUnit));

// Descriptions, texts, data

static_assert(offers<bool (ZelDomNode::*)(const zelWString &) const>(&ZelDomNode::hasAttribute));
static_assert(offers<zelWString (ZelDomNode::*)(const zelWString &) const>(&ZelDomNode::attribute));
static_assert(offers<AttrMap (ZelDomNode::*)() const>(&ZelDomNode::attributes));
static_assert(offers<const zelWString &(ZelDomNode::*)() const>(&ZelDomNode::name));
static_assert(offers<const zelWString &(ZelDomNode::*)() const>(&ZelDomNode::content));
static_assert(offers<ZelDomNode *(ZelDomNode::*)() const>(&ZelDomNode::nextSibling));
static_assert(
    offers<ZelDomNode *(ZelDomNode::*)(const zelWString &) const>(&ZelDomNode::nextSibling));
static_assert(std::copyable<ZelUITextHandler> && std::default_initializable<ZelUITextHandler>);
static_assert(offers<void (ZelUITextHandler::*)()>(&ZelUITextHandler::clear));
static_assert(offers<void (ZelUITextHandler::*)(int)>(&ZelUITextHandler::setTextId));
static_assert(offers<void (ZelUITextHandler::*)(const ZelDomNode *)>(&ZelUITextHandler::setup));
static_assert(offers<zelWString (ZelUITextHandler::*)() const>(&ZelUITextHandler::getText));
static_assert(offers<bool (Meta::*)(MetaParam &)>(&Meta::CallFunc));
static_assert(
    offers<void (MetaParam::*)(const wchar_t *, const zelWString &)>(&MetaParam::addParam));
static_assert(offers<zelWString (MetaParam::*)(uint64_t) const>(&MetaParam::getResultAsString));
static_assert(offers<TarvexModule *(*)(TarvexModule *)>(&TarvexModule::GetActiveModule));
static_assert(offers<Meldung *(TarvexModule::*)(MeldungsVar, MeldungsTyp, bool) const>(
    &TarvexModule::GetMeldung));
static_assert(std::is_same_v<decltype(TarvexModule::Setup), TarvexSetup *>);
static_assert(
    offers<bool (*)(const AttrMap &, bool &, int &, int &)>(&ZelUiParser::hasGeometryAttribute));
static_assert(
    offers<bool (*)(const ZelDomNode *, bool &, int &, int &)>(&ZelUiParser::hasGeometryAttribute));
static_assert(offers<bool (*)(const ZelDomNode *)>(&ZelUiParser::hasFrameAttribute));

// Variables

static_assert(offers<bool (ZelUIVar::*)() const>(&ZelUIVar::IsUpdateBlocking));
static_assert(offers<DataSource (ZelUIVarTable::*)() const>(&ZelUIVarTable::GetDataSource));
static_assert(offers<bool (ZelUIVarTable::*)() const>(&ZelUIVarTable::HasRemoveRowsButtons));
static_assert(int(DataSource::User) == 0 && int(DataSource::Calculation) == 1);
static_assert(int(DataSource::Database) == 2 && int(DataSource::Filtered) == 3);

namespace {

// Each derives from ZelUIVar and from no other of them, so that overloads stay unambiguous.
template <class... Variables> constexpr bool derive()
{
    return areAll<ZelUIVar, Variables...> && (standsAlone<Variables, Variables...> && ...);
}

} // namespace

static_assert(
    derive<ZelUIMultiVar, ZelUIVarBool, ZelUIVarString, ZelUIVarFuncText, ZelUIVarText,
           ZelUIVarMultilineString, ZelUIVarTextButton, ZelUIVarImage, ZelUIVarTable, ZelUIVarList,
           ZelUIVarFuncList, ZelUIVarFuncListDynamic, ZelUIVarDBList, ZelUIVarDBFuncList,
           ZelUIVarRealList, ZelUIVarRealFuncList, ZelUIVarMatList, ZelUIVarLubList, ZelUIVarLS>());
static_assert(std::is_base_of_v<ZelUIVarList, ZelUIVarChoice>);

// The class tree

static_assert(
    areAll<ZelUIObject, ZelUIItem, ZelUISpacer, ZelUIElement, ZelUIContainer, ZelUIStdButtonBox>);
static_assert(areAll<ZelUIItem, ZelUIInput, ZelUIEditButton, ZelUIFlag, ZelUIUnitLabel,
                     ZelUIFormulaLabel, ZelUITextLabel, ZelUINotepad, ZelUIPushButton, ZelUITable>);
static_assert(areAll<ZelUIInput, ZelUIValueEdit, ZelUITextEdit, ZelUIComboBox>);
static_assert(areAll<ZelUIValueEdit, ZelUISpinBox>);
static_assert(
    areAll<ZelUIElement, ZelUIViewElement, ZelUIDialogButtonBox, ZelUIStdElement, ZelUIFileElement,
           ZelUIMatElement, ZelUILubElement, ZelUILSElement, ZelUITextElement, ZelUIFlagElement,
           ZelUITableElement, ZelUINotepadElement, ZelUIButtonBox>);
static_assert(areAll<ZelUIViewElement, ZelUIOutputElement, ZelUIImageElement>);
static_assert(areAll<ZelUIContainer, ZelUILayoutItem, ZelUITopLayout, ZelUIColumn>);
static_assert(areAll<ZelUILayoutItem, ZelUIBoard, ZelUITabContainer, ZelUIExternalItem>);
static_assert(areAll<ZelUIBoard, ZelUIGroup> && areAll<ZelUITopLayout, ZelUITabPage>);
static_assert(!std::is_base_of_v<ZelUIItem, ZelUIElement>);
static_assert(!std::is_base_of_v<ZelUIItem, ZelUISpacer>);
static_assert(!std::is_base_of_v<ZelUIElement, ZelUIStdButtonBox>);
static_assert(!std::is_base_of_v<ZelUILayoutItem, ZelUITopLayout>);
static_assert(!std::is_base_of_v<ZelUIBoard, ZelUITabContainer>);
static_assert(std::has_virtual_destructor_v<ZelUIObject>);

static_assert(
    keepTheOverloads<ZelUIItem, ZelUIInput, ZelUIValueEdit, ZelUISpinBox, ZelUITextEdit,
                     ZelUIComboBox, ZelUIEditButton, ZelUIFlag, ZelUIUnitLabel, ZelUIFormulaLabel,
                     ZelUITextLabel, ZelUINotepad, ZelUIPushButton, ZelUITable, ZelUISpacer>);
static_assert(
    keepTheOverloads<ZelUIElement, ZelUIViewElement, ZelUIOutputElement, ZelUIImageElement,
                     ZelUIDialogButtonBox, ZelUIStdElement, ZelUIFileElement, ZelUIMatElement,
                     ZelUILubElement, ZelUILSElement, ZelUITextElement, ZelUIFlagElement,
                     ZelUITableElement, ZelUINotepadElement, ZelUIButtonBox, ZelUIStdButtonBox>);
static_assert(
    keepTheOverloads<ZelUIContainer, ZelUILayoutItem, ZelUIBoard, ZelUIGroup, ZelUITabContainer,
                     ZelUIExternalItem, ZelUITopLayout, ZelUITabPage, ZelUIColumn>);

// Operations that are not virtual

static_assert(offers<zelWString (ZelUIObject::*)() const>(&ZelUIObject::getName));
static_assert(offers<ZelUIState (ZelUIObject::*)() const>(&ZelUIObject::state));
static_assert(offers<int (ZelUIObject::*)() const>(&ZelUIObject::getAuthorItCode));
static_assert(offers<void (ZelUIObject::*)(int)>(&ZelUIObject::setAuthorItCode));
static_assert(std::is_constructible_v<ZelUIValueEdit>);
static_assert(std::is_constructible_v<ZelUIValueEdit, Unit>);
static_assert(std::is_constructible_v<ZelUIValueEdit, Unit, Unit>);
static_assert(offers<double (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::top));
static_assert(offers<double (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::bottom));
static_assert(offers<Unit (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::defaultUnit));
static_assert(offers<Unit (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::currentUnit));
static_assert(
    offers<zelWString (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::getCurrentUnitString));
static_assert(offers<double (ZelUIValueEdit::*)() const>(&ZelUIValueEdit::valueInCurrentUnit));
static_assert(offers<zelWString (ZelUITextEdit::*)() const>(&ZelUITextEdit::placeholder));
static_assert(offers<void (ZelUIComboBox::*)(IdList)>(&ZelUIComboBox::setTextList));
static_assert(
    offers<void (ZelUIComboBox::*)(const std::set<short> &)>(&ZelUIComboBox::setDisabledIDs));
static_assert(
    offers<void (ZelUIComboBox::*)(const std::set<short> &)>(&ZelUIComboBox::setExcludedIDs));
static_assert(std::is_convertible_v<decltype(std::declval<ZelUIComboBox>().list()), IdList>);
static_assert(std::is_convertible_v<decltype(std::declval<ZelUIComboBox>().dynamicList()),
                                    std::vector<std::pair<zelWString, int64_t>>>);
static_assert(std::is_constructible_v<ZelUIEditButton, ZelUIEditButtonType>);
static_assert(offers<ZelUIEditButtonType (ZelUIEditButton::*)() const>(&ZelUIEditButton::editType));
static_assert(std::is_constructible_v<ZelUIFlag, ZelUIFlagType>);
static_assert(offers<zelWString (ZelUIFlag::*)() const>(&ZelUIFlag::getText));
static_assert(offers<zelWString (ZelUIUnitLabel::*)() const>(&ZelUIUnitLabel::getUnitString));
static_assert(offers<std::vector<zelWString> (ZelUIUnitLabel::*)() const>(
    &ZelUIUnitLabel::getUnitStringList));
static_assert(
    offers<const zelWString &(ZelUIFormulaLabel::*)() const>(&ZelUIFormulaLabel::getFormula));
static_assert(std::is_constructible_v<ZelUITextLabel, ZelUIAlignment>);
static_assert(offers<zelWString (ZelUITextLabel::*)() const>(&ZelUITextLabel::getText));
static_assert(offers<ZelUIAlignment (ZelUITextLabel::*)() const>(&ZelUITextLabel::getAlignment));
static_assert(std::is_constructible_v<ZelUIPushButton, const ZelUIPushButtonType &>);
static_assert(
    offers<void (ZelUIPushButton::*)(ZelUIPushButtonType)>(&ZelUIPushButton::setPushButtonType));
static_assert(offers<zelWString (ZelUIPushButton::*)() const>(&ZelUIPushButton::buttonText));
static_assert(offers<zelWString (ZelUIPushButton::*)() const>(&ZelUIPushButton::tooltip));
static_assert(offers<zelWString (ZelUIPushButton::*)() const>(&ZelUIPushButton::statustip));
static_assert(offers<void (ZelUIPushButton::*)(int)>(&ZelUIPushButton::setInfoId));
static_assert(
    offers<void (ZelUIPushButton::*)(const std::vector<int> &)>(&ZelUIPushButton::setInfoIds));
static_assert(offers<void (ZelUIPushButton::*)(const zelWString &)>(&ZelUIPushButton::setInfoFile));
static_assert(offers<void (ZelUIPushButton::*)(const std::vector<zelWString> &)>(
    &ZelUIPushButton::setInfoFiles));
static_assert(offers<void (ZelUIPushButton::*)(int)>(&ZelUIPushButton::setInfoIndex));
static_assert(offers<int (ZelUIPushButton::*)() const>(&ZelUIPushButton::currentInfoId));
static_assert(offers<zelWString (ZelUIPushButton::*)() const>(&ZelUIPushButton::currentInfoFile));
static_assert(offers<ZelUIAlignment (ZelUIButtonBox::*)() const>(&ZelUIButtonBox::getAlignment));
static_assert(
    offers<ZelUIPushButton *(ZelUIButtonBox::*)() const>(&ZelUIButtonBox::getSingleButton));
static_assert(
    offers<ZelUIPushButton *(ZelUIStdButtonBox::*)(int) const>(&ZelUIStdButtonBox::getPushButton));
static_assert(offers<bool (ZelUIStdButtonBox::*)() const>(&ZelUIStdButtonBox::empty));
static_assert(offers<int (ZelUIStdButtonBox::*)() const>(&ZelUIStdButtonBox::count));
static_assert(offers<int (ZelUILayoutItem::*)() const>(&ZelUILayoutItem::row));
static_assert(offers<int (ZelUILayoutItem::*)() const>(&ZelUILayoutItem::column));
static_assert(offers<int (ZelUILayoutItem::*)() const>(&ZelUILayoutItem::rowSpan));
static_assert(offers<int (ZelUILayoutItem::*)() const>(&ZelUILayoutItem::columnSpan));
static_assert(offers<bool (ZelUILSElement::*)() const>(&ZelUILSElement::hasAdvancedLayout));
static_assert(offers<bool (ZelUIBoard::*)(bool) const>(&ZelUIBoard::containsExpandingViews));
static_assert(offers<zelWString (ZelUIGroup::*)() const>(&ZelUIGroup::getTitle));
static_assert(offers<zelWString (ZelUITabPage::*)() const>(&ZelUITabPage::getTitle));

// Data that widgets read and write, and numbers of enumerations

static_assert(std::is_aggregate_v<ZelUIState>);
static_assert(!ZelUIState{false, true, true}.mEnabled && !ZelUIState{true, false, true}.mVisible);
static_assert(!ZelUIState{true, true, false}.mReadOnly);
static_assert(holds<bool>(&ZelUIObject::mEnabled) && holds<bool>(&ZelUIObject::mVisible));
static_assert(holds<bool>(&ZelUIObject::mReadOnly) && holds<bool>(&ZelUIInput::mLowPriority));
static_assert(holds<zelWString>(&ZelUIInput::mPriorityName));
static_assert(holds<double>(&ZelUIValueEdit::mValue) && holds<double>(&ZelUIValueEdit::mTop));
static_assert(holds<Unit>(&ZelUIValueEdit::mDefaultUnit));
static_assert(holds<Unit>(&ZelUIValueEdit::mCurrentUnit));
static_assert(holds<bool>(&ZelUIValueEdit::mHasBottom) && holds<bool>(&ZelUIValueEdit::mHasTop));
static_assert(holds<double>(&ZelUIValueEdit::mBottom));
static_assert(holds<int32_t>(&ZelUIValueEdit::mValueKind));
static_assert(holds<short>(&ZelUIValueEdit::mDecimals));
static_assert(holds<zelWString>(&ZelUITextEdit::mText) && holds<zelWString>(&ZelUINotepad::mText));
static_assert(holds<bool>(&ZelUIFlag::mChecked) && holds<bool>(&ZelUIEditButton::mChecked));
static_assert(holds<ZelUIEditButtonType>(&ZelUIEditButton::mEditType));
static_assert(holds<Unit>(&ZelUIUnitLabel::mDefaultUnit));
static_assert(holds<Unit>(&ZelUIUnitLabel::mCurrentUnit));
static_assert(holds<bool>(&ZelUIPushButton::mIconOnly) && holds<int>(&ZelUIPushButton::mInfoIndex));
static_assert(holds<std::vector<int>>(&ZelUIPushButton::mInfoIds));
static_assert(holds<std::vector<zelWString>>(&ZelUIPushButton::mInfoFiles));
static_assert(holds<zelWString>(&ZelUIPushButton::mInfoFile));
static_assert(holds<zelWString>(&ZelUIComboBox::mDatabase));
static_assert(holds<zelWString>(&ZelUIComboBox::mTable));
static_assert(holds<zelWString>(&ZelUIComboBox::mIdColumn));
static_assert(holds<uint64_t>(&ZelUIComboBox::mListKey));
static_assert(holds<short>(&ZelUIComboBox::mCurrentId));
static_assert(holds<int64_t>(&ZelUIComboBox::mCurrentId64));
static_assert(holds<std::set<short>>(&ZelUIComboBox::mDisabledIDs));
static_assert(holds<std::set<short>>(&ZelUIComboBox::mExcludedIDs));
static_assert(holds<std::set<int64_t>>(&ZelUIComboBox::mDynamicDisabledIDs));
static_assert(holds<ZelUITextLabel *>(&ZelUIStdElement::mLabel));
static_assert(holds<ZelUIFormulaLabel *>(&ZelUIStdElement::mFormulaLabel));
static_assert(holds<std::vector<ZelUIInput *>>(&ZelUIStdElement::mInputs));
static_assert(holds<std::vector<ZelUIEditButton *>>(&ZelUIStdElement::mEditButtons));
static_assert(holds<ZelUISpacer *>(&ZelUIStdElement::mSpacer));
static_assert(holds<ZelUIUnitLabel *>(&ZelUIStdElement::mUnitLabel));
static_assert(holds<ZelUIStdButtonBox *>(&ZelUIStdElement::mIconBox));
static_assert(holds<std::vector<ZelUIPushButton *>>(&ZelUIFileElement::mFileButtons));
static_assert(std::is_base_of_v<ZelUIStdElement, ZelUIFileElement>);
static_assert(holds<ZelUITextLabel *>(&ZelUIMatElement::mLabel1));
static_assert(holds<ZelUITextLabel *>(&ZelUIMatElement::mLabel2));
static_assert(holds<ZelUIComboBox *>(&ZelUIMatElement::mCombo1));
static_assert(holds<ZelUIPushButton *>(&ZelUIMatElement::mButton1));
static_assert(holds<ZelUIComboBox *>(&ZelUIMatElement::mCombo2));
static_assert(holds<ZelUIPushButton *>(&ZelUIMatElement::mButton2));
static_assert(holds<ZelUITextLabel *>(&ZelUILubElement::mLabel));
static_assert(holds<ZelUIComboBox *>(&ZelUILubElement::mCombo1));
static_assert(holds<ZelUIPushButton *>(&ZelUILubElement::mButton1));
static_assert(holds<ZelUIComboBox *>(&ZelUILubElement::mCombo2));
static_assert(holds<ZelUIPushButton *>(&ZelUILubElement::mButton2));
static_assert(holds<ZelUIPushButton *>(&ZelUILubElement::mButton3));
static_assert(holds<ZelUITextLabel *>(&ZelUILSElement::mLabel1));
static_assert(holds<ZelUIComboBox *>(&ZelUILSElement::mCombo));
static_assert(holds<ZelUITextLabel *>(&ZelUILSElement::mLabel2));
static_assert(holds<ZelUISpinBox *>(&ZelUILSElement::mSpinBox));
static_assert(holds<ZelUITextLabel *>(&ZelUITextElement::mLabel));
static_assert(holds<std::vector<ZelUITextLabel *>>(&ZelUITextElement::mValueLabels));
static_assert(holds<ZelUIFlag *>(&ZelUIFlagElement::mFlag));
static_assert(holds<ZelUIStdButtonBox *>(&ZelUIFlagElement::mIconBox));
static_assert(holds<ZelUITable *>(&ZelUITableElement::mTable));
static_assert(holds<ZelUIPushButton *>(&ZelUITableElement::mLeadingButton));
static_assert(holds<ZelUIFlag *>(&ZelUITableElement::mLeadingFlag));
static_assert(std::tuple_size_v<decltype(ZelUITableElement::mButtonLists)> == 8);
static_assert(holds<ZelUINotepad *>(&ZelUINotepadElement::mNotepad));
static_assert(holds<ZelUIPushButton *>(&ZelUIButtonBox::mButton));
static_assert(holds<ZelUIAlignment>(&ZelUIButtonBox::mAlignment));
static_assert(holds<std::vector<ZelUILayoutItem *>>(&ZelUITopLayout::mItems));
static_assert(holds<std::vector<ZelUITabPage *>>(&ZelUITabContainer::mPages));
static_assert(holds<std::vector<ZelUIColumn *>>(&ZelUIBoard::mColumns));
static_assert(holds<ZelUIColumn *>(&ZelUIBoard::mHead) && holds<ZelUIColumn *>(&ZelUIBoard::mFoot));
static_assert(holds<bool>(&ZelUIGroup::mFlat));
static_assert(holds<ZelUITextHandler>(&ZelUIGroup::mTitle));

static_assert(ZelUIColumn::mFormulaCol == 1 && ZelUIColumn::mInputCol == 2);
static_assert(ZelUIColumn::mEditCol == 3 && ZelUIColumn::mUnitCol == 4);
static_assert(ZelUIColumn::mIconCol == 5 && ZelUIColumn::mColSpan == 6);
static_assert(std::is_same_v<decltype(ZelUIColumn::mIconCol), const int>);

template <class Enumeration>
constexpr bool countsInInt = std::is_same_v<std::underlying_type_t<Enumeration>, int>;
static_assert(countsInInt<ZelUIAlignment> && countsInInt<ZelUIEditButtonType>);
static_assert(countsInInt<ZelUIFlagType> && countsInInt<ZelUIPushButtonType>);
static_assert(int(ZelUIAlignment::Left) == 0 && int(ZelUIAlignment::Center) == 2);
static_assert(int(ZelUIEditButtonType::LABEL) == 0 && int(ZelUIEditButtonType::CHECKBOX) == 1);
static_assert(int(ZelUIEditButtonType::RADIOBUTTON) == 2 && int(ZelUIEditButtonType::HIDDEN) == 3);
static_assert(int(ZelUIFlagType::CheckBox) == 1);
static_assert(int(ZelUIPushButtonType::Push) == 0 && int(ZelUIPushButtonType::Size) == 1);
static_assert(int(ZelUIPushButtonType::Convert) == 2 && int(ZelUIPushButtonType::Plus) == 3);
static_assert(int(ZelUIPushButtonType::Info) == 4 && int(ZelUIPushButtonType::Offer) == 5);
static_assert(int(ZelUIPushButtonType::Database) == 6 && int(ZelUIPushButtonType::Settings) == 7);
static_assert(int(ZelUIPushButtonType::File) == 9);
static_assert(ZelUIDialogButtonBox::Accept == 0 && ZelUIDialogButtonBox::Reject == 1);
static_assert(ZelUIDialogButtonBox::Close == 2 && ZelUIDialogButtonBox::Action == 3);
static_assert(ZelUITable::NoTable == 0 && ZelUITable::EditTable == 1 && ZelUITable::ListTable == 2);

class tst_modelContract : public QObject
{
    Q_OBJECT
private slots:
    void stateStartsOpen();
    void valuesStartEmpty();
    void listsStartEmpty();
    void buttonsStartWithoutTargets();
    void filtersOfFilesAreTextsOfThePool();
};

void tst_modelContract::stateStartsOpen()
{
    const ZelUIObject object;
    QVERIFY(object.mEnabled && object.mVisible && !object.mReadOnly);
    QCOMPARE(object.getAuthorItCode(), -1);
    const ZelUITextEdit input;
    QVERIFY(!input.mLowPriority);
    QVERIFY(input.mPriorityName.empty());
    QVERIFY(input.mText.empty());
}

void tst_modelContract::valuesStartEmpty()
{
    const ZelUIValueEdit edit;
    QCOMPARE(edit.mValue, 0.0);
    QVERIFY(edit.mDefaultUnit == ZelDimensions::NoUnit);
    QVERIFY(edit.mCurrentUnit == ZelDimensions::NoUnit);
    QVERIFY(!edit.mHasBottom && !edit.mHasTop);
    QCOMPARE(edit.mValueKind, 0);
    // Else a switch from integer to real would show no decimals.
    QCOMPARE(edit.mDecimals, short(4));
    const ZelUIValueEdit length(ZelDimensions::Millimetre);
    QVERIFY(length.mCurrentUnit == ZelDimensions::Millimetre);
    QVERIFY(!ZelUIFlag().mChecked && !ZelUIEditButton().mChecked);
    QVERIFY(ZelUIEditButton().mEditType == ZelUIEditButtonType::CHECKBOX);
    QVERIFY(ZelUIUnitLabel().mDefaultUnit == ZelDimensions::NoUnit);
}

void tst_modelContract::listsStartEmpty()
{
    const ZelUIComboBox combo;
    QVERIFY(combo.mDatabase.empty() && combo.mTable.empty());
    QVERIFY(combo.mIdColumn == L"ID");
    QCOMPARE(combo.mListKey, uint64_t(0));
    QCOMPARE(combo.mCurrentId, short(0));
    QCOMPARE(combo.mCurrentId64, int64_t(0));
    QVERIFY(combo.mDisabledIDs.empty() && combo.mExcludedIDs.empty());
    QVERIFY(combo.mDynamicDisabledIDs.empty());
    QCOMPARE(ZelUITable().mSelectedRow, -1);
}

void tst_modelContract::buttonsStartWithoutTargets()
{
    const ZelUIPushButton button;
    QVERIFY(!button.mIconOnly);
    QVERIFY(button.mInfoIds.empty() && button.mInfoFiles.empty() && button.mInfoFile.empty());
    QCOMPARE(button.mInfoIndex, 0);
    QVERIFY(!ZelUIButtonBox().getSingleButton());
    QVERIFY(ZelUIStdButtonBox().empty());
}

void tst_modelContract::filtersOfFilesAreTextsOfThePool()
{
    // Each ends with one pattern in brackets, from which file fields take their lists.
    for (const int type : {0, 2, 6}) {
        const std::wstring text = poolUi.GetString(FileFilter(ZelUIFileType(type)));
        QVERIFY(QString::fromStdWString(text).contains(QRegularExpression(R"( \(\*\.[a-z*]+\)$)")));
    }
}

QTEST_APPLESS_MAIN(tst_modelContract)
#include "tst_modelContract.moc"
