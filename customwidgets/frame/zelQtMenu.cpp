#include "zelQtMenu.h"

#include <QEvent>

ZelQtMenu::ZelQtMenu(QWidget *parent)
    : QMenu(parent)
{
}

ZelQtMenu::~ZelQtMenu() = default;

void ZelQtMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QMenu::changeEvent(event);
}
