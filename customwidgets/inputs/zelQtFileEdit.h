#pragma once

#include "zelQtTextEdit.h"

#include <QStringList>

class ZelQtCompleter;

/// A field for a file name with a list of proposals. Characters that no file name may hold can't be
/// typed. Unlike other fields it keeps its own undo: Ctrl+Z works.
class CUSTOMWIDGETS_EXPORT ZelQtFileEdit : public ZelQtTextEdit
{
    Q_OBJECT

public:
    explicit ZelQtFileEdit(QWidget *parent = nullptr);
    explicit ZelQtFileEdit(const QString &text, QWidget *parent = nullptr);
    ~ZelQtFileEdit() override;

    /// Proposes the files of the directories, by name without directory. Each filter is one pattern
    /// in the form of file dialogs, "Text files (*.txt)": its last character is dropped.
    void setFileList(const QStringList &directories, const QStringList &filters);

public Q_SLOTS:
    /// A file that was chosen elsewhere: counts as an edit by the user that is finished, and is
    /// reported even after disableValueChanged().
    void setFile(const QString &file);

protected Q_SLOTS:
    /// Takes a proposal and selects it. Reported with the next confirmation alone.
    void insertCompletion(const QString &completion);

protected:
    /// Replaces the completer; the field owns the new one, the former one is only disconnected.
    /// Null stands for none.
    void setCompleter(ZelQtCompleter *completer);
    ZelQtCompleter *completer() const { return mCompleter; }

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool belongsToPopup(const QKeyEvent *event) const;
    void updateCompletion(const QKeyEvent *event);

    ZelQtCompleter *mCompleter = nullptr;
    QStringList mFiles;
};
