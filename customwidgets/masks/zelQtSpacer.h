#pragma once

#include "customwidgets_export.h"
#include "zelUISpacer.h"

#include <QLabel>

/// Holds the edit column open in lines without an edit button. It shows nothing itself.
class CUSTOMWIDGETS_EXPORT ZelQtSpacer : public QLabel, public ZelUISpacer
{
    Q_OBJECT

public:
    using ZelUISpacer::updateState; // the element's own flags come by the override below

    explicit ZelQtSpacer(QWidget *parent = nullptr);
    ~ZelQtSpacer() override;

    // ZelUISpacer
    void updateState(ZelUIState state) override;
};
