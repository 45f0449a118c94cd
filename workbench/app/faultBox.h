#pragma once

#include "zelFault.h"

class QWidget;

/// Tells the faults of a file in one message box, each with its place; nothing without faults.
void showFaults(const ZelFaultList &faults, QWidget *parent);
