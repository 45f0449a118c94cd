#include "zelQtLabel.h"

#include "zelQtTextHelpers.h"
#include "zelQtWidgetHelpers_p.h"

#include <QRegExp>

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

QSize ZelQtLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
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
