#pragma once

#include "customwidgets_export.h"
#include "zelQtParentWidget.h"
#include "zelUITabPage.h"

class QTabWidget;

/// One page of a mask, and the host of its widgets. Its text in the tab bar is its window title,
/// which follows the model's title at retranslate().
class CUSTOMWIDGETS_EXPORT ZelQtTabPage : public ZelQtParentWidget, public ZelUITabPage
{
    Q_OBJECT

public:
    using ZelQtParentWidget::setAuthorItCode; // F1 reads the host's code, not the model's
    using ZelUITabPage::setup; // the override below would hide the inherited ones

    explicit ZelQtTabPage(QWidget *parent = nullptr);
    ~ZelQtTabPage() override;

    /// The direct parent, if that is a tab widget; otherwise null, also for a page that stands as a
    /// tab in one, since Qt puts a stack between the two.
    QTabWidget *tabWidget() const;

    // ZelUITabPage
    void setup(const ZelDomNode *node) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    /// Sets the items of the page into a grid. A page without items has no layout, and a form that
    /// is the only item takes the whole page.
    void makeLayout() override;
    void retranslate() override;

public Q_SLOTS:
    /// Refills the forms on the page, at any depth.
    void updateUiWidgets();
};
