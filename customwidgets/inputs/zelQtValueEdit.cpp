#include "zelQtValueEdit.h"

#include "isDifferent.h"
#include "runde.h"
#include "zelQtConversions.h"
#include "zelQtDefaultDecimals_p.h"
#include "zelQtFormeleingabe.h"
#include "zelQtOwnPopup_p.h"
#include "zelQtSaturate_p.h"
#include "zelQtUnseenChange_p.h"
#include "zelQtWidgetHelpers_p.h"
#include "zelQtWinkeleingabe.h"
#include "zelUIMultiVar.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleValidator>

#include <algorithm>

static_assert(ZelQtValueEdit::mDefaultDecimals == zelQtDefaultDecimals);

namespace {

// Set for the field itself, and not only taken over from the application.
bool hasColor(const QPalette &colors, const QColor &color)
{
    const auto groups = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};
    return std::all_of(groups.begin(), groups.end(), [&](QPalette::ColorGroup group) {
        return colors.isBrushSet(group, QPalette::Text)
            && colors.brush(group, QPalette::Text) == QBrush(color);
    });
}

} // namespace

ZelQtValueEdit::ZelQtValueEdit(QWidget *parent)
    : ZelQtLineEdit(parent)
{
    init();
}

ZelQtValueEdit::ZelQtValueEdit(const QString &defaultUnit, QWidget *parent)
    : ZelQtLineEdit(parent)
    , ZelUIValueEdit(stringToUnit(defaultUnit))
{
    init();
}

ZelQtValueEdit::ZelQtValueEdit(const QString &defaultUnit, const QString &currentUnit,
                               QWidget *parent)
    : ZelQtLineEdit(parent)
    , ZelUIValueEdit(stringToUnit(defaultUnit), stringToUnit(currentUnit))
{
    init();
}

ZelQtValueEdit::~ZelQtValueEdit() = default;

void ZelQtValueEdit::init()
{
    setDoubleValidator(mDefaultDecimals, false);
    setAlignment(Qt::AlignRight);
    setOurStdWidth(true);
    // Behind the connection of the base: listeners of valueChanged() read the former number, as
    // they are meant to.
    connect(this, &QLineEdit::textEdited, this, &ZelQtValueEdit::setEnteredValue);
}

void ZelQtValueEdit::setEnteredValue(const QString &text)
{
    // As typed: neither rounded nor clamped. A text that is no number counts as 0.
    mValue = ZelDimensions::changeUnit(text.toDouble(), mCurrentUnit, mDefaultUnit);
}

double ZelQtValueEdit::valueIn(const QString &unit) const
{
    if (unit.isEmpty())
        return mValue;
    return ZelDimensions::changeUnit(mValue, mDefaultUnit, stringToUnit(unit));
}

void ZelQtValueEdit::getWert(double &value, const QString &unit) const
{
    value = valueIn(unit);
}

void ZelQtValueEdit::getWert(short &value, const QString &unit) const
{
    value = saturate<short>(valueIn(unit));
}

void ZelQtValueEdit::getWert(int &value, const QString &unit) const
{
    value = saturate<int>(valueIn(unit));
}

void ZelQtValueEdit::getWert(zelAutoDirty<double> &value, const QString &unit) const
{
    const double number = valueIn(unit);
    if (!isDifferent(number, value.mValue))
        return;
    value.mValue = number;
    if (value.mDirty)
        *value.mDirty = true;
}

void ZelQtValueEdit::setWert(double value, const QString &unit)
{
    mValue =
        unit.isEmpty() ? value : ZelDimensions::changeUnit(value, stringToUnit(unit), mDefaultUnit);
    if (mHasBottom && mValue < mBottom)
        mValue = mBottom;
    if (mHasTop && mValue > mTop)
        mValue = mTop;
    updateWert();
}

void ZelQtValueEdit::updateWert()
{
    if (!isEnabled() && !mEnabledOverride) {
        showText(QString());
        return;
    }
    const double value = valueInCurrentUnit();
    if (const auto *real = qobject_cast<const QDoubleValidator *>(validator())) {
        const bool scientific = real->notation() == QDoubleValidator::ScientificNotation;
        showText(QString::number(value, scientific ? 'e' : 'f', real->decimals()));
    } else if (isOfTypeInteger()) {
        showText(QString::number(saturate<qlonglong>(Runde(value, 0))));
    } else {
        showText(QString::number(value, 'f', 0));
    }
}

// Most refreshes show what stands there. Setting it again would only end a selection, move the
// cursor to the end and forget what was typed.
void ZelQtValueEdit::showText(const QString &text)
{
    const bool untouched = !hasFocus() && !isModified() && !hasSelectedText() && !isUndoAvailable()
        && !isRedoAvailable() && cursorPosition() == text.size();
    if (!untouched || text != this->text())
        changeMaybeUnseen(this, [&] { setText(text); });
}

QString ZelQtValueEdit::defaultUnitString() const
{
    return unitToString(mDefaultUnit);
}

QString ZelQtValueEdit::currentUnitString() const
{
    return unitToString(mCurrentUnit);
}

void ZelQtValueEdit::setDefaultUnit(ZelDimensions::Unit unit)
{
    ZelUIValueEdit::setDefaultUnit(unit);
    updateWert();
}

void ZelQtValueEdit::setDefaultUnit(const QString &unit)
{
    // No updateWert(), on purpose: a form sets its units before there is a value to show.
    ZelUIValueEdit::setDefaultUnit(stringToUnit(unit));
}

void ZelQtValueEdit::setCurrentUnit(ZelDimensions::Unit unit)
{
    ZelUIValueEdit::setCurrentUnit(unit);
    updateWert();
}

void ZelQtValueEdit::setCurrentUnit(const QString &unit)
{
    setCurrentUnit(stringToUnit(unit));
}

void ZelQtValueEdit::setLowPriority(bool low)
{
    mLowPriority = low;
    updatePriority();
}

void ZelQtValueEdit::updatePriority()
{
    // The colour of a new line edit without parent, which is that of the application.
    setTextColor(mLowPriority ? QColor(Qt::gray) : QApplication::palette().color(QPalette::Text));
}

void ZelQtValueEdit::setMessageState(int state)
{
    if (state == 1)
        setTextColor(Qt::red);
    else if (state == 2)
        setTextColor(QColor(255, 120, 100, 255));
    else
        updatePriority();
}

void ZelQtValueEdit::setTextColor(const QColor &color)
{
    QPalette colors = palette();
    if (hasColor(colors, color))
        return; // a new palette goes through the whole application
    colors.setColor(QPalette::Text, color);
    setPalette(colors);
}

void ZelQtValueEdit::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component)
{
    ZelUIValueEdit::setup(variable, attributes, component);
    applyElementName(this, nullptr);
    if (variable && variable->IsUpdateBlocking())
        disableValueChanged();
    if (mValueKind != 2 && mDecimals != mDefaultDecimals)
        setDoubleValidator(mDecimals, false);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void ZelQtValueEdit::updateState(Meta *meta, int64_t id)
{
    ZelUIValueEdit::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
    setReadOnly(mEnabled && mReadOnly);
}

void ZelQtValueEdit::setData(Meta *meta, int64_t id)
{
    ZelUIValueEdit::setData(meta, id);
    if (mValueKind != 0)
        setIntValidator();
    else if (isOfTypeInteger())
        setDoubleValidator(mDecimals, false);
    updateWert();
    updateRange();
    if (!mPriorityName.empty())
        updatePriority();
}

void ZelQtValueEdit::getData(Meta *meta, int64_t id)
{
    ZelUIValueEdit::getData(meta, id);
}

void ZelQtValueEdit::setPriority(Meta *meta)
{
    ZelUIInput::setPriority(meta);
    updatePriority();
}

QSize ZelQtValueEdit::minimumSizeHint() const
{
    return sizeHint();
}

void ZelQtValueEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    // All of the number, where the base would select a word.
    if (event->button() == Qt::LeftButton)
        selectAll();
}

void ZelQtValueEdit::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse || isReadOnly()) {
        QWidget::contextMenuEvent(event); // leaves it to the parent
        return;
    }
    if (mCurrentUnit == ZelDimensions::DegreeAngle) {
        const double degrees =
            ZelDimensions::changeUnit(mValue, mDefaultUnit, ZelDimensions::DegreeAngle);
        execOwnPopup(new ZelQtWinkeleingabe(this, degrees), event->globalPos());
    } else {
        execOwnPopup(new ZelQtFormeleingabe(this, text()), event->globalPos());
    }
}
