#pragma once

#include "customwidgets_export.h"

#include <QDialog>

class QDialogButtonBox;
class QVBoxLayout;

/// A ready-made dialog with a row of buttons, for one widget or a few and a question. It is no host
/// and has no help topic.
class CUSTOMWIDGETS_EXPORT ZelQtDialog : public QDialog
{
    Q_OBJECT

public:
    /// Ok and Cancel. Removes all override cursors.
    explicit ZelQtDialog(QWidget *parent = nullptr);
    explicit ZelQtDialog(const QString &title, QWidget *parent = nullptr);
    ~ZelQtDialog() override;

    /// Puts the widget below those before, above the buttons; the dialog becomes its parent.
    void add(QWidget *widget);
    void useCancelButtonOnly();
    void useAbortButtonOnly();
    void setCenterButtons(bool center);
    /// The number of the ZelQtTarvexResultButton that closed the dialog, -1 until then.
    int tarvexResult() const { return mTarvexResult; }

public Q_SLOTS:
    /// For the clicked() of a ZelQtTarvexResultButton: keeps its number and accepts. Nothing for
    /// another sender.
    void acceptTarvexResultButton();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void init();
    void useSingleButton(int button);

    QDialogButtonBox *mButtonBox = nullptr;
    QVBoxLayout *mLayout = nullptr;
    int mTarvexResult = -1;
};
