#include "zelQtAdvancedLabel.h"

#include "zelQtConversions.h"
#include "zelQtLabelState_p.h"
#include "zelQtTextHelpers.h"
#include "zelQtUnseenChange_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

ZelQtAdvancedLabel::ZelQtAdvancedLabel(QWidget *parent)
    : ZelQtAdvancedLabel(ZelUIAlignment::Left, parent)
{
}

ZelQtAdvancedLabel::ZelQtAdvancedLabel(ZelUIAlignment alignment, QWidget *parent)
    : ZelQtLabel(parent)
    , ZelUITextLabel(alignment)
{
    if (alignment == ZelUIAlignment::Right)
        setAlignment(Qt::AlignRight | Qt::AlignBottom);
    else if (alignment == ZelUIAlignment::Center)
        setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
}

ZelQtAdvancedLabel::ZelQtAdvancedLabel(const QString &text, QWidget *parent)
    : ZelQtAdvancedLabel(parent)
{
    setText(text);
}

ZelQtAdvancedLabel::~ZelQtAdvancedLabel() = default;

void ZelQtAdvancedLabel::setText(const QString &text)
{
    changeMaybeUnseen(this, [&] { QLabel::setText(text); });
    setStatusTip(text);
}

void ZelQtAdvancedLabel::setPreferedWidth(int width)
{
    if (mPreferedWidth == width)
        return;
    mPreferedWidth = width;
    updateGeometry();
}

void ZelQtAdvancedLabel::setElideMode(Qt::TextElideMode mode)
{
    mElideMode = mode;
    update();
}

void ZelQtAdvancedLabel::adjustHeight()
{
    setFixedHeight(standardHeight(this));
}

QSize ZelQtAdvancedLabel::sizeHint() const
{
    QSize hint = ZelQtLabel::sizeHint();
    if (mPreferedWidth > 0)
        hint.setWidth(mPreferedWidth);
    return hint;
}

QSize ZelQtAdvancedLabel::minimumSizeHint() const
{
    QSize hint = ZelQtLabel::minimumSizeHint();
    hint.setWidth(fontMetrics().horizontalAdvance(QStringLiteral("...")));
    return hint;
}

void ZelQtAdvancedLabel::setup(const AttrMap &attributes)
{
    ZelUITextLabel::setup(attributes);
    applyElementName(this, nullptr);
}

void ZelQtAdvancedLabel::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUITextLabel::setup(variable, attributes);
    applyElementName(this, nullptr);
}

void ZelQtAdvancedLabel::setup(ZelUIVarText *variable, AttrMap &attributes, int kind)
{
    ZelUITextLabel::setup(variable, attributes, kind);
    applyElementName(this, nullptr);
}

void ZelQtAdvancedLabel::updateState(Meta *meta, int64_t id)
{
    updateLabelState(this, meta, id);
}

void ZelQtAdvancedLabel::retranslate()
{
    setText(toQString(ZelUITextLabel::getText()));
}

QString ZelQtAdvancedLabel::elidedRichText(const QString &html, int width) const
{
    QTextDocument document;
    document.setDefaultFont(font());
    document.setHtml(html);
    if (document.size().width() <= width)
        return html;
    const QString dots = QStringLiteral("...");
    const int room = width - fontMetrics().horizontalAdvance(dots);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    // An empty document ends it: its margins alone are wider than a narrow width.
    do {
        cursor.deletePreviousChar();
        document.adjustSize();
    } while (document.size().width() > room && !cursor.atStart());
    cursor.insertText(dots);
    return document.toHtml();
}

void ZelQtAdvancedLabel::paintEvent(QPaintEvent *event)
{
    const int available = contentsRect().width();
    // A slightly overlong text is clipped rather than elided.
    if (plainTextWidth() < available + 2 * fontMetrics().averageCharWidth()) {
        QLabel::paintEvent(event);
        return;
    }
    const QString plain = containsRichText() ? plainText(text()) : text();
    QPainter painter(this);
    painter.drawText(rect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(plain, mElideMode, available));
}

void ZelQtAdvancedLabel::mousePressEvent(QMouseEvent *event)
{
    // The base handler isn't called, so the press stays accepted and never reaches the dialog: the
    // label needs the moves that follow.
    if (event->button() == Qt::LeftButton)
        mDragStartPos = event->pos();
}

void ZelQtAdvancedLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)
        || (event->pos() - mDragStartPos).manhattanLength() < QApplication::startDragDistance())
        return;
    auto *data = new QMimeData;
    data->setData(QStringLiteral("text/plain"), toQString(getName()).toLocal8Bit());
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction | Qt::MoveAction);
}
