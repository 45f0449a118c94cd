#pragma once

#include "zelQtDoubleCalcVarInput.h"

/// A line with three numbers of one unit. Tab goes from the first field to the third and then to
/// the second.
class CUSTOMWIDGETS_EXPORT ZelQtTripleCalcVarInput : public ZelQtDoubleCalcVarInput
{
    Q_OBJECT

public:
    explicit ZelQtTripleCalcVarInput(QWidget *parent = nullptr);
    ~ZelQtTripleCalcVarInput() override;

    using ZelQtDoubleCalcVarInput::getWert;
    using ZelQtDoubleCalcVarInput::setActive;
    using ZelQtDoubleCalcVarInput::setMessageState;
    using ZelQtDoubleCalcVarInput::setWert;

    void getWert(double &first, double &second, double &third, const QString &unit) const;
    void getWert(short &first, short &second, short &third, const QString &unit) const;
    void setWert(double first, double second, double third, const QString &unit);
    void getWert3(double &third, const QString &unit) const;
    void getWert3(short &third, const QString &unit) const;
    void setWert3(double third, const QString &unit);
    void setCurrentUnit(const QString &unit);

    // ZelQtDoubleCalcVarInput. The two disable operations are those of the double line: the third
    // field goes on speaking.
    void setDefaultUnit(const QString &unit) override;
    void setTypeToInteger(bool integer) override;
    void setDefaultDecimals(int decimals) override;
    bool isEditable() const override;

public Q_SLOTS:
    /// Misuse, as in the double line, only when the first field differs from both others.
    void setEditable(bool editable);
    // The form for two fields is not offered: it would leave out the third.
    void setEditable(bool first, bool second, bool third);
    void setActive(bool first, bool second, bool third);
    /// The third state goes to the second field, after the second one.
    void setMessageState(int first, int second, int third);
    /// Which fields follow the edit button. None is misuse.
    void setReactToToggle(bool first, bool second, bool third);

    int lowPriorityIndex() const;
    void setLowPriorityIndex(int index);
    /// Typing makes both other fields gray.
    void updateLowPriorityIndex();
    int highPriorityIndex() const;
    /// Makes exactly one field gray, the opposite one: 0 the third, 1 the second, 2 the first.
    void setHighPriorityIndex(int index);
    void setHighPriorityWidget(ZelQtValueEdit *field);

protected Q_SLOTS:
    void setInputEditable(bool editable) override;

protected:
    int inputWidth() const override;

    bool mReact3 = true;
    ZelQtValueEdit *mInput3;

private:
    QVector<ZelQtValueEdit *> fields() const { return {mInput, mInput2, mInput3}; }
    void followTyping(bool follow);
};
