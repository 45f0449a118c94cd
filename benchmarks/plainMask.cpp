#include "plainMask.h"

#include <QDoubleValidator>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QToolButton>

PlainMask::PlainMask(int lines, QWidget *parent)
    : QWidget(parent)
    , mValues(lines)
{
    auto *grid = new QGridLayout(this);
    grid->setColumnStretch(5, 1);
    for (int line = 0; line < lines; ++line)
        makeLine(line);
}

void PlainMask::makeLine(int line)
{
    auto *grid = static_cast<QGridLayout *>(layout());
    auto *label = new QLabel(this);
    auto *symbol = new QLabel(QStringLiteral("d<sub>%1</sub>").arg(line), this);
    auto *field = new QLineEdit(this);
    auto *unit = new QToolButton(this);
    auto *button = new QToolButton(this);

    auto *validator = new QDoubleValidator(0, 1e6, 4, field);
    validator->setLocale(QLocale::c());
    field->setValidator(validator);
    field->setAlignment(Qt::AlignRight);
    unit->setText(QStringLiteral("mm"));
    unit->setAutoRaise(true);
    unit->setPopupMode(QToolButton::InstantPopup);
    // The menu is made when it is wanted, as the library does.
    connect(unit, &QToolButton::pressed, unit, [unit] {
        auto *menu = new QMenu(unit);
        for (const char *text : {"mm", "cm", "m", "in", "ft"})
            menu->addAction(QString::fromLatin1(text));
        unit->setMenu(menu);
    });
    button->setIcon(QIcon(QStringLiteral(":/button_info.svg")));
    button->setAutoRaise(true);

    connect(field, &QLineEdit::textEdited, this, [this, line](const QString &text) {
        mValues[line] = text.toDouble();
        Q_EMIT valueChanged();
    });
    connect(field, &QLineEdit::editingFinished, this, &PlainMask::valueConfirmed);

    grid->addWidget(label, line, 0);
    grid->addWidget(symbol, line, 1);
    grid->addWidget(field, line, 2);
    grid->addWidget(unit, line, 3);
    grid->addWidget(button, line, 4);
    mLabels.append(label);
    mFields.append(field);
    mUnits.append(unit);
    mButtons.append(button);
}

void PlainMask::setValues(const QVector<double> &values)
{
    for (int line = 0; line < mFields.size(); ++line) {
        mValues[line] = values.at(line);
        mFields.at(line)->setText(QString::number(values.at(line), 'f', 4));
    }
}

void PlainMask::retranslate(bool german)
{
    const QString text = german ? QStringLiteral("Durchmesser %1") : QStringLiteral("Diameter %1");
    const QString tip = german ? QStringLiteral("Zusatzinfo") : QStringLiteral("Information");
    for (int line = 0; line < mLabels.size(); ++line) {
        const QString prompt = text.arg(line);
        mLabels.at(line)->setText(prompt);
        mLabels.at(line)->setStatusTip(prompt);
        mButtons.at(line)->setToolTip(tip);
        mButtons.at(line)->setStatusTip(tip);
    }
}
