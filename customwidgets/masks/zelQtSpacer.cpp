#include "zelQtSpacer.h"

ZelQtSpacer::ZelQtSpacer(QWidget *parent)
    : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

ZelQtSpacer::~ZelQtSpacer() = default;

void ZelQtSpacer::updateState(ZelUIState state)
{
    ZelUISpacer::updateState(state);
    setVisible(state.mVisible);
}
