#pragma once

#include "zelUIItem.h"

/// What an input tells of itself to programs that inspect a mask.
struct ZelUIInputStruct
{
    zelWString mName;
    zelWString mText;
    ZelUIState mState;
};

/// A part that the user types or chooses a value in.
class ZELCORE_EXPORT ZelUIInput : public ZelUIItem
{
public:
    ZelUIInput();
    ~ZelUIInput() override;

    using ZelUIItem::setup;

    /// Takes mLowPriority from the choice that holds the variable, for the object of the last
    /// setData.
    virtual void setPriority(Meta *meta);
    /// The caller owns the result.
    virtual ZelUIInputStruct *toInputStruct() const;
    /// Reads `text` as the user would enter it and writes it to meta; `changed` tells whether the
    /// value differs from before. False for a text that can't be read: nothing changes.
    virtual bool setUserInput(Meta *meta, int64_t id, const zelWString &text, bool &changed);
    /// The value as text, as it is shown.
    virtual zelWString getRenderedData();

    void setData(Meta *meta, int64_t id) override;

    /// The value is shown in gray: another one of its choice is entered.
    bool mLowPriority = false;
    /// Not empty when the element takes part in a priority scheme: the name of the choice.
    zelWString mPriorityName;

protected:
    /// Object of the last setData.
    int64_t mLastId = 0;
    /// mPriorityName and mLowPriority for the variable, from meta. Both stay as they are for a
    /// variable that is in no choice by typing.
    void modelUpdatePriority(const Meta *meta, int64_t id);
    /// mPriorityName during a build.
    void modelTakePriorityName();
};
