#include "zelQtItemDelegate.h"

#include "zelQtTextHelpers.h"

#include <QPainter>
#include <QStaticText>
#include <QTextOption>
#include <QWidget>

ZelQtItemDelegate::ZelQtItemDelegate(QObject *parent)
    : QItemDelegate(parent)
{
}

ZelQtItemDelegate::~ZelQtItemDelegate() = default;

void ZelQtItemDelegate::initRendering()
{
    mRendering = true;
}

void ZelQtItemDelegate::setMinWidth(int width)
{
    mMinWidth = width;
}

QString ZelQtItemDelegate::renderDisplay(const QString &text) const
{
    return text;
}

void ZelQtItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    // drawDisplay of the derived delegates reads the index from its option.
    QStyleOptionViewItem withIndex = option;
    withIndex.index = index;
    QItemDelegate::paint(painter, withIndex, index);
}

QSize ZelQtItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    QSize size = QItemDelegate::sizeHint(option, index);
    if (mMinWidth >= 1 && size.width() < mMinWidth)
        size.setWidth(mMinWidth);
    return size;
}

void ZelQtItemDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QRect &rect, const QString &text) const
{
    if (!mRendering) {
        QItemDelegate::drawDisplay(painter, option, rect, text);
        return;
    }
    // Fills the background of a selected cell and sets the pen.
    QItemDelegate::drawDisplay(painter, option, rect, QString());

    QStaticText shown(text);
    shown.setTextFormat(isPlainText(text) ? Qt::PlainText : Qt::RichText);
    QTextOption noWrap;
    noWrap.setWrapMode(QTextOption::NoWrap);
    shown.setTextOption(noWrap);
    const int top = (rect.top() + rect.bottom()) / 2 - painter->fontMetrics().height() / 2;
    painter->drawStaticText(rect.left() + 2, top, shown);
}

void ZelQtItemDelegate::emitCommitData()
{
    if (auto *editor = qobject_cast<QWidget *>(sender()))
        Q_EMIT commitData(editor);
}

void ZelQtItemDelegate::emitCommitDataAndCloseEditor()
{
    auto *editor = qobject_cast<QWidget *>(sender());
    if (!editor && sender())
        editor = qobject_cast<QWidget *>(sender()->parent());
    if (!editor)
        return;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
}
