#include "zelQtTabContainer.h"

#include "zelQtConversions.h"
#include "zelQtTabPage.h"

namespace {

QString titleOf(const ZelUITabPage *page)
{
    return toQString(page->getTitle());
}

} // namespace

ZelQtTabContainer::ZelQtTabContainer(QWidget *parent)
    : QTabWidget(parent)
{
    connect(this, &QTabWidget::currentChanged, this, &ZelQtTabContainer::updateUiWidgets);
}

ZelQtTabContainer::~ZelQtTabContainer() = default;

void ZelQtTabContainer::updateState(Meta *meta, int64_t id)
{
    ZelUIObject::updateState(meta, id);
    setVisible(mVisible);
}

void ZelQtTabContainer::setData(Meta *meta, int64_t id)
{
    ZelUITabContainer::setData(meta, id);
    for (size_t i = 0; i < mPages.size(); ++i) {
        auto *widget = dynamic_cast<QWidget *>(mPages[i]);
        if (!widget)
            continue;
        const int shown = indexOf(widget);
        const bool visible = mPages[i]->state().mVisible;
        if (visible && shown < 0)
            reinsertTab(static_cast<int>(i));
        else if (!visible && shown >= 0)
            removeTab(shown);
    }
}

void ZelQtTabContainer::addTab(ZelUITabPage *page)
{
    ZelUITabContainer::addTab(page);
    auto *widget = dynamic_cast<QWidget *>(page);
    if (!widget)
        return;
    QTabWidget::addTab(widget, titleOf(page));
    connect(widget, &QWidget::windowTitleChanged, this, &ZelQtTabContainer::updateTabText);
}

void ZelQtTabContainer::reinsertTab(int index)
{
    const int count = static_cast<int>(mPages.size());
    if (index < 0 || index >= count)
        return;
    ZelUITabPage *page = mPages[static_cast<size_t>(index)];
    auto *widget = dynamic_cast<QWidget *>(page);
    if (!widget || indexOf(widget) >= 0)
        return;
    if (index == 0) {
        insertTab(0, widget, titleOf(page));
        return;
    }
    if (index == count - 1) {
        QTabWidget::addTab(widget, titleOf(page));
        return;
    }
    // Without a later page on show this one waits for the next setData(), and that is meant.
    for (int later = index + 1; later < count; ++later) {
        auto *laterWidget = dynamic_cast<QWidget *>(mPages[static_cast<size_t>(later)]);
        const int shown = laterWidget ? indexOf(laterWidget) : -1;
        if (shown >= 0) {
            insertTab(shown, widget, titleOf(page));
            return;
        }
    }
}

void ZelQtTabContainer::updateTabText()
{
    auto *page = qobject_cast<QWidget *>(sender());
    const int shown = page ? indexOf(page) : -1;
    if (shown >= 0)
        setTabText(shown, page->windowTitle());
}

void ZelQtTabContainer::updateUiWidgets(int tabIndex)
{
    if (auto *page = qobject_cast<ZelQtTabPage *>(widget(tabIndex)))
        page->updateUiWidgets();
}
