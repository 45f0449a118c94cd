#include "zelQtFileEdit.h"

#include "zelQtCompleter.h"

#include <QAbstractItemView>
#include <QDir>
#include <QKeyEvent>
#include <QPointer>

namespace {

// By key, so that it doesn't matter how the keyboard produces the character.
bool isRefused(int key)
{
    switch (key) {
    case Qt::Key_QuoteDbl:
    case Qt::Key_Asterisk:
    case Qt::Key_Comma:
    case Qt::Key_Less:
    case Qt::Key_Greater:
    case Qt::Key_Question:
        return true;
    default:
        return false;
    }
}

bool opensCompletion(const QKeyEvent *event)
{
    return event->key() == Qt::Key_E && event->modifiers().testFlag(Qt::ControlModifier);
}

// "Text files (*.txt)" becomes "*.txt". The last character goes in any case, so that a bare pattern
// loses one: the text is expected to end with a bracket.
QString patternOf(const QString &filter)
{
    QString pattern = filter;
    const int star = pattern.indexOf(QLatin1Char('*'));
    if (star > 0)
        pattern.remove(0, star);
    pattern.chop(1);
    return pattern;
}

} // namespace

ZelQtFileEdit::ZelQtFileEdit(QWidget *parent)
    : ZelQtTextEdit(parent)
{
    setOurMaxWidth(true);
}

ZelQtFileEdit::ZelQtFileEdit(const QString &text, QWidget *parent)
    : ZelQtTextEdit(text, parent)
{
    setOurMaxWidth(true);
}

ZelQtFileEdit::~ZelQtFileEdit()
{
    delete mCompleter;
}

void ZelQtFileEdit::setFileList(const QStringList &directories, const QStringList &filters)
{
    QStringList patterns;
    patterns.reserve(filters.size());
    for (const QString &filter : filters)
        patterns.append(patternOf(filter));

    QDir dir;
    dir.setFilter(QDir::Files | QDir::NoDot | QDir::NoDotDot);
    dir.setSorting(QDir::Name);
    dir.setNameFilters(patterns);
    mFiles.clear();
    for (const QString &directory : directories) {
        dir.setPath(QDir::toNativeSeparators(directory));
        mFiles.append(dir.entryList());
    }

    delete mCompleter;
    mCompleter = nullptr;
    auto *completer = new ZelQtCompleter(mFiles, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(completer);
}

void ZelQtFileEdit::setFile(const QString &file)
{
    setText(file);
    const QPointer<ZelQtFileEdit> guard(this); // a listener may delete the field
    emitValueChanged();
    if (guard)
        emitValueConfirmed();
}

void ZelQtFileEdit::insertCompletion(const QString &completion)
{
    needsToBeConfirmed();
    setText(completion);
    selectAll();
}

void ZelQtFileEdit::setCompleter(ZelQtCompleter *completer)
{
    if (mCompleter)
        disconnect(mCompleter, nullptr, this, nullptr);
    mCompleter = completer;
    if (!mCompleter)
        return;
    // Not QLineEdit::setCompleter: there Return in the popup would end the editing.
    mCompleter->setWidget(this);
    connect(mCompleter, qOverload<const QString &>(&QCompleter::activated), this,
            &ZelQtFileEdit::insertCompletion);
}

bool ZelQtFileEdit::event(QEvent *event)
{
    // Leaves out the base, which gives away the keys of undo.
    return QLineEdit::event(event);
}

void ZelQtFileEdit::keyPressEvent(QKeyEvent *event)
{
    if (isRefused(event->key()) || belongsToPopup(event)) {
        event->ignore();
        return;
    }
    if (!opensCompletion(event))
        QLineEdit::keyPressEvent(event); // not the base, see event()
    if (mCompleter)
        updateCompletion(event);
}

bool ZelQtFileEdit::belongsToPopup(const QKeyEvent *event) const
{
    if (!mCompleter || !mCompleter->popup()->isVisible())
        return false;
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

void ZelQtFileEdit::updateCompletion(const QKeyEvent *event)
{
    // Any key opens the list, arrows and Ctrl+C too; only a combination with Alt or Meta closes it.
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (!opensCompletion(event) && modifiers != Qt::NoModifier
        && !(modifiers & (Qt::ControlModifier | Qt::ShiftModifier | Qt::KeypadModifier))) {
        mCompleter->popup()->hide();
        return;
    }
    mCompleter->update(text());
    mCompleter->popup()->setCurrentIndex(mCompleter->completionModel()->index(0, 0));
}
