#pragma once

#include "customwidgets_export.h"
#include "zelUITabContainer.h"

#include <QTabWidget>

/// Pages of a mask of which one shows. A page that the model hides leaves the tab bar and comes
/// back at its place; it stays alive meanwhile.
class CUSTOMWIDGETS_EXPORT ZelQtTabContainer : public QTabWidget, public ZelUITabContainer
{
    Q_OBJECT

public:
    using QTabWidget::addTab; // pages that are no part of the model

    explicit ZelQtTabContainer(QWidget *parent = nullptr);
    ~ZelQtTabContainer() override;

    // ZelUITabContainer
    /// Follows visible only.
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void addTab(ZelUITabPage *page) override;

protected:
    /// Brings the page of this index in the model back into the tab bar. One from the middle comes
    /// back only in front of a later page that is shown.
    void reinsertTab(int index);

protected Q_SLOTS:
    void updateTabText();
    void updateUiWidgets(int tabIndex);
};
