#pragma once

#include "customwidgets_export.h"
#include "zelQtParentWidget.h"

#include <QMap>
#include <QVector>

class QBoxLayout;
class QToolBox;
class ZelQtGroupBox;
class ZelQtToolBar;

/// A palette of tool bars in one of three looks. The window title of a bar is the title of its
/// group; it is taken over at retranslateStrings(). Bars and groups belong to the box.
class CUSTOMWIDGETS_EXPORT ZelQtElementBox : public ZelQtParentWidget
{
    Q_OBJECT

public:
    enum Style { GroupBoxes = 0, ToolBox = 1, ToolBars = 2 };

    /// One look for all boxes of the process. The application sets it before it builds a box; the
    /// library never writes it.
    static Style mStyle;

    explicit ZelQtElementBox(QWidget *parent = nullptr);
    ~ZelQtElementBox() override;

    /// A new group with one bar. `enabled` counts with group boxes only.
    ZelQtToolBar *createElementGroup(bool enabled);
    /// One group of several bars below each other, which takes its title from the first. Acts with
    /// group boxes only; the bars become the box's own.
    void createElementGroup(const QVector<ZelQtToolBar *> &bars, bool enabled);
    /// Closes the box: what is left of its room goes behind the last group.
    void finishLayout();

protected:
    void retranslateStrings() override;

private:
    QBoxLayout *addGroupBox(ZelQtToolBar *key, QBoxLayout *content, bool enabled);

    /// A box keeps the look that it was built with.
    const Style mOwnStyle;
    /// Null but in the style of that name.
    QToolBox *mToolBox = nullptr;
    QBoxLayout *mLayout = nullptr;
    QMap<ZelQtToolBar *, ZelQtGroupBox *> mGroupBoxes;
    QMap<ZelQtToolBar *, int> mToolBoxPages;
};
