#pragma once

#include "zelUIItem.h"
#include "zelUITypes.h"

class ZelUIMultiVar;

struct ZelUIEditButtonStruct
{
    zelWString mName;
    ZelUIEditButtonType mEditType = ZelUIEditButtonType::LABEL;
    bool mChecked = false;
};

/// The switch of a line that tells whether its value is entered or computed: a check box for an
/// optional variable, a radio button for a member of a choice. It writes only as one of these two,
/// and unchecking a radio button is no choice.
class ZELCORE_EXPORT ZelUIEditButton : public ZelUIItem
{
public:
    ZelUIEditButton();
    explicit ZelUIEditButton(ZelUIEditButtonType type);
    ~ZelUIEditButton() override;

    using ZelUIItem::setup;

    virtual void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component);
    virtual ZelUIEditButtonStruct toEditButtonStruct();
    virtual void setEditType(ZelUIEditButtonType type);

    /// HIDDEN is never visible.
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;

    ZelUIEditButtonType editType() const { return mEditType; }
    /// What a variable asks for: a check box for an optional one, a radio button for a member of a
    /// choice by switch, and of one by typing when its alternatives share no variable. LABEL stands
    /// for no button at all.
    static ZelUIEditButtonType modelTypeFor(const ZelUIVar &variable, const Meta &meta);

    bool mChecked = false;
    ZelUIEditButtonType mEditType = ZelUIEditButtonType::CHECKBOX;

private:
    bool storedState(const Meta &meta, int64_t id) const;
    void writeState(Meta &meta, int64_t id) const;

    bool mLoadedChecked = false;
};
