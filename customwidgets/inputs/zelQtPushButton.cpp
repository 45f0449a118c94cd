#include "zelQtPushButton.h"

#include "zelQtButtonModel_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QIcon>
#include <QMenu>

ZelQtPushButton::ZelQtPushButton(QWidget *parent)
    : QPushButton(parent)
{
}

ZelQtPushButton::ZelQtPushButton(ZelUIPushButtonType type, QWidget *parent)
    : QPushButton(parent)
    , ZelUIPushButton(type)
{
}

ZelQtPushButton::ZelQtPushButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
}

ZelQtPushButton::ZelQtPushButton(const QString &iconFile, const QString &text, QWidget *parent)
    : QPushButton(QIcon(iconFile), text, parent)
{
}

ZelQtPushButton::~ZelQtPushButton() = default;

void ZelQtPushButton::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIPushButton::setup(variable, attributes);
    applyElementName(this, nullptr);
}

void ZelQtPushButton::updateState(Meta *meta, int64_t id)
{
    ZelUIPushButton::updateState(meta, id);
    applyButtonState(this);
}

void ZelQtPushButton::updateState(ZelUIState state)
{
    ZelUIPushButton::updateState(state);
    applyButtonState(this);
}

void ZelQtPushButton::updateState(bool enabled, bool visible)
{
    ZelUIPushButton::updateState(enabled, visible);
    applyButtonState(this);
}

void ZelQtPushButton::retranslate()
{
    setText(toQString(buttonText()));
    applyButtonTips(this);
    retranslateMenu();
}

void ZelQtPushButton::retranslateMenu()
{
    if (!menu())
        return;
    // Entries of the model alone: the owner may have put others behind them.
    const QList<QAction *> actions = menu()->actions();
    int index = 0;
    for (const auto &entry : modelMenu()) {
        if (index < actions.size())
            actions[index]->setText(toQString(entry.first.getText()));
        ++index;
    }
}

void ZelQtPushButton::addMenuItem(const ZelUITextHandler &text, const ZelUICallFunc &function)
{
    ZelUIPushButton::addMenuItem(text, function);
    if (!menu())
        setMenu(new QMenu(this));
    // The index before the insertion: the model's list counts from 0, too.
    const auto index = menu()->actions().size();
    QAction *action = menu()->addAction(toQString(text.getText()));
    action->setWhatsThis(QString::number(index));
}
