#include "zelQtElementBox.h"

#include "zelQtGroupBox.h"
#include "zelQtToolBar.h"

#include <QHBoxLayout>
#include <QToolBox>
#include <QVBoxLayout>

ZelQtElementBox::Style ZelQtElementBox::mStyle = ZelQtElementBox::GroupBoxes;

ZelQtElementBox::ZelQtElementBox(QWidget *parent)
    : ZelQtParentWidget(parent)
    , mOwnStyle(mStyle)
{
    if (mOwnStyle == ToolBars)
        mLayout = new QHBoxLayout(this);
    else
        mLayout = new QVBoxLayout(this);
    if (mOwnStyle == ToolBox) {
        mToolBox = new QToolBox(this);
        mLayout->addWidget(mToolBox);
    }
}

ZelQtElementBox::~ZelQtElementBox() = default;

ZelQtToolBar *ZelQtElementBox::createElementGroup(bool enabled)
{
    auto *bar = new ZelQtToolBar(this);
    switch (mOwnStyle) {
    case GroupBoxes:
        addGroupBox(bar, new QHBoxLayout, enabled)->addWidget(bar);
        break;
    case ToolBox:
        mToolBoxPages.insert(bar, mToolBox->addItem(bar, QString()));
        break;
    case ToolBars:
        if (mLayout->count() > 0)
            bar->addSeparator();
        mLayout->setSpacing(0);
        mLayout->setContentsMargins(0, 0, 0, 0);
        mLayout->addWidget(bar);
        break;
    }
    return bar;
}

void ZelQtElementBox::createElementGroup(const QVector<ZelQtToolBar *> &bars, bool enabled)
{
    if (mOwnStyle != GroupBoxes || bars.isEmpty())
        return;
    QBoxLayout *content = addGroupBox(bars.first(), new QVBoxLayout, enabled);
    for (ZelQtToolBar *bar : bars)
        content->addWidget(bar);
}

// Takes the content over as the layout of a new group and gives it back.
QBoxLayout *ZelQtElementBox::addGroupBox(ZelQtToolBar *key, QBoxLayout *content, bool enabled)
{
    auto *group = new ZelQtGroupBox(this);
    group->setEnabled(enabled);
    group->setFlat(true);
    content->setSpacing(0);
    content->setContentsMargins(0, 0, 0, 0);
    group->setLayout(content);
    mGroupBoxes.insert(key, group);
    mLayout->addWidget(group);
    return content;
}

void ZelQtElementBox::finishLayout()
{
    if (mOwnStyle == ToolBars)
        mLayout->addItem(new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    else
        mLayout->addItem(new QSpacerItem(20, 20, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void ZelQtElementBox::retranslateStrings()
{
    ZelQtParentWidget::retranslateStrings();
    for (auto it = mGroupBoxes.cbegin(); it != mGroupBoxes.cend(); ++it)
        it.value()->setTitle(it.key()->windowTitle());
    for (auto it = mToolBoxPages.cbegin(); it != mToolBoxPages.cend(); ++it)
        mToolBox->setItemText(it.value(), it.key()->windowTitle());
}
