#pragma once

#include "customwidgets_export.h"

#include <QStackedWidget>

/// A stack that can take its size from the page on show instead of from the largest one. With the
/// flag set it must hold a page.
class CUSTOMWIDGETS_EXPORT ZelQtStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ZelQtStackedWidget(QWidget *parent = nullptr);
    explicit ZelQtStackedWidget(bool sizeHintFlag, QWidget *parent = nullptr);
    ~ZelQtStackedWidget() override;

    bool sizeHintFlag() const { return mSizeHintFlag; }
    void setSizeHintFlag(bool flag) { mSizeHintFlag = flag; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    bool mSizeHintFlag = false;
};
