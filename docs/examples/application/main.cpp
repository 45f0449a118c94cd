//! [main]
#include "leverWindow.h"
#include "settings.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const Settings settings;
    LeverWindow window(QCoreApplication::arguments().value(1));
    window.show();
    return QApplication::exec();
}
//! [main]
