#pragma once

#include "zelUIItem.h"
#include "zelUITextHandler.h"
#include "zelUITypes.h"

#include <utility>

class ZelDomNode;
class ZelUIVarLubList;
class ZelUIVarTable;
class ZelUIVarTextButton;

/// What a button of a table is made from.
struct ZelUIButtonData
{
    ZelUIPushButtonType mType = ZelUIPushButtonType::Push;
    ZelUITextHandler mText;
    ZelUITextHandler mToolTip;
    zelWString mIconFile;
    ZelUICallFunc mFunction;
};

struct ZelUIPushButtonStruct
{
    zelWString mName;
    ZelUIPushButtonType mType = ZelUIPushButtonType::Push;
    zelWString mText;
    ZelUIState mState;
};

struct ZelUIInfoStruct
{
    std::vector<int> mIds;
    std::vector<zelWString> mFiles;
    int mIndex = 0;
};

/// A button of a mask: what it is for, its texts, the function of the module that it runs, and for
/// an information button its topics.
class ZELCORE_EXPORT ZelUIPushButton : public ZelUIItem
{
public:
    explicit ZelUIPushButton(const ZelUIPushButtonType &type = ZelUIPushButtonType::Push);
    ~ZelUIPushButton() override;

    using ZelUIItem::setup;
    using ZelUIItem::updateState;

    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    /// Both set mEnabled and mVisible straight away.
    virtual void updateState(bool enabled, bool visible);
    virtual void updateState(ZelUIState state);
    virtual void setup(ZelUIVarTable *variable, AttrMap &attributes, ZelUIButtonData *data);
    virtual void setup(ZelUIVarLubList *variable, AttrMap &attributes, bool first, bool second);
    /// This one and the next end in the virtual setup(ZelUIVar *, AttrMap &), whose override names
    /// the widget.
    virtual void setup(ZelUIVarTextButton *variable, AttrMap &attributes);
    virtual void setup(const ZelDomNode *node);
    virtual ZelUIPushButtonStruct toPushButtonStruct();
    virtual ZelUIInfoStruct toInfoStruct();
    /// True when the name is not empty; it is then a pure icon button.
    virtual bool addIconFile(const zelWString &file);
    virtual void addMenuItem(const ZelUITextHandler &text, const ZelUICallFunc &function);

    void setPushButtonType(ZelUIPushButtonType type) { mType = type; }
    ZelUIPushButtonType pushButtonType() const { return mType; }
    zelWString buttonText() const;
    /// The tips that were given, else those of the kind, which name the quantity.
    zelWString tooltip() const;
    zelWString statustip() const;
    /// True once one of the three texts has been given.
    bool hasModelTexts() const;
    const ZelUICallFunc &modelFunction() const { return mFunction; }
    void setModelFunction(const ZelUICallFunc &function) { mFunction = function; }
    void setModelText(const ZelUITextHandler &text) { mButtonText = text; }
    /// What the button belongs to, for its tool tip; without it the text of the variable.
    void setModelQuantity(const ZelUITextHandler &text) { mQuantity = text; }
    const std::vector<std::pair<ZelUITextHandler, ZelUICallFunc>> &modelMenu() const
    {
        return mMenu;
    }

    /// An id alone becomes the only entry of the list.
    void setInfoId(int id);
    void setInfoIds(const std::vector<int> &ids);
    void setInfoFile(const zelWString &file);
    void setInfoFiles(const std::vector<zelWString> &files);
    void setInfoIndex(int index) { mInfoIndex = index; }
    /// The entry at the index, 0 and "" without one; the file falls back to mInfoFile.
    int currentInfoId() const;
    zelWString currentInfoFile() const;

    bool mIconOnly = false;
    std::vector<int> mInfoIds;
    std::vector<zelWString> mInfoFiles;
    zelWString mInfoFile;
    int mInfoIndex = 0;

protected:
    ZelUITextHandler mButtonText;
    ZelUITextHandler mToolTip;
    ZelUITextHandler mStatusTip;

private:
    static const wchar_t *kindName(ZelUIPushButtonType type);
    void takeInfo(const AttrMap &attributes);

    ZelUIPushButtonType mType;
    ZelUITextHandler mQuantity;
    ZelUICallFunc mFunction;
    std::vector<std::pair<ZelUITextHandler, ZelUICallFunc>> mMenu;
};
