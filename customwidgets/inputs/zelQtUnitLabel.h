#pragma once

#include "zelQtLabel.h"
#include "zelUIUnitLabel.h"

/// The unit behind a value. Its context menu offers all units of the dimension.
class CUSTOMWIDGETS_EXPORT ZelQtUnitLabel : public ZelQtLabel, public ZelUIUnitLabel
{
    Q_OBJECT
    Q_PROPERTY(QString currentUnit READ currentUnit WRITE setCurrentUnit)

public:
    using ZelUIUnitLabel::setup; // the overload below would hide the inherited ones

    explicit ZelQtUnitLabel(QWidget *parent = nullptr);
    explicit ZelQtUnitLabel(const QString &unit, QWidget *parent = nullptr);
    ~ZelQtUnitLabel() override;

    /// The text on show, empty without unit.
    QString currentUnit() const;
    /// Takes another unit than the current one by setUnit(). The property writes with `flag` false.
    void setCurrentUnit(const QString &unit, bool flag = false);
    /// Takes `unit`, or without `keep` the default unit of its dimension in the unit system.
    void checkUnit(const QString &unit, bool keep);
    void checkUnit(ZelDimensions::Unit unit, bool keep);
    /// Shows the unit of the model. Silent.
    void updateUnit();
    /// Width in pixels that the widest unit of the dimension needs.
    int absUnitWidth() const;

    /// As high as the text asks for, not as high as a one-line widget.
    QSize sizeHint() const override;

    // ZelUIUnitLabel
    void setup(ZelUIMultiVar *variable, AttrMap &attributes) override;
    bool setUnit(ZelDimensions::Unit unit, bool defaultToo) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;

Q_SIGNALS:
    /// The text of the unit changed, by the user or by a program; the first form comes first.
    void unitChanged(QString newUnit);
    void unitChanged(QString oldUnit, QString newUnit);
    /// The user chose a unit in the menu, be it the current one. After unitChanged().
    void changedByUser();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QString chosenInMenu(const QPoint &globalPos);
};
