#pragma once

#include "customwidgets_export.h"
#include "zelUISpinBox.h"

#include <QDoubleSpinBox>

/// A number that is changed in steps. It counts in the default unit of its variable and converts
/// nothing. Every change by the user, each keystroke included, is a whole edit: changed and
/// confirmed at once; an update-blocking variable changes nothing in that. There is no read-only
/// state.
class CUSTOMWIDGETS_EXPORT ZelQtSpinBox : public QDoubleSpinBox, public ZelUISpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::setRange; // beside the own form with three arguments
    using ZelUISpinBox::setup; // the overload below would hide the inherited ones

    explicit ZelQtSpinBox(QWidget *parent = nullptr, double value = 0);
    ~ZelQtSpinBox() override;

    // The number on show; truncated, and limited to the range of the type.
    void getWert(short &value) const;
    void getWert(int &value) const;
    void getWert(double &value) const;
    /// Shows the number, or the nearest one that range and decimals allow; the model keeps it as it
    /// is. Silent.
    void setWert(int value);
    /// Shows the number of the model, silently. disableValueChanged() and disableValueConfirmed()
    /// no longer hold afterwards.
    void updateWert();
    /// Standard width instead of that of the content; fixed size policy with `use`, else preferred
    /// in both directions.
    void setOurStdWidth(bool use);
    /// Width of 50 average characters, which wins over the standard width. The size policy stays.
    void setOurMaxWidth(bool use);

    QSize sizeHint() const override;

    // ZelUISpinBox
    void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component, double step) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;
    /// The box takes both limits as they are. Silent, even where they move the number.
    /// setBottom() and setTop() leave the box alone.
    void setRange(double bottom, double top, bool inCurrentUnit) override;
    void setStep(double step) override;

public Q_SLOTS:
    // Until the next updateWert().
    void disableValueChanged();
    void disableValueConfirmed();

Q_SIGNALS:
    /// The user changed the number: first the one, then the other, each after the host's.
    void valueChanged();
    void valueConfirmed();

protected Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();

private:
    bool mOurStdWidth = false;
    bool mOurMaxWidth = false;
    bool mSilent = false;
};
