#pragma once

#include "customwidgets_export.h"

#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>

#include <array>

class QMenu;
class ZelQtParentDialog;

/// The row of buttons of a calculating dialog. The mode says which buttons there are. As soon as a
/// value of the dialog changes, accepting and everything that rests on the last results is
/// forbidden, until the application permits it after a successful calculation.
/// Beside the standard buttons there are nine own ones, which live as long as the box: those that
/// the mode does not show are hidden and outside of it.
class CUSTOMWIDGETS_EXPORT ZelQtDialogButtonBox : public QDialogButtonBox
{
    Q_OBJECT
    /// Default: OK_CANCEL.
    Q_PROPERTY(Mode mode READ mode WRITE setMode)

public:
    enum Mode : int {
        STANDARD = 0,
        OK_CANCEL = 1,
        CLOSE = 2,
        CALC_OK_CANCEL = 3,
        CALC_CLOSE = 4,
        CALC_DEL_OK_CANCEL = 5,
        CALC_REP_DEL_OK_CANCEL = 6,
        CALC_REP_OK_CANCEL = 7,
        CALC_REP_CLOSE = 8,
        EDIT = 9,
        SHOW = 10,
        CALC_REP_SAVE_CLOSE = 11,
        ACCEPT_CALC_REP_SAVE_CLOSE = 12
    };
    Q_ENUM(Mode)

    explicit ZelQtDialogButtonBox(QWidget *parent = nullptr);
    explicit ZelQtDialogButtonBox(Mode mode, QWidget *parent = nullptr);
    /// Deletes the own buttons, shown or not.
    ~ZelQtDialogButtonBox() override;

    /// STANDARD for an unknown name; upper and lower case count.
    static Mode mode(const QString &name);
    Mode mode() const { return mMode; }
    /// With Close for SHOW, and Ok and Cancel for EDIT.
    void setMode(Mode mode);
    /// Shows the buttons of the mode, each as it starts: no enabled state is kept. The standard
    /// buttons count in the modes EDIT and SHOW only.
    void setMode(Mode mode, QDialogButtonBox::StandardButtons standardButtons);

    /// Connects the buttons to the dialog's operations, and its valueChanged() to forbidAccept().
    /// Each call connects anew.
    void setupConnections(ZelQtParentDialog *dialog) const;
    /// An empty menu for the own accept button; the caller fills it, the button deletes it.
    QMenu *addAcceptMenu();
    /// A further button with the action role, owned by the box. The caller gives it its text.
    QPushButton *addActionButton();

    /// The standard Ok button if there is one, else the own accept button.
    QPushButton *acceptButton() const;
    QPushButton *deleteButton() const { return mButtons[Delete]; }
    QPushButton *graphicsButton() const { return mButtons[Graphic]; }
    QPushButton *reportButton() const { return mButtons[Report]; }
    QPushButton *calcButton() const { return mButtons[Calc]; }
    QPushButton *saveButton() const { return mButtons[Save]; }
    QPushButton *openButton() const { return mButtons[Open]; }
    /// True only in a mode with a report, while its button is enabled.
    bool isReportPermitted() const;

Q_SIGNALS:
    // The user clicked the button of that name.
    void deleteClicked();
    void calculateClicked();
    void editClicked();
    void showClicked();
    void graphicClicked();
    void reportClicked();
    void saveClicked();
    void openClicked();

public Q_SLOTS:
    /// Enables accept, delete, graphic, report and save; to be called after the last setData() of a
    /// successful calculation, since some fields report what they are given as a change.
    void permitAccept();
    /// Disables the same five, those that do not show included.
    void forbidAccept();
    void useCloseInsteadOfOKCancel();
    void setAcceptEnabled(bool enabled);
    /// Shows the button, disabled; so do the other slots ending in Visible where nothing else is
    /// said.
    void setDeleteVisible();
    void setDeleteEnabled(bool enabled);
    void setGraphicVisible();
    void setGraphicEnabled(bool enabled);
    void setReportVisible();
    void setReportEnabled(bool enabled);
    void setEditEnabled(bool enabled);
    void setShowEnabled(bool enabled);
    void setSaveVisible();
    void setSaveEnabled(bool enabled);
    /// Enabled at once. With `restore` its text is "Wiederherstellen" from then on.
    void setOpenVisible(bool restore = false);
    /// Turns a plain box into a calculating one: the standard Ok button goes, and unless
    /// `skipAccept` the own accept button comes, disabled, in its place.
    void setCalcVisible(bool skipAccept = false);
    void setCalcEnabled(bool enabled);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    enum Own { Accept, Delete, Graphic, Report, Calc, Edit, Show, Save, Open, OwnCount };
    struct OwnButton
    {
        Own mButton;
        bool mEnabled;
    };
    struct ModeButtons;

    void initButtons();
    void retranslateStrings();
    void takeOwnButtonsOut();
    void showOwnButton(Own button, bool enabled);
    void makeDefault(QPushButton *button);
    void setPermitted(bool permitted);
    static const ModeButtons *buttonsOf(Mode mode);

    Mode mMode = OK_CANCEL;
    std::array<QPushButton *, OwnCount> mButtons = {};
    /// The default button of the mode until the box shows.
    QPointer<QPushButton> mUnshownDefault;
};
