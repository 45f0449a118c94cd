#include "messagePanel.h"

#include "zelQtConversions.h"

#include <QIcon>

namespace {

QString iconFile(ZelMessageSeverity severity)
{
    switch (severity) {
    case ZelMessageSeverity::Error:
        return QStringLiteral(":/msgCritical.svg");
    case ZelMessageSeverity::Warning:
        return QStringLiteral(":/msgWarning.svg");
    case ZelMessageSeverity::Note:
        break;
    }
    return QStringLiteral(":/msgInfo.svg");
}

constexpr int linesShown = 4;

} // namespace

MessagePanel::MessagePanel(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("messages"));
    setWordWrap(true);
    setAlternatingRowColors(true);
    connect(this, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        const QString variable = item->data(Qt::UserRole).toString();
        if (!variable.isEmpty())
            Q_EMIT variableRequested(variable);
    });
}

MessagePanel::~MessagePanel() = default;

void MessagePanel::showMessages(const std::vector<ZelCalcMessage> &messages)
{
    clear();
    for (const ZelCalcMessage &message : messages) {
        auto *item = new QListWidgetItem(QIcon(iconFile(message.mSeverity)),
                                         toQString(message.text()), this);
        if (!message.mVariables.empty())
            item->setData(Qt::UserRole, toQString(message.mVariables.front()));
    }
    setVisible(count() > 0);
}

QSize MessagePanel::sizeHint() const
{
    const int line = fontMetrics().height() + fontMetrics().lineSpacing() / 2;
    return {QListWidget::sizeHint().width(), linesShown * line + 2 * frameWidth()};
}
