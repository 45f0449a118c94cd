#include "zelUIPushButton.h"

#include "zelButtonTips_p.h"
#include "zelDomNode.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"
#include "zelUiParser.h"

ZelUIPushButton::ZelUIPushButton(const ZelUIPushButtonType &type)
    : mType(type)
{
}

ZelUIPushButton::~ZelUIPushButton() = default;

void ZelUIPushButton::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIItem::setup(variable, attributes);
    if (variable && mQuantity.empty())
        mQuantity = variable->mText;
    if (mType != ZelUIPushButtonType::Push) {
        mIconOnly = true;
        setModelKind(kindName(mType));
    }
    // Attributes are those of the line, and all its buttons get them.
    if (mType == ZelUIPushButtonType::Push || mType == ZelUIPushButtonType::Info)
        takeInfo(attributes);
    if (const auto icon = attributes.find(L"icon"); icon != attributes.end())
        addIconFile(icon->second);
}

void ZelUIPushButton::takeInfo(const AttrMap &attributes)
{
    if (const auto ids = attributes.find(L"info"); ids != attributes.end()) {
        std::vector<int> numbers;
        for (const zelWString &word : ZelUiParser::words(ids->second))
            numbers.push_back(word.toInt());
        setInfoIds(numbers);
    }
    if (const auto files = attributes.find(L"infofile"); files != attributes.end())
        setInfoFiles(ZelUiParser::words(files->second));
}

const wchar_t *ZelUIPushButton::kindName(ZelUIPushButtonType type)
{
    switch (type) {
    case ZelUIPushButtonType::Push:
        return L"";
    case ZelUIPushButtonType::Size:
        return L"size";
    case ZelUIPushButtonType::Convert:
        return L"convert";
    case ZelUIPushButtonType::Plus:
        return L"plus";
    case ZelUIPushButtonType::Info:
        return L"info";
    case ZelUIPushButtonType::Offer:
        return L"offer";
    case ZelUIPushButtonType::Database:
        return L"database";
    case ZelUIPushButtonType::Settings:
        return L"settings";
    case ZelUIPushButtonType::File:
        return L"file";
    }
    return L"";
}

void ZelUIPushButton::updateState(bool enabled, bool visible)
{
    mEnabled = enabled;
    mVisible = visible;
}

void ZelUIPushButton::updateState(ZelUIState state)
{
    mEnabled = state.mEnabled;
    mVisible = state.mVisible;
    mReadOnly = state.mReadOnly;
}

void ZelUIPushButton::setup(ZelUIVarTable *variable, AttrMap &attributes, ZelUIButtonData *data)
{
    ZelUIPushButton::setup(static_cast<ZelUIVar *>(variable), attributes);
    if (!data)
        return;
    mType = data->mType;
    mButtonText = data->mText;
    mToolTip = data->mToolTip;
    mFunction = data->mFunction;
    addIconFile(data->mIconFile);
}

// The two flags tell which of the two lists of a lubricant line the button belongs to; its texts
// are the same for both.
void ZelUIPushButton::setup(ZelUIVarLubList *variable, AttrMap &attributes, bool, bool)
{
    ZelUIPushButton::setup(variable, attributes);
}

void ZelUIPushButton::setup(ZelUIVarTextButton *variable, AttrMap &attributes)
{
    if (variable) {
        if (mButtonText.empty())
            mButtonText = variable->mText;
        if (mStatusTip.empty())
            mStatusTip = variable->mStatusTip;
        mFunction.mFunction = variable->mFunction;
    }
    ZelUIVar *const plain = variable;
    setup(plain, attributes);
}

void ZelUIPushButton::setup(const ZelDomNode *node)
{
    if (!node)
        return;
    mButtonText.setup(node);
    mToolTip.setup(node, L"tooltip");
    mStatusTip.setup(node, L"status");
    mFunction = {node->attribute(L"function"), node->attribute(L"argument")};
    AttrMap attributes = node->attributes();
    setup(static_cast<ZelUIVar *>(nullptr), attributes);
}

ZelUIPushButtonStruct ZelUIPushButton::toPushButtonStruct()
{
    return {getName(), mType, buttonText(), state()};
}

ZelUIInfoStruct ZelUIPushButton::toInfoStruct()
{
    return {mInfoIds, mInfoFiles, mInfoIndex};
}

bool ZelUIPushButton::addIconFile(const zelWString &file)
{
    if (file.empty())
        return false;
    mIconOnly = true;
    return true;
}

void ZelUIPushButton::addMenuItem(const ZelUITextHandler &text, const ZelUICallFunc &function)
{
    mMenu.emplace_back(text, function);
}

zelWString ZelUIPushButton::buttonText() const
{
    return mButtonText.getText();
}

zelWString ZelUIPushButton::tooltip() const
{
    return mToolTip.empty() ? zelButtonToolTip(mType, mQuantity.getText()) : mToolTip.getText();
}

zelWString ZelUIPushButton::statustip() const
{
    return mStatusTip.empty() ? zelButtonStatusTip(mType) : mStatusTip.getText();
}

bool ZelUIPushButton::hasModelTexts() const
{
    return !mButtonText.empty() || !mToolTip.empty() || !mStatusTip.empty();
}

void ZelUIPushButton::setInfoId(int id)
{
    mInfoIds = {id};
}

void ZelUIPushButton::setInfoIds(const std::vector<int> &ids)
{
    mInfoIds = ids;
}

void ZelUIPushButton::setInfoFile(const zelWString &file)
{
    mInfoFile = file;
}

void ZelUIPushButton::setInfoFiles(const std::vector<zelWString> &files)
{
    mInfoFiles = files;
}

int ZelUIPushButton::currentInfoId() const
{
    const bool exists = mInfoIndex >= 0 && static_cast<size_t>(mInfoIndex) < mInfoIds.size();
    return exists ? mInfoIds[static_cast<size_t>(mInfoIndex)] : 0;
}

zelWString ZelUIPushButton::currentInfoFile() const
{
    const bool exists = mInfoIndex >= 0 && static_cast<size_t>(mInfoIndex) < mInfoFiles.size();
    return exists ? mInfoFiles[static_cast<size_t>(mInfoIndex)] : mInfoFile;
}
