#pragma once

#include "customwidgets_export.h"
#include "zelUIEditButton.h"

#include <QStackedWidget>

class QAbstractButton;
class QLabel;
class ZelQtCheckBox;
class ZelQtRadioButton;

/// The small switch of an input line that decides whether its value is entered or computed. It
/// shows nothing, a check box or a radio button, and nothing while it is disabled. Radio buttons of
/// several lines don't exclude each other: that is left to the owner. Tab passes over the switch.
/// Both buttons take part in the confirmation protocol themselves, so that a host hears a click
/// twice; the signals of this class come once.
class CUSTOMWIDGETS_EXPORT ZelQtEditButton : public QStackedWidget, public ZelUIEditButton
{
    Q_OBJECT

public:
    using ZelUIEditButton::setup; // the overload below would hide the inherited ones

    /// Of the type CHECKBOX, while the empty page is on show.
    explicit ZelQtEditButton(QWidget *parent = nullptr);
    /// Visible from the start: without parent it opens a window.
    explicit ZelQtEditButton(ZelUIEditButtonType type, QWidget *parent = nullptr);
    ~ZelQtEditButton() override;

    ZelQtCheckBox *checkBoxWidget() const { return mCheckBox; }
    ZelQtRadioButton *radioButtonWidget() const { return mRadioButton; }
    /// False on the empty page.
    bool isChecked() const;
    /// Tips that tell what the switch is for; on at first. Without them both buttons have none.
    void enableDefaultToolTip(bool enable);

    QSize sizeHint() const override;

    // ZelUIEditButton
    void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;

public Q_SLOTS:
    /// Shows the page of the type, or hides the switch for HIDDEN.
    void setEditType(ZelUIEditButtonType type) override;
    /// No effect on the empty page. Tells toggled(), not valueChanged().
    void setChecked(bool checked);
    // Cut the switch's own notices to host and listeners, not those of its two buttons. There is no
    // way back.
    void disableValueChanged();
    void disableValueConfirmed();

Q_SIGNALS:
    void clicked();
    void toggled(bool checked);
    /// The user clicked: first the one, then the other, each after the host's.
    void valueChanged();
    void valueConfirmed();
    void checkBoxClicked(bool checked);
    void checkBoxToggled(bool checked);
    void radioButtonClicked(bool checked);
    void radioButtonToggled(bool checked);

protected:
    /// Sets the tips; called at a change of the language.
    virtual void retranslateStrings();
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();

private:
    template <class Clicked, class Toggled>
    void addButton(QAbstractButton *button, Clicked clickedSignal, Toggled toggledSignal);
    QAbstractButton *currentButton() const;
    void showPageOfType();

    QLabel *mLabel;
    ZelQtCheckBox *mCheckBox;
    ZelQtRadioButton *mRadioButton;
    bool mDefaultToolTip = true;
};
