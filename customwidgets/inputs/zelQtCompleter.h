#pragma once

#include "customwidgets_export.h"

#include <QCompleter>
#include <QStringListModel>

/// Proposes the words of a list that contain a text, wherever in them it stands.
class CUSTOMWIDGETS_EXPORT ZelQtCompleter : public QCompleter
{
    Q_OBJECT

public:
    explicit ZelQtCompleter(const QStringList &words, QObject *parent = nullptr);
    ~ZelQtCompleter() override;

    /// The text that was searched last.
    const QString &word() const { return mWord; }
    /// Searches for a text and opens the popup with what was found.
    void update(const QString &word);

private:
    QStringList mWordList;
    QStringListModel mModel;
    QString mWord;
};
