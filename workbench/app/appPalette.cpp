#include "appPalette.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

void setDarkPalette(bool dark)
{
    if (!dark) {
        QApplication::setPalette(QApplication::style()->standardPalette());
        return;
    }
    const QColor window(43, 43, 43);
    const QColor text(222, 222, 222);
    const QColor faint(128, 128, 128);
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::Button, QColor(56, 56, 56));
    palette.setColor(QPalette::ToolTipBase, QColor(56, 56, 56));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
          QPalette::BrightText})
        palette.setColor(role, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(31, 135, 214));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(86, 170, 235));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    QApplication::setPalette(palette);
}
