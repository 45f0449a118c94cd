#include "zelQtFlag.h"

#include "zelQtConfirmation_p.h"
#include "zelQtConversions.h"
#include "zelQtTextHelpers.h"

ZelQtFlag::ZelQtFlag(QWidget *parent)
    : QCheckBox(parent)
    , ZelUIFlag(ZelUIFlagType::CheckBox)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // In this order: the change comes before its confirmation.
    connect(this, &ZelQtFlag::clicked, this, &ZelQtFlag::emitValueChanged);
    connect(this, &ZelQtFlag::clicked, this, &ZelQtFlag::emitValueConfirmed);
}

ZelQtFlag::~ZelQtFlag() = default;

QSize ZelQtFlag::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    // The four characters are the room of the indicator.
    const int width = metrics.horizontalAdvance(plainText(text())) + 4 * metrics.averageCharWidth();
    return {width, standardHeight(this)};
}

void ZelQtFlag::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIFlag::setup(variable, attributes);
    applyElementName(this, nullptr);
}

void ZelQtFlag::setup(ZelUIVarBool *variable, AttrMap &attributes)
{
    ZelUIFlag::setup(variable, attributes);
    applyElementName(this, nullptr);
}

void ZelQtFlag::updateState(Meta *meta, int64_t id)
{
    ZelUIFlag::updateState(meta, id);
    setVisible(mVisible);
    setEnabled(mEnabled && !mReadOnly);
    setCheckable(mEnabled);
}

void ZelQtFlag::setData(Meta *meta, int64_t id)
{
    ZelUIFlag::setData(meta, id);
    if (!mEnabled)
        setText(QString());
    setChecked(mChecked);
}

void ZelQtFlag::getData(Meta *meta, int64_t id)
{
    mChecked = isChecked();
    ZelUIFlag::getData(meta, id);
}

void ZelQtFlag::retranslate()
{
    setText(toQString(getText()));
}

void ZelQtFlag::disableValueChanged()
{
    disconnect(this, &ZelQtFlag::clicked, this, &ZelQtFlag::emitValueChanged);
}

void ZelQtFlag::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtFlag::emitValueConfirmed()
{
    tellValueConfirmed(this);
}
