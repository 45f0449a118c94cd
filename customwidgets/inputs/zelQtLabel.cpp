#include "zelQtLabel.h"

#include "zelQtTextHelpers.h"
#include "zelQtWidgetHelpers_p.h"

#include <QRegExp>
#include <QTextLayout>

#include <cmath>

namespace {

// A document would show it character by character: no markup, and no white space that it would
// join or drop.
bool isUnchangedByRichText(const QString &text)
{
    bool afterSpace = true;
    for (const QChar c : text) {
        const bool space = c.isSpace();
        if (c == QLatin1Char('<') || c == QLatin1Char('&') || (space && afterSpace)
            || (space && c != QLatin1Char(' ')) || c.unicode() < 0x20)
            return false;
        afterSpace = space;
    }
    return !afterSpace;
}

// As the document of a label lays it out.
QSize sizeOfLine(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    layout.endLayout();
    return {static_cast<int>(std::ceil(line.naturalTextWidth())),
            static_cast<int>(std::ceil(line.height()))};
}

} // namespace

ZelQtLabel::ZelQtLabel(QWidget *parent)
    : ZelQtLabel(QString(), parent)
{
}

ZelQtLabel::ZelQtLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setWordWrap(false);
    setTextFormat(Qt::RichText);
}

ZelQtLabel::~ZelQtLabel() = default;

bool ZelQtLabel::containsRichText() const
{
    return containsRichText(text());
}

bool ZelQtLabel::containsRichText(const QString &text) const
{
    return !isPlainText(text);
}

int ZelQtLabel::plainTextWidth() const
{
    return plainTextWidth(text());
}

int ZelQtLabel::plainTextWidth(const QString &text) const
{
    if (!containsRichText(text))
        return fontMetrics().horizontalAdvance(text);
    // Two underscores for an entity, not one as in the free function: lines are aligned by this
    // width.
    QString plain = text;
    plain.remove(QRegExp(QStringLiteral("<{1}/?[\\w]+>{1}")));
    plain.replace(QRegExp(QStringLiteral("&{1}[\\w]+;{1}")), QStringLiteral("__"));
    return fontMetrics().horizontalAdvance(plain);
}

bool ZelQtLabel::isOneSimpleLine() const
{
    return frameWidth() == 0 && margin() == 0 && indent() <= 0 && !wordWrap()
        && textFormat() == Qt::RichText && contentsMargins().isNull()
        && isUnchangedByRichText(text());
}

QSize ZelQtLabel::naturalSize() const
{
    if (!isOneSimpleLine())
        return QLabel::sizeHint();
    ensurePolished();
    if (mMeasuredText != text() || mMeasuredFont != font()) {
        mMeasuredText = text();
        mMeasuredFont = font();
        mNaturalSize = sizeOfLine(mMeasuredText, mMeasuredFont).expandedTo(minimumSize());
    }
    return mNaturalSize;
}

QSize ZelQtLabel::minimumSizeHint() const
{
    return isOneSimpleLine() ? naturalSize() : QLabel::minimumSizeHint();
}

QSize ZelQtLabel::sizeHint() const
{
    QSize hint = naturalSize();
    if (mOurStdWidth)
        hint.setWidth(standardWidth(this));
    else if (containsRichText())
        hint.rwidth() += fontMetrics().averageCharWidth();
    hint.setHeight(standardHeight(this));
    return hint;
}

void ZelQtLabel::setOurStdWidth(bool use)
{
    mOurStdWidth = use;
    // Fixed with `use` false too: there is no way back to the policy of a fresh label.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}
