#pragma once

#include "zelQtMenu.h"

/// A context menu that is filled when it is shown and so has no texts to translate.
class CUSTOMWIDGETS_EXPORT ZelQtContextMenu : public ZelQtMenu
{
    Q_OBJECT

public:
    explicit ZelQtContextMenu(QWidget *parent = nullptr);
    ~ZelQtContextMenu() override;

protected:
    void retranslateStrings() override;
};
