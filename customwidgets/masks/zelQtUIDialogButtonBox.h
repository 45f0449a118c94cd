#pragma once

#include "customwidgets_export.h"
#include "zelUIDialogButtonBox.h"

#include <QDialogButtonBox>

/// The row of buttons of a dialog whose description chooses them. Buttons that were added belong to
/// the box.
class CUSTOMWIDGETS_EXPORT ZelQtUIDialogButtonBox : public QDialogButtonBox,
                                                    public ZelUIDialogButtonBox
{
    Q_OBJECT

public:
    using ZelUIDialogButtonBox::setup; // the model base's alone: the box has no name of its own

    explicit ZelQtUIDialogButtonBox(QWidget *parent = nullptr);
    ~ZelQtUIDialogButtonBox() override;

    // ZelUIDialogButtonBox
    int addPushButton(ZelUIPushButton *button, ZelUIDialogButtonBox::ButtonRole role) override;

public Q_SLOTS:
    /// To be connected to a failed calculation; what becomes of the buttons is up to the model.
    void setCalcStateFailed();
};
