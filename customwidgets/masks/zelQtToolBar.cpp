#include "zelQtToolBar.h"

ZelQtToolBar::ZelQtToolBar(QWidget *parent)
    : QToolBar(parent)
{
    setAllowedAreas(Qt::TopToolBarArea);
    setMovable(false);
}

ZelQtToolBar::~ZelQtToolBar() = default;
