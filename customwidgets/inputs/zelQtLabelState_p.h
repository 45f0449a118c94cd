#pragma once

#include "zelUIObject.h"

/// updateState of the labels of a mask, which share no base that could hold it: a label is shown or
/// hidden by the model, but never disabled. The model base of the label is passed over on purpose.
template <class Label> void updateLabelState(Label *label, Meta *meta, int64_t id)
{
    label->ZelUIObject::updateState(meta, id);
    label->setVisible(label->mVisible);
}
