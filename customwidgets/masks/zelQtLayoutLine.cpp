#include "zelQtLayoutLine.h"

ZelQtLayoutLine::ZelQtLayoutLine(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::VLine);
    setFrameShadow(QFrame::Sunken);
}

ZelQtLayoutLine::~ZelQtLayoutLine() = default;
