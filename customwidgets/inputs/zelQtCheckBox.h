#pragma once

#include "customwidgets_export.h"
#include "zelQtAuthorItInterface.h"

#include <QCheckBox>

/// A plain check box with a help code, for masks that are built by hand; ZelQtFlag is the one of
/// the model. One click is a whole edit: changed and confirmed at once.
class CUSTOMWIDGETS_EXPORT ZelQtCheckBox : public QCheckBox, public ZelQtAuthorItInterface
{
    Q_OBJECT

public:
    explicit ZelQtCheckBox(QWidget *parent = nullptr);
    explicit ZelQtCheckBox(const QString &text, QWidget *parent = nullptr);
    ~ZelQtCheckBox() override;

    bool isActive() const { return mActive; }
    bool isEditable() const { return isEnabled(); }
    /// A flag for the application; true at first. The library doesn't look at it.
    bool useTarvexStyle() const { return mTarvexStyle; }

    QSize sizeHint() const override;

public Q_SLOTS:
    /// An inactive toggle has no check state and can't be checked, but stays enabled.
    void setActive(bool active);
    void setEditable(bool editable);
    void setTarvexStyle(bool tarvex);
    /// From now on a click is only confirmed. There is no way back.
    void disableValueChanged();
    /// Unchecks itself when `clicked` is true: wire it to the clicked() of a toggle that excludes
    /// it.
    void reactOnGroupClick(bool clicked);

Q_SIGNALS:
    /// The user clicked: first the one, then the other, each after the host's. Silent when a
    /// program checks it.
    void valueChanged();
    void valueConfirmed();

private Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();

private:
    bool mActive = true;
    bool mTarvexStyle = true;
};
