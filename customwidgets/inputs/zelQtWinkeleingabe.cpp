#include "zelQtWinkeleingabe.h"

#include "zelQtDigits_p.h"
#include "zelQtInputPriority_p.h"
#include "zelQtSaturate_p.h"
#include "zelQtTextEdit.h"
#include "zelQtValueEdit.h"

#include <QGridLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>

ZelQtWinkeleingabe::ZelQtWinkeleingabe(ZelQtValueEdit *edit, double degrees)
    : QMenu(edit)
    , mGradLabel(new QLabel(this))
    , mMinutenLabel(new QLabel(this))
    , mSekundenLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("ZelQtWinkeleingabe"));
    resize(167, 104);
    setWindowTitle(QStringLiteral("Form"));

    auto *layout = new QGridLayout(this);
    layout->setObjectName(QStringLiteral("mLayout"));
    layout->setSpacing(6);
    layout->setContentsMargins(9, 9, 9, 9);
    mGrad = addField(layout, 0, QStringLiteral("mGrad"), 359, mGradLabel, QStringLiteral("°"));
    mMinuten =
        addField(layout, 1, QStringLiteral("mMinuten"), 59, mMinutenLabel, QStringLiteral("'"));
    mSekunden = addField(layout, 2, QStringLiteral("mSekunden"), 3599, mSekundenLabel,
                         QStringLiteral("''"));
    retranslateStrings();
    showAngle(degrees);
    mGrad->setFocus(Qt::PopupFocusReason);
}

ZelQtWinkeleingabe::~ZelQtWinkeleingabe() = default;

ZelQtTextEdit *ZelQtWinkeleingabe::addField(QGridLayout *layout, int row, const QString &name,
                                            int top, QLabel *label, const QString &sign)
{
    auto *field = new ZelQtTextEdit(this);
    field->setObjectName(name);
    field->setFixedSize(75, 24);
    field->setAlignment(Qt::AlignRight);
    auto *validator = new QIntValidator(0, top, field);
    validator->setLocale(digitsOnly());
    field->setValidator(validator);
    connect(field, &QLineEdit::returnPressed, this, &ZelQtWinkeleingabe::accept);
    layout->addWidget(label, row, 0);
    layout->addWidget(field, row, 1);
    layout->addWidget(new QLabel(sign, this), row, 2);
    return field;
}

void ZelQtWinkeleingabe::showAngle(double degrees)
{
    const short whole = saturate<short>(degrees);
    const double fraction = degrees - whole;
    const short minutes = saturate<short>(fraction * 60);
    const short seconds = saturate<short>(fraction * 3600 - minutes * 60);
    mGrad->setText(QString::number(whole));
    mMinuten->setText(QString::number(minutes));
    mSekunden->setText(QString::number(seconds));
}

QSize ZelQtWinkeleingabe::sizeHint() const
{
    return layout()->sizeHint();
}

void ZelQtWinkeleingabe::accept()
{
    const double minutes = mMinuten->text().toShort();
    const double seconds = mSekunden->text().toShort();
    const double degrees = (minutes * 60 + seconds) / 3600 + mGrad->text().toShort();
    if (auto *edit = qobject_cast<ZelQtValueEdit *>(parent())) {
        takeHighPriority(edit);
        edit->setWert(
            ZelDimensions::changeUnit(degrees, ZelDimensions::DegreeAngle, edit->mDefaultUnit),
            QString());
        edit->emitValueChanged();
    }
    hide();
}

void ZelQtWinkeleingabe::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Tab) {
        QMenu::keyPressEvent(event);
        return;
    }
    // Counts on from the last Tab, whichever field a click has given the focus meanwhile.
    ZelQtTextEdit *const fields[] = {mGrad, mMinuten, mSekunden};
    mTabPosition = (mTabPosition + 1) % 3;
    fields[mTabPosition]->setFocus(Qt::PopupFocusReason);
}

void ZelQtWinkeleingabe::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QMenu::changeEvent(event);
}

void ZelQtWinkeleingabe::retranslateStrings()
{
    mGradLabel->setText(tr("Grad"));
    mMinutenLabel->setText(tr("Minuten"));
    mSekundenLabel->setText(tr("Sekunden"));
}
