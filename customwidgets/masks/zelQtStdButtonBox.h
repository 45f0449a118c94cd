#pragma once

#include "customwidgets_export.h"
#include "zelUIStdButtonBox.h"

#include <QWidget>

/// The icon buttons at the end of a line. The column grid gives it the layout with its buttons.
class CUSTOMWIDGETS_EXPORT ZelQtStdButtonBox : public QWidget, public ZelUIStdButtonBox
{
    Q_OBJECT

public:
    using ZelUIStdButtonBox::updateState; // the override below would hide the inherited ones

    explicit ZelQtStdButtonBox(QWidget *parent = nullptr);
    ~ZelQtStdButtonBox() override;

    // ZelUIStdButtonBox
    void updateState(bool visible) override;
};
