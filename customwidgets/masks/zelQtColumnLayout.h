#pragma once

#include "customwidgets_export.h"
#include "zelUIColumn.h"
#include "zelUITypes.h"

#include <QGridLayout>

class QHBoxLayout;
class QSpacerItem;
class ZelUIEditButton;
class ZelUIInput;
class ZelUIStdButtonBox;

/// The column grid of a mask: all lines of a column stand on one grid, labels under labels, inputs
/// under inputs, units under units, icon buttons under icon buttons, whatever element each line
/// comes from. It is filled by the add operations in the order of the model and closed by one
/// finishLayout(); nothing is added after that. Parts of an element that are absent are skipped.
/// As every Qt layout it belongs to the widget or layout it is put into, and so do the parts.
class CUSTOMWIDGETS_EXPORT ZelQtColumnLayout : public QGridLayout, public ZelUIColumn
{
    Q_OBJECT

public:
    explicit ZelQtColumnLayout(QWidget *parent = nullptr);
    ~ZelQtColumnLayout() override;

    // ZelUIColumn
    /// Without a view the lines stick to the top, with one the view takes the height.
    void setData(Meta *meta, int64_t id) override;
    /// Graphics views count whatever element they come from.
    bool containsViews(bool visibleOnly) const override;
    bool containsExpandingViews(bool visibleOnly) const override;
    void addStdElement(ZelUIStdElement *element) override;
    void addMatElement(ZelUIMatElement *element) override;
    void addLubElement(ZelUILubElement *element) override;
    void addLSElement(ZelUILSElement *element) override;
    void addFileElement(ZelUIFileElement *element) override;
    void addTextElement(ZelUITextElement *element) override;
    void addFlagElement(ZelUIFlagElement *element) override;
    void addTableElement(ZelUITableElement *element, bool expanding, int span) override;
    void addViewElement(ZelUIViewElement *element, bool expanding, int span) override;
    void addNotepadElement(ZelUINotepadElement *element, bool expanding, int span) override;
    void addButtonElement(ZelUIButtonBox *element) override;
    void finishLayout() override;
    bool isContentVisible() override;

    void invalidate() override;

protected:
    /// Gives the box its buttons in a row and puts it, even when it is empty, into the column of
    /// the icon buttons, moved right by `columnOffset`.
    void addIconButtons(int row, int columnOffset, ZelUIStdButtonBox *box);
    /// True when the last item of the line is a push button: a separator may follow.
    static bool endsWithButton(QHBoxLayout *line);

private:
    int rowOfNewElement() const;
    void reserveStretch(bool expanding);
    void addSingleInput(int row, ZelUIInput *input, bool hasPrompt);
    void addTwoLineMaterial(int row, ZelUIMatElement *element);
    void addOneLineMaterial(int row, ZelUIMatElement *element);
    QHBoxLayout *tableButtons(ZelUITableElement *element) const;

    bool holdsGraphicsView() const;

    // The answer of holdsGraphicsView() for that many items; below 0 when it isn't known.
    mutable int mCountedItems = -1;
    mutable bool mHoldsGraphicsView = false;
    /// Null until finishLayout(); owned by the grid.
    QSpacerItem *mBottomSpacer = nullptr;
};
