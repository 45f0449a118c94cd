#pragma once

#include "zelAutoDirty.h"
#include "zelQtLineEdit.h"
#include "zelUIValueEdit.h"

class QValidator;

/// The field of one number. The model base holds the number in the default unit, the text shows it
/// in the current unit and is always made from it, never the other way round but for what the user
/// types. A disabled field shows nothing. A click with the right button opens a popup for a
/// formula, or for degrees, minutes and seconds where the current unit is degree.
class CUSTOMWIDGETS_EXPORT ZelQtValueEdit : public ZelQtLineEdit, public ZelUIValueEdit
{
    Q_OBJECT
    Q_PROPERTY(QString defaultUnit READ defaultUnitString WRITE setDefaultUnit)
    Q_PROPERTY(bool integer READ isOfTypeInteger WRITE setTypeToInteger)
    Q_PROPERTY(int decimals READ defaultDecimals WRITE setDefaultDecimals)

public:
    using ZelUIValueEdit::setup; // the overload below would hide the inherited ones

    /// Decimals of value fields and cells unless told otherwise.
    static constexpr short mDefaultDecimals = 4;

    explicit ZelQtValueEdit(QWidget *parent = nullptr);
    explicit ZelQtValueEdit(const QString &defaultUnit, QWidget *parent = nullptr);
    ZelQtValueEdit(const QString &defaultUnit, const QString &currentUnit,
                   QWidget *parent = nullptr);
    ~ZelQtValueEdit() override;

    // The number in `unit`, or in the default unit for an empty text. The integer forms truncate
    // toward zero and stop at the ends of their range. A listener of valueChanged() still reads the
    // number from before the keystroke; at valueConfirmed() it is final.
    void getWert(double &value, const QString &unit) const;
    void getWert(short &value, const QString &unit) const;
    void getWert(int &value, const QString &unit) const;
    /// Writes only what differs, and then sets the flag.
    void getWert(zelAutoDirty<double> &value, const QString &unit) const;
    /// Takes a number in `unit`, or in the default unit for an empty text, clamped to the limits.
    /// Silent.
    void setWert(double value, const QString &unit);
    /// Writes the text anew from the number. Silent.
    void updateWert();

    QString defaultUnitString() const;
    QString currentUnitString() const;
    void setDefaultUnit(ZelDimensions::Unit unit) override;
    /// Unlike the form above it leaves the shown text alone.
    void setDefaultUnit(const QString &unit);
    /// The text follows; what can be typed is still limited as in the former unit.
    void setCurrentUnit(ZelDimensions::Unit unit) override;
    void setCurrentUnit(const QString &unit);

    bool isOfTypeInteger() const;
    void setTypeToInteger(bool integer);
    /// Decimals of a real field, 0 for an integer one.
    int defaultDecimals() const;
    /// Ends scientific notation; no effect on an integer field.
    void setDefaultDecimals(int decimals);
    bool isScientificNotation() const;
    /// With mDefaultDecimals, whatever the field has; no effect on an integer field. Ends with the
    /// next update of the range.
    void setScientificNotation(bool on);

    void setRange(double bottom, double top, bool inCurrentUnit) override;
    void setBottom(double bottom) override;
    void setTop(double top) override;
    // What can be typed follows the limits of the model base.
    void updateRange();
    void updateBottom();
    void updateTop();

    bool hasLowPriority() const { return mLowPriority; }
    /// Low priority shows the number in gray.
    void setLowPriority(bool low);
    void updatePriority();
    /// 1 for an error and 2 for a warning colour the text until the next call; any other state
    /// gives the colour of the priority.
    void setMessageState(int state);
    /// With true the field shows its number while disabled, too.
    void setEnabledOverride(bool enabledOverride) { mEnabledOverride = enabledOverride; }

    // ZelUIValueEdit
    void setup(ZelUIMultiVar *variable, AttrMap &attributes, int component) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;
    void setPriority(Meta *meta) override;

    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows the number in another unit. Until the next updateRange() every number can be typed.
    void changeUnit(const QString &newUnit);

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void setEnteredValue(const QString &text);

private:
    // The popups report their result as an edit of the field.
    friend class ZelQtFormeleingabe;
    friend class ZelQtWinkeleingabe;

    void init();
    double valueIn(const QString &unit) const;
    void showText(const QString &text);
    void setTextColor(const QColor &color);

    void setIntValidator();
    void setDoubleValidator(int decimals, bool scientific);
    /// A real or integer validator, as the field is, with limits in the current unit.
    bool hasLimits(double bottom, double top) const;
    void setLimits(double bottom, double top);
    double validatorBottom() const;
    double validatorTop() const;
    double toCurrentUnit(double value) const;
    /// Deletes the former one.
    void replaceValidator(QValidator *validator);

    bool mEnabledOverride = false;
};
