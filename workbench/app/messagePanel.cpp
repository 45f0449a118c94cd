#include "messagePanel.h"

#include "zelQtConversions.h"
#include "zelQtItemDelegate.h"

#include <QIcon>
#include <QRegularExpression>

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

constexpr int linesShown = 3;

// Messages name quantities as authors write them: "L_0" shows as L with a lowered 0.
QString withSymbols(const QString &text)
{
    static const QRegularExpression symbol(QStringLiteral("(\\p{L}+)_([\\p{L}\\d]+)"));
    return text.toHtmlEscaped().replace(symbol, QStringLiteral("\\1<sub>\\2</sub>"));
}

} // namespace

MessagePanel::MessagePanel(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("messages"));
    setAlternatingRowColors(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *delegate = new ZelQtItemDelegate(this);
    delegate->initRendering();
    setItemDelegate(delegate);
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
        const QString text = withSymbols(toQString(message.text()));
        auto *item = new QListWidgetItem(QIcon(iconFile(message.mSeverity)), text, this);
        item->setToolTip(text);
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
