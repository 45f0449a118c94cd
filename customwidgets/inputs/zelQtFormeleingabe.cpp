#include "zelQtFormeleingabe.h"

#include "zelQtInputPriority_p.h"
#include "zelQtTextEdit.h"
#include "zelQtValueEdit.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

bool (*evaluator)(const QString &, double &) = nullptr;

} // namespace

ZelQtFormeleingabe::ZelQtFormeleingabe(ZelQtValueEdit *edit, const QString &text)
    : QMenu(edit)
    , mLabel(new QLabel(this))
    , mFormel(new ZelQtTextEdit(this))
{
    setObjectName(QStringLiteral("ZelQtFormeleingabe"));
    resize(368, 64);
    setWindowTitle(QStringLiteral("Form"));
    mLabel->setObjectName(QStringLiteral("label"));
    mFormel->setObjectName(QStringLiteral("mFormel"));
    mFormel->setFixedSize(350, 24);

    auto *layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("mLayout"));
    layout->setSpacing(6);
    layout->setContentsMargins(9, 9, 9, 9);
    layout->addWidget(mLabel);
    layout->addWidget(mFormel);
    retranslateStrings();

    mFormel->setText(text);
    mFormel->setFocus(Qt::PopupFocusReason);
    mFormel->selectAll();
    connect(mFormel, &QLineEdit::returnPressed, this, &ZelQtFormeleingabe::accept);
}

ZelQtFormeleingabe::~ZelQtFormeleingabe() = default;

void ZelQtFormeleingabe::setEvalFuncPnt(bool (*evaluate)(const QString &, double &))
{
    evaluator = evaluate;
}

QSize ZelQtFormeleingabe::sizeHint() const
{
    return layout()->sizeHint();
}

void ZelQtFormeleingabe::accept()
{
    auto *edit = qobject_cast<ZelQtValueEdit *>(parent());
    if (edit && evaluator) {
        double result = 0;
        if (!evaluator(mFormel->text(), result))
            return; // stays open, so that the formula can be corrected
        takeHighPriority(edit);
        edit->setWert(result, edit->currentUnitString());
        edit->emitValueChanged();
    }
    hide();
}

void ZelQtFormeleingabe::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QMenu::changeEvent(event);
}

void ZelQtFormeleingabe::retranslateStrings()
{
    mLabel->setText(tr("Formeleingabe:"));
}
