#include "zelUISpacer.h"

ZelUISpacer::ZelUISpacer() = default;
ZelUISpacer::~ZelUISpacer() = default;

void ZelUISpacer::updateState(ZelUIState state)
{
    mEnabled = state.mEnabled;
    mVisible = state.mVisible;
    mReadOnly = state.mReadOnly;
}
