#include "zelQtTabPage.h"

#include "zelQtConversions.h"
#include "zelQtModelParts_p.h"
#include "zelQtTopLayout.h"
#include "zelQtUiWidget.h"
#include "zelQtWidgetHelpers_p.h"
#include "zelUIBoard.h"
#include "zelUIExternalItem.h"

#include <QIcon>
#include <QTabWidget>

ZelQtTabPage::ZelQtTabPage(QWidget *parent)
    : ZelQtParentWidget(parent)
{
    setWindowIcon(QIcon()); // a page shows no icon in its tab
}

ZelQtTabPage::~ZelQtTabPage() = default;

QTabWidget *ZelQtTabPage::tabWidget() const
{
    return qobject_cast<QTabWidget *>(parentWidget());
}

void ZelQtTabPage::setup(const ZelDomNode *node)
{
    ZelUITabPage::setup(node);
    applyElementName(this, node);
}

// A page shows by way of its container, hence no setVisible() here.
void ZelQtTabPage::updateState(Meta *meta, int64_t id)
{
    ZelUIObject::updateState(meta, id);
}

// Tab containers keep their row as it is, unlike in the top layout.
void ZelQtTabPage::setData(Meta *meta, int64_t id)
{
    ZelUITabPage::setData(meta, id);
    auto *grid = qobject_cast<ZelQtTopLayout *>(layout());
    if (!grid)
        return;
    for (ZelUILayoutItem *item : mItems) {
        if (auto *board = dynamic_cast<ZelUIBoard *>(item))
            changeRowStretch(grid, board->row(), boardStretch(*board));
    }
}

void ZelQtTabPage::makeLayout()
{
    ZelUITabPage::makeLayout();
    if (mItems.empty())
        return;
    auto *grid = new ZelQtTopLayout;
    for (ZelUILayoutItem *item : mItems)
        placeLayoutItem(grid, item);
    const bool formAlone = mItems.size() == 1 && dynamic_cast<ZelUIExternalItem *>(mItems.front());
    if (!formAlone)
        grid->finishLayout();
    setLayout(grid);
}

void ZelQtTabPage::retranslate()
{
    ZelUITopLayout::retranslate();
    setWindowTitle(toQString(getTitle()));
}

void ZelQtTabPage::updateUiWidgets()
{
    const auto forms = findChildren<ZelQtUiWidget *>();
    for (ZelQtUiWidget *form : forms)
        form->setData();
}
