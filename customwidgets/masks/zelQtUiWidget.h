#pragma once

#include "customwidgets_export.h"
#include "zelQtParentWidget.h"
#include "zelUIExternalItem.h"

/// A form written by hand that stands in a mask built from a description. A subclass makes its
/// widgets and moves its data itself: setData() runs whenever the tab with the form comes to the
/// front, getData() when the application asks. The model's own walk reaches neither of the two. A
/// change of the language reaches the form by retranslate() of the mask alone, so that a form whose
/// widths depend on texts calls resizeLayout() in its retranslateStrings().
class CUSTOMWIDGETS_EXPORT ZelQtUiWidget : public ZelQtParentWidget, public ZelUIExternalItem
{
    Q_OBJECT

public:
    using ZelQtParentWidget::setAuthorItCode; // F1 reads the host's code, not the model's
    using ZelUIContainer::getData; // the slots without arguments would hide the model's walk
    using ZelUIContainer::setData;
    using ZelUIExternalItem::setup; // the override below would hide the inherited ones

    explicit ZelQtUiWidget(QWidget *parent = nullptr);
    explicit ZelQtUiWidget(int authorItCode, QWidget *parent = nullptr);
    ~ZelQtUiWidget() override;

    // ZelUIExternalItem
    /// Keeps the help code of the constructor where the description gives none.
    void setup(const ZelDomNode *node) override;
    /// Follows enabled and visible. Read-only is for the subclass to heed, in setData().
    void updateState(Meta *meta, int64_t id) override;

public Q_SLOTS:
    /// Fills the form. May run while the mask is still being built, at the first tab of a
    /// container.
    virtual void setData() = 0;
    /// Reads the form.
    virtual void getData() = 0;
    /// Calls retranslateStrings().
    void retranslate() override;

protected:
    void changeEvent(QEvent *event) override;
};
