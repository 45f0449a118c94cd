#pragma once

#include "zelUIContainer.h"

class ZelUIButtonBox;
class ZelUIFileElement;
class ZelUIFlagElement;
class ZelUILSElement;
class ZelUILubElement;
class ZelUIMatElement;
class ZelUINotepadElement;
class ZelUIStdElement;
class ZelUITableElement;
class ZelUITextElement;
class ZelUIViewElement;

struct ZelUIColumnStruct
{
    zelWString mName;
    int mElementCount = 0;
};

/// Lines below each other on one grid: label, symbol, input, edit button, unit, icon buttons. An
/// add operation takes the element into the column and makes its parts; a widget's override places
/// them afterwards. The column owns the elements that its own set-up made, all others belong to the
/// caller.
class ZELCORE_EXPORT ZelUIColumn : public ZelUIContainer
{
public:
    static constexpr int mFormulaCol = 1;
    static constexpr int mInputCol = 2;
    static constexpr int mEditCol = 3;
    static constexpr int mUnitCol = 4;
    static constexpr int mIconCol = 5;
    /// Count of columns that a line over the whole width spans.
    static constexpr int mColSpan = 6;

    ZelUIColumn();
    ~ZelUIColumn() override;

    using ZelUIContainer::setup;
    /// Makes an element for each node, adds it and ends with finishLayout().
    void setup(const ZelDomNode *node) override;

    /// Tables, pictures, diagrams, pages of text and expanding notepads; with `visibleOnly` only
    /// those that show.
    virtual bool containsViews(bool visibleOnly) const;
    virtual bool containsExpandingViews(bool visibleOnly) const;
    /// The caller owns the result.
    virtual ZelUIColumnStruct *toColumnStruct() const;
    virtual void addStdElement(ZelUIStdElement *element);
    virtual void addMatElement(ZelUIMatElement *element);
    virtual void addLubElement(ZelUILubElement *element);
    virtual void addLSElement(ZelUILSElement *element);
    virtual void addFileElement(ZelUIFileElement *element);
    virtual void addTextElement(ZelUITextElement *element);
    virtual void addFlagElement(ZelUIFlagElement *element);
    /// `span` counts grid columns; an expanding one takes the room that is left.
    virtual void addTableElement(ZelUITableElement *element, bool expanding, int span);
    virtual void addViewElement(ZelUIViewElement *element, bool expanding, int span);
    virtual void addNotepadElement(ZelUINotepadElement *element, bool expanding, int span);
    virtual void addButtonElement(ZelUIButtonBox *element);
    virtual void finishLayout();
    /// True when some element of the column shows.
    virtual bool isContentVisible();

protected:
    void modelForget(ZelUIObject *child) override;
    int elemCount() const { return static_cast<int>(modelElements().size()); }

private:
    struct View
    {
        const ZelUIElement *mElement;
        bool mExpanding;
    };

    void takeElement(ZelUIElement *element);
    bool containsView(bool expandingOnly, bool visibleOnly) const;

    std::vector<std::unique_ptr<ZelUIElement>> mOwned;
    std::vector<View> mViews;
    friend class ZelUiColumnBuilder;
};
