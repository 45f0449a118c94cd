#pragma once

#include "customwidgets_export.h"

#include <QMenu>

/// Base of the menus with texts of their own, which they set in retranslateStrings().
class CUSTOMWIDGETS_EXPORT ZelQtMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ZelQtMenu(QWidget *parent = nullptr);
    ~ZelQtMenu() override;

protected:
    /// Called at a change of the language, never by the constructor: subclasses call it themselves.
    virtual void retranslateStrings() = 0;
    void changeEvent(QEvent *event) override;
};
