#pragma once

#include <QFile>
#include <QString>
#include <QVector>

/// A fenced block of a page: "```xml lever.xml" has the language "xml" and the label "lever.xml".
struct PageBlock
{
    QString mLanguage;
    QString mLabel;
    QString mText;
    int mLine = 0;
};

/// The blocks of a page of docs/, in its order. A page that can't be read ends the test.
inline QVector<PageBlock> pageBlocks(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(path));
    QVector<PageBlock> blocks;
    bool inside = false;
    int number = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        ++number;
        if (line.startsWith("```")) {
            inside = !inside;
            if (inside)
                blocks.append(
                    {line.mid(3).section(' ', 0, 0), line.section(' ', 1), QString(), number});
        } else if (inside) {
            blocks.last().mText += line + '\n';
        }
    }
    return blocks;
}

/// The text of the block with that language and label; ends the test when there is none.
inline QString pageBlock(const QVector<PageBlock> &blocks, const QString &language,
                         const QString &label)
{
    for (const PageBlock &block : blocks) {
        if (block.mLanguage == language && block.mLabel == label)
            return block.mText;
    }
    qFatal("the page has no block %s %s", qPrintable(language), qPrintable(label));
    return {};
}
