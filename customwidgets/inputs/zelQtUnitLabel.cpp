#include "zelQtUnitLabel.h"

#include "zelQtContextMenu.h"
#include "zelQtConversions.h"
#include "zelQtLabelState_p.h"
#include "zelQtSameText_p.h"
#include "zelQtUnseenChange_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QContextMenuEvent>
#include <QPointer>

#include <algorithm>

ZelQtUnitLabel::ZelQtUnitLabel(QWidget *parent)
    : ZelQtLabel(parent)
{
}

ZelQtUnitLabel::ZelQtUnitLabel(const QString &unit, QWidget *parent)
    : ZelQtLabel(parent)
{
    setCurrentUnit(unit, false);
}

ZelQtUnitLabel::~ZelQtUnitLabel() = default;

QString ZelQtUnitLabel::currentUnit() const
{
    return toQString(getUnitString());
}

void ZelQtUnitLabel::setCurrentUnit(const QString &unit, bool flag)
{
    const ZelDimensions::Unit wanted = stringToUnit(unit);
    if (wanted != mCurrentUnit)
        setUnit(wanted, flag);
}

void ZelQtUnitLabel::checkUnit(const QString &unit, bool keep)
{
    checkUnit(stringToUnit(unit), keep);
}

void ZelQtUnitLabel::checkUnit(ZelDimensions::Unit unit, bool keep)
{
    setUnit(keep ? unit : ZelDimensions::defaultUnit(unit, true), false);
}

int ZelQtUnitLabel::absUnitWidth() const
{
    const std::vector<zelWString> units = getUnitStringList();
    if (units.empty())
        return plainTextWidth(currentUnit());
    int width = 0;
    for (const zelWString &unit : units)
        width = std::max(width, plainTextWidth(toQString(unit)));
    return width;
}

QSize ZelQtUnitLabel::sizeHint() const
{
    return naturalSize();
}

void ZelQtUnitLabel::setup(ZelUIMultiVar *variable, AttrMap &attributes)
{
    ZelUIUnitLabel::setup(variable, attributes);
    applyElementName(this, nullptr);
    updateUnit();
}

bool ZelQtUnitLabel::setUnit(ZelDimensions::Unit unit, bool defaultToo)
{
    const QString oldUnit = currentUnit();
    if (!ZelUIUnitLabel::setUnit(unit, defaultToo))
        return false;
    updateUnit();
    const QString newUnit = currentUnit();
    if (newUnit != oldUnit) {
        const QPointer<ZelQtUnitLabel> guard(this); // listeners may build the mask anew
        Q_EMIT unitChanged(newUnit);
        if (guard)
            Q_EMIT unitChanged(oldUnit, newUnit);
    }
    return true;
}

void ZelQtUnitLabel::updateState(Meta *meta, int64_t id)
{
    updateLabelState(this, meta, id);
}

void ZelQtUnitLabel::setData(Meta *meta, int64_t id)
{
    ZelUIUnitLabel::setData(meta, id);
    // Not only for a dynamic unit: the model takes the unit that the user chose earlier from meta.
    // A fresh mask, or another object, may show another one. Silent, like every refresh.
    if (!isSameText(text(), getUnitString().view()))
        updateUnit();
}

void ZelQtUnitLabel::updateUnit()
{
    changeMaybeUnseen(this, [this] { QLabel::setText(currentUnit()); });
}

void ZelQtUnitLabel::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse && mDefaultUnit != ZelDimensions::DynamicUnit) {
        // The mask may go while the menu is open, or because of the new unit.
        const QPointer<ZelQtUnitLabel> guard(this);
        const QString chosen = chosenInMenu(event->globalPos());
        if (guard && !chosen.isEmpty())
            setCurrentUnit(chosen, false);
        if (guard && !chosen.isEmpty())
            Q_EMIT changedByUser();
        if (!guard) {
            event->accept(); // else Qt asks the label for its parent
            return;
        }
    }
    // The parent receives the event as well, whatever the menu did.
    QWidget::contextMenuEvent(event);
}

QString ZelQtUnitLabel::chosenInMenu(const QPoint &globalPos)
{
    const std::vector<zelWString> units = getUnitStringList();
    if (units.empty())
        return QString();
    // On the heap: it goes with the label when that is deleted meanwhile.
    const QPointer<ZelQtContextMenu> menu(new ZelQtContextMenu(this));
    for (const zelWString &unit : units)
        menu->addAction(toQString(unit));
    const QAction *chosen = menu->exec(globalPos);
    const QString text = menu && chosen ? chosen->text() : QString();
    delete menu.data();
    return text;
}
