#include "zelQtTextEdit.h"

#include "zelQtConversions.h"
#include "zelQtWidgetHelpers_p.h"
#include "zelUIVarKinds.h"

ZelQtTextEdit::ZelQtTextEdit(QWidget *parent)
    : ZelQtLineEdit(parent)
{
}

ZelQtTextEdit::ZelQtTextEdit(const QString &text, QWidget *parent)
    : ZelQtLineEdit(text, parent)
{
}

ZelQtTextEdit::~ZelQtTextEdit() = default;

void ZelQtTextEdit::setup(ZelUIVarFuncText *variable, AttrMap &attributes, int kind)
{
    ZelUITextEdit::setup(variable, attributes, kind);
    finishSetup(variable);
}

void ZelQtTextEdit::setup(ZelUIVarString *variable, AttrMap &attributes, int kind)
{
    ZelUITextEdit::setup(variable, attributes, kind);
    finishSetup(variable);
}

void ZelQtTextEdit::finishSetup(const ZelUIVar *variable)
{
    applyElementName(this, nullptr);
    if (variable && variable->IsUpdateBlocking())
        disableValueChanged();
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void ZelQtTextEdit::updateState(Meta *meta, int64_t id)
{
    ZelUIInput::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
    setReadOnly(mEnabled && mReadOnly);
}

void ZelQtTextEdit::setData(Meta *meta, int64_t id)
{
    ZelUITextEdit::setData(meta, id);
    setText(mEnabled ? toQString(mText) : QString());
    retranslate();
}

void ZelQtTextEdit::getData(Meta *meta, int64_t id)
{
    mText = text().toStdWString();
    ZelUITextEdit::getData(meta, id);
}

void ZelQtTextEdit::retranslate()
{
    ZelUITextEdit::retranslate();
    setPlaceholderText(mEnabled ? toQString(placeholder()) : QString());
}
