#pragma once

#include "customwidgets_export.h"

#include <QLabel>

/// Base of the read-only texts of a mask: one line of rich text, as high as every one-line widget.
/// Text rules (what counts as rich, how it is measured) are those of zelQtTextHelpers.h but for the
/// width of entities, see plainTextWidth().
class CUSTOMWIDGETS_EXPORT ZelQtLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ZelQtLabel(QWidget *parent = nullptr);
    explicit ZelQtLabel(const QString &text, QWidget *parent = nullptr);
    ~ZelQtLabel() override;

    /// True when the text holds a tag without attributes, or a named entity.
    bool containsRichText() const;
    bool containsRichText(const QString &text) const;
    /// Width in pixels in the label's own font. An entity counts as two underscores and there is no
    /// reserve, unlike in the free function of the same name.
    int plainTextWidth() const;
    int plainTextWidth(const QString &text) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Standard width instead of that of the text. The size policy becomes fixed in both
    /// directions, with `use` false as well.
    void setOurStdWidth(bool use);

protected:
    /// What QLabel::sizeHint() answers. It lays out a text document three times for that; most
    /// texts are plain, and a single line of text gives the same.
    QSize naturalSize() const;

private:
    bool isOneSimpleLine() const;

    bool mOurStdWidth = false;
    // Of the text and the font that it was measured for.
    mutable QSize mNaturalSize;
    mutable QString mMeasuredText;
    mutable QFont mMeasuredFont;
};
