#pragma once

#include "customwidgets_export.h"
#include "zelQtAuthorItInterface.h"

#include <QDialog>

/// Host of a mask that is a dialog. Beside what a page does it has F5, which calculates, and F6,
/// which writes the report.
class CUSTOMWIDGETS_EXPORT ZelQtParentDialog : public QDialog, public ZelQtAuthorItInterface
{
    Q_OBJECT

public:
    /// Removes all override cursors.
    explicit ZelQtParentDialog(QWidget *parent = nullptr,
                               Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelQtParentDialog() override;

    /// The composite inputs below take the default units of the unit system, with `keepDefault`
    /// those of their variables.
    virtual void updateUnitSystem(bool keepDefault);

    /// Wires the first ZelQtDialogButtonBox below the dialog: accept, reject, calculate, report,
    /// and this dialog's valueChanged() to its forbidAccept(). To be called once the form is built.
    void setupDialogButtonBox();

Q_SIGNALS:
    /// A value of the mask changed by the user; editing may go on. Raised before the signal of the
    /// widget itself.
    void valueChanged();
    /// Editing of a value was committed. Raised before the signal of the widget itself.
    void valueConfirmed();
    /// The user asked for the info topic of a number, or of a file.
    void infoChanged(int id);
    void infoChanged(QString file);
    /// The user pressed F1; the file is empty when nothing in focus has a topic.
    void helpChanged(QString file);
    /// The dialog was translated. Raised by the application.
    void retranslated();

public Q_SLOTS:
    /// F5 and the button "Berechnen". Empty here.
    virtual void calculate();
    /// F6 and the button "Protokoll". Empty here.
    virtual void createProtokoll();
    // Each raises the signal of the same name, so that children can be wired to the host.
    void emitValueChanged();
    void emitValueConfirmed();
    void emitInfoChanged(int id);
    void emitInfoChanged(QString file);
    void emitHelpChanged(QString file);

protected:
    /// For subclasses that give their widgets help codes; empty here, nobody calls it but they.
    virtual void setAuthorItCodes();
    /// Aligns the composite inputs below.
    virtual void resizeLayout();
    /// Called at a change of the language, before resizeLayout(); may run twice for one change.
    virtual void retranslateStrings();

    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// A click on the free surface commits the edit under way, since a field keeps its focus then.
    void mousePressEvent(QMouseEvent *event) override;

private:
    void alignLines();

    bool mAligning = false;
};
