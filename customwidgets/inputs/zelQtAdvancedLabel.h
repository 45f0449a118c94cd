#pragma once

#include "zelQtLabel.h"
#include "zelUITextLabel.h"

/// The prompt of a mask element. It can be squeezed down to three dots; the status bar then repeats
/// it whole. The name of its variable can be dragged out of the mask.
class CUSTOMWIDGETS_EXPORT ZelQtAdvancedLabel : public ZelQtLabel, public ZelUITextLabel
{
    Q_OBJECT

public:
    using ZelUITextLabel::setup; // the overloads below would hide the one that takes a node

    explicit ZelQtAdvancedLabel(QWidget *parent = nullptr);
    explicit ZelQtAdvancedLabel(ZelUIAlignment alignment, QWidget *parent = nullptr);
    /// `text` is the status tip too.
    explicit ZelQtAdvancedLabel(const QString &text, QWidget *parent = nullptr);
    ~ZelQtAdvancedLabel() override;

    /// Sets the status tip as well. Not virtual: a call through QLabel leaves the status tip.
    void setText(const QString &text);
    /// Width of the size hint in pixels; 0 stands for the width of the text.
    void setPreferedWidth(int width);
    /// Where the dots stand in a text that is too long; in the middle unless told otherwise.
    void setElideMode(Qt::TextElideMode mode);
    /// Fixes the height to that of a one-line widget in the present font.
    void adjustHeight();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // ZelUITextLabel
    void setup(const AttrMap &attributes) override;
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void setup(ZelUIVarText *variable, AttrMap &attributes, int kind) override;
    void updateState(Meta *meta, int64_t id) override;
    void retranslate() override;

protected:
    /// `html` shortened from its end until it fits into `width` pixels, with three dots behind it;
    /// unchanged when it fits. Its format survives, which paintEvent() doesn't give.
    QString elidedRichText(const QString &html, int width) const;

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    int mPreferedWidth = 0;
    Qt::TextElideMode mElideMode = Qt::ElideMiddle;
    QPoint mDragStartPos;
};
