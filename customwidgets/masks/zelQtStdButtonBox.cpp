#include "zelQtStdButtonBox.h"

ZelQtStdButtonBox::ZelQtStdButtonBox(QWidget *parent)
    : QWidget(parent)
{
}

ZelQtStdButtonBox::~ZelQtStdButtonBox() = default;

void ZelQtStdButtonBox::updateState(bool visible)
{
    ZelUIStdButtonBox::updateState(visible);
    setVisible(visible);
}
