#pragma once

#include "zelQtSingleCalcVarInput.h"

/// A line with two numbers of one unit. With a priority set, the field that the user did not type
/// in last is shown in gray.
class CUSTOMWIDGETS_EXPORT ZelQtDoubleCalcVarInput : public ZelQtSingleCalcVarInput
{
    Q_OBJECT

public:
    explicit ZelQtDoubleCalcVarInput(QWidget *parent = nullptr);
    ~ZelQtDoubleCalcVarInput() override;

    using ZelQtSingleCalcVarInput::getWert;
    using ZelQtSingleCalcVarInput::setActive;
    using ZelQtSingleCalcVarInput::setMessageState;
    using ZelQtSingleCalcVarInput::setWert;

    void getWert(double &first, double &second, const QString &unit) const;
    void getWert(zelAutoDirty<double> &first, zelAutoDirty<double> &second,
                 const QString &unit) const;
    void getWert(short &first, short &second, const QString &unit) const;
    void setWert(double first, double second, const QString &unit);
    void getWert2(double &second, const QString &unit) const;
    void getWert2(short &second, const QString &unit) const;
    void setWert2(double second, const QString &unit);
    void setCurrentUnit(const QString &unit);

    // ZelQtSingleCalcVarInput
    void setDefaultUnit(const QString &unit) override;
    void setTypeToInteger(bool integer) override;
    void setDefaultDecimals(int decimals) override;
    bool isEditable() const override;
    void disableValueChanged() override;
    void disableValueConfirmed() override;

public Q_SLOTS:
    /// Throws std::logic_error when the fields follow the edit button differently; reached by a
    /// signal it reports that to internMessage instead. Nothing changes then.
    void setEditable(bool editable);
    /// The field that follows the edit button, the first one if both do, decides the check mark.
    void setEditable(bool first, bool second);
    void setActive(bool first, bool second);
    void setMessageState(int first, int second);
    /// Which fields follow the edit button. None is misuse, reported as by setEditable().
    void setReactToToggle(bool first, bool second);

    /// Index of the first gray field, -1 for none.
    int lowPriorityIndex() const;
    /// Makes a field gray and lets typing move the gray from then on; -1 ends that.
    void setLowPriorityIndex(int index);
    void updateLowPriorityIndex();
    int highPriorityIndex() const;
    /// Makes the other field gray; an index that is none ends the scheme.
    void setHighPriorityIndex(int index);
    /// Nothing for a field of another line.
    void setHighPriorityWidget(ZelQtValueEdit *field);

protected Q_SLOTS:
    void setInputEditable(bool editable) override;

protected:
    int inputWidth() const override;
    void adjustInputWidth(int width) override;

    /// Misuse of the line: throws, or reports where a signal leads here and an exception would end
    /// the program.
    void misuse(const char *text, const char *file, long line) const;
    /// Shows a field in another unit; the value stays.
    static void showInUnit(ZelQtValueEdit *field, const QString &unit);

    bool mReact1 = true;
    bool mReact2 = true;
    ZelQtValueEdit *mInput2;

private:
    QVector<ZelQtValueEdit *> fields() const { return {mInput, mInput2}; }
    void followTyping(bool follow);
};
