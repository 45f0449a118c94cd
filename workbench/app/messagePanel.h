#pragma once

#include "zelCalcRun.h"

#include <QListWidget>

/// The messages of the last calculation, errors first as the module gave them. A message that
/// concerns an input leads there by double click or Return.
class MessagePanel : public QListWidget
{
    Q_OBJECT

public:
    explicit MessagePanel(QWidget *parent = nullptr);
    ~MessagePanel() override;

    void showMessages(const std::vector<ZelCalcMessage> &messages);
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Name of the first variable that the message concerns.
    void variableRequested(const QString &name);
};
