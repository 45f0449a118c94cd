#include "zelQtAdvancedLabel.h"

#include "zelQtTextHelpers.h"

#include <QPaintEngine>
#include <QTextDocument>
#include <QtTest>

namespace {

// Remembers the texts that are drawn on it, with their fonts and places, instead of pixels.
class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine()
        : QPaintEngine(AllFeatures)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    Type type() const override { return User; }
    void drawTextItem(const QPointF &place, const QTextItem &item) override
    {
        if (mText.isEmpty())
            mPlace = place;
        mText += item.text();
        mBold = mBold || item.font().bold();
    }

    QString mText;
    QPointF mPlace;
    bool mBold = false;
};

class RecordingDevice : public QPaintDevice
{
public:
    explicit RecordingDevice(const QWidget &widget)
        : mWidget(widget)
    {
    }
    QPaintEngine *paintEngine() const override { return &mEngine; }
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return mWidget.width();
        case PdmHeight:
            return mWidget.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return mWidget.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return mWidget.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return INT_MAX;
        default:
            return QPaintDevice::metric(metric);
        }
    }

    mutable RecordingEngine mEngine;

private:
    const QWidget &mWidget;
};

struct Drawn
{
    QString mText;
    QPointF mPlace;
    bool mBold;
};

Drawn draw(QWidget &widget)
{
    RecordingDevice device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return {device.mEngine.mText, device.mEngine.mPlace, device.mEngine.mBold};
}

// Width at which a text just counts as too long: its width less two characters.
int narrowWidth(const ZelQtLabel &label)
{
    return label.plainTextWidth() - 2 * label.fontMetrics().averageCharWidth();
}

class OpenLabel : public ZelQtAdvancedLabel
{
public:
    using ZelQtAdvancedLabel::elidedRichText;
    using ZelQtAdvancedLabel::ZelQtAdvancedLabel;
};

const QString longText = QStringLiteral("Anfang des langen Textes und hier sein Ende");

} // namespace

class tst_zelQtAdvancedLabel_eliding : public QObject
{
    Q_OBJECT

private slots:
    void fittingTextIsDrawnWhole();
    void slightlyOverlongTextIsNotElided();
    void textTwoCharactersTooLongIsElided();
    void elidesWhereTheModeSays_data();
    void elidesWhereTheModeSays();
    void elidedTextIsPlacedByTheAlignment();
    void elidedRichTextIsDrawnPlainOnPurpose();
    void fittingRichTextKeepsItsFormat();
    void contentsMarginsCountForEliding();
    void elidedRichTextLeavesAFittingTextAlone();
    void elidedRichTextShortensFromTheEnd();
    void elidedRichTextStopsAtAnEmptyDocument();
};

void tst_zelQtAdvancedLabel_eliding::fittingTextIsDrawnWhole()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(label.sizeHint());
    QCOMPARE(draw(label).mText, longText);
}

void tst_zelQtAdvancedLabel_eliding::slightlyOverlongTextIsNotElided()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(narrowWidth(label) + 1, label.sizeHint().height());
    QVERIFY(label.plainTextWidth() > label.width());
    QCOMPARE(draw(label).mText, longText);
}

void tst_zelQtAdvancedLabel_eliding::textTwoCharactersTooLongIsElided()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(narrowWidth(label), label.sizeHint().height());
    const QString drawn = draw(label).mText;
    QVERIFY(drawn != longText);
    QCOMPARE(drawn, label.fontMetrics().elidedText(longText, Qt::ElideMiddle, label.width()));
}

void tst_zelQtAdvancedLabel_eliding::elidesWhereTheModeSays_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("keepsBeginning");
    QTest::addColumn<bool>("keepsEnd");
    QTest::newRow("in the middle unless told otherwise") << -1 << true << true;
    QTest::newRow("middle") << int(Qt::ElideMiddle) << true << true;
    QTest::newRow("right") << int(Qt::ElideRight) << true << false;
    QTest::newRow("left") << int(Qt::ElideLeft) << false << true;
}

void tst_zelQtAdvancedLabel_eliding::elidesWhereTheModeSays()
{
    QFETCH(int, mode);
    ZelQtAdvancedLabel label(longText);
    if (mode >= 0)
        label.setElideMode(static_cast<Qt::TextElideMode>(mode));
    label.resize(label.plainTextWidth() / 2, label.sizeHint().height());
    const QString drawn = draw(label).mText;
    QVERIFY(drawn.size() < longText.size());
    QTEST(drawn.startsWith(QStringLiteral("Anfang")), "keepsBeginning");
    QTEST(drawn.endsWith(QStringLiteral("Ende")), "keepsEnd");
    QCOMPARE(drawn.count(QChar(0x2026)) + drawn.count(QStringLiteral("...")), 1);
}

void tst_zelQtAdvancedLabel_eliding::elidedTextIsPlacedByTheAlignment()
{
    ZelQtAdvancedLabel left(longText);
    left.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    ZelQtAdvancedLabel right(ZelUIAlignment::Right);
    right.setText(longText);
    const QSize size(left.plainTextWidth() / 2, 3 * left.sizeHint().height());
    left.resize(size);
    right.resize(size);
    const Drawn atLeft = draw(left);
    const Drawn atRight = draw(right);
    QCOMPARE(atRight.mText, atLeft.mText);
    const int room = size.width() - left.fontMetrics().horizontalAdvance(atLeft.mText);
    QVERIFY(room > 0);
    QVERIFY(qAbs(atRight.mPlace.x() - atLeft.mPlace.x() - room) <= 1);
    QCOMPARE(atRight.mPlace.y(), atLeft.mPlace.y());
    QVERIFY(atLeft.mPlace.y() > size.height() / 2);
}

void tst_zelQtAdvancedLabel_eliding::elidedRichTextIsDrawnPlainOnPurpose()
{
    const QString rich = QStringLiteral("<b>Anfang</b> des langen&nbsp;Textes und sein Ende");
    ZelQtAdvancedLabel label(rich);
    label.resize(label.plainTextWidth() / 2, label.sizeHint().height());
    const Drawn drawn = draw(label);
    QCOMPARE(drawn.mText,
             label.fontMetrics().elidedText(plainText(rich), Qt::ElideMiddle, label.width()));
    QVERIFY(!drawn.mBold);
    QVERIFY(!drawn.mText.contains('<'));
}

void tst_zelQtAdvancedLabel_eliding::fittingRichTextKeepsItsFormat()
{
    ZelQtAdvancedLabel label(QStringLiteral("<b>Anfang</b> und Ende"));
    label.resize(2 * label.sizeHint().width(), label.sizeHint().height());
    const Drawn drawn = draw(label);
    QVERIFY(drawn.mBold);
    QCOMPARE(drawn.mText, QStringLiteral("Anfang und Ende"));
}

void tst_zelQtAdvancedLabel_eliding::contentsMarginsCountForEliding()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(label.plainTextWidth(), label.sizeHint().height());
    QCOMPARE(draw(label).mText, longText);
    label.setContentsMargins(label.width() / 4, 0, label.width() / 4, 0);
    QCOMPARE(
        draw(label).mText,
        label.fontMetrics().elidedText(longText, Qt::ElideMiddle, label.contentsRect().width()));
}

void tst_zelQtAdvancedLabel_eliding::elidedRichTextLeavesAFittingTextAlone()
{
    const OpenLabel label;
    const QString html = QStringLiteral("x<sub>1</sub>");
    QCOMPARE(label.elidedRichText(html, 1000), html);
}

void tst_zelQtAdvancedLabel_eliding::elidedRichTextShortensFromTheEnd()
{
    const OpenLabel label;
    const QString html = QStringLiteral("<b>Anfang</b>desLangenTextesOhneLeerzeichenUndSeinEnde");
    const int width = label.plainTextWidth(html) / 2;
    const QString elided = label.elidedRichText(html, width);
    QVERIFY(elided != html);
    QTextDocument document;
    document.setHtml(elided);
    QVERIFY(document.toPlainText().startsWith(QStringLiteral("AnfangdesL")));
    QVERIFY(document.toPlainText().endsWith(QStringLiteral("...")));
    QVERIFY(elided.contains(QStringLiteral("font-weight")));
    document.adjustSize();
    QVERIFY(document.size().width() <= width + 2);
}

void tst_zelQtAdvancedLabel_eliding::elidedRichTextStopsAtAnEmptyDocument()
{
    const OpenLabel label;
    QTextDocument document;
    document.setHtml(label.elidedRichText(QStringLiteral("<b>Anfang</b> und Ende"), 1));
    QCOMPARE(document.toPlainText(), QStringLiteral("..."));
}

QTEST_MAIN(tst_zelQtAdvancedLabel_eliding)
#include "tst_zelQtAdvancedLabel_eliding.moc"
