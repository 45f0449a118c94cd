#include "zelQtContextMenu.h"

ZelQtContextMenu::ZelQtContextMenu(QWidget *parent)
    : ZelQtMenu(parent)
{
}

ZelQtContextMenu::~ZelQtContextMenu() = default;

void ZelQtContextMenu::retranslateStrings()
{
}
