#pragma once

#include "customwidgets_export.h"
#include "zelAutoDirty.h"
#include "zelQtAuthorItInterface.h"
#include "zelQtCalcVarInput.h"

class QLabel;
class ZelQtValueEdit;

/// A line with one number. Numbers go in and come out in the unit that is named, an empty text
/// stands for the default unit. Writing by the program reports nothing.
class CUSTOMWIDGETS_EXPORT ZelQtSingleCalcVarInput : public ZelQtCalcVarInput,
                                                     public ZelQtAuthorItInterface
{
    Q_OBJECT
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    Q_PROPERTY(bool integer READ isOfTypeInteger WRITE setTypeToInteger)
    Q_PROPERTY(int decimals READ defaultDecimals WRITE setDefaultDecimals)

public:
    explicit ZelQtSingleCalcVarInput(QWidget *parent = nullptr);
    ~ZelQtSingleCalcVarInput() override;

    virtual void setTypeToInteger(bool integer);
    virtual void setDefaultDecimals(int decimals);
    /// The virtual setDefaultDecimals().
    virtual void setDecimals(int decimals);

    // The whole-number forms truncate toward zero and stop at the ends of their range.
    void getWert(short &value, const QString &unit) const;
    void getWert(int &value, const QString &unit) const;
    void getWert(unsigned int &value, const QString &unit) const;
    void getWert(double &value, const QString &unit) const;
    /// Writes only what differs, and sets the flag of the value then.
    void getWert(zelAutoDirty<double> &value, const QString &unit) const;
    void setWert(double value, const QString &unit) const;

    bool isOfTypeInteger() const;
    int defaultDecimals() const;
    /// Limits in the default unit.
    void setRange(double bottom, double top) const;
    double bottom() const;
    double top() const;
    void setBottom(double bottom) const;
    void setTop(double top) const;

    // ZelQtCalcVarInput
    QString defaultUnit() override;
    void setDefaultUnit(const QString &unit) override;
    bool isEditable() const override;
    void disableValueChanged() override;
    void disableValueConfirmed() override;

public Q_SLOTS:
    /// An inactive field is empty, and stays so when it becomes active again.
    void setActive(bool active);
    /// 1 marks an error, 2 a warning, anything else nothing.
    void setMessageState(int state);

Q_SIGNALS:
    /// The field was left, or Return pressed in it, whether or not its value changed.
    void editingFinished();

protected Q_SLOTS:
    void changeInputUnit(const QString &unit) override;
    void setInputEditable(bool editable) override;

protected:
    int inputWidth() const override;
    void adjustInputWidth(int width) override;

    /// Inserts a field in front of the unit and lets it speak for the line.
    ZelQtValueEdit *insertField(int index);

    QLabel *mLeftPad = nullptr;
    QLabel *mRightPad = nullptr;
    ZelQtValueEdit *mInput;
};
