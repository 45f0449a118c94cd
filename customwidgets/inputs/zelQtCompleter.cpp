#include "zelQtCompleter.h"

ZelQtCompleter::ZelQtCompleter(const QStringList &words, QObject *parent)
    : QCompleter(parent)
    , mWordList(words)
{
    setModel(&mModel);
}

ZelQtCompleter::~ZelQtCompleter() = default;

void ZelQtCompleter::update(const QString &word)
{
    mModel.setStringList(mWordList.filter(word, caseSensitivity()));
    mWord = word;
    complete();
}
