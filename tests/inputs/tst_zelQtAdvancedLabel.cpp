#include "zelQtAdvancedLabel.h"

#include "meta.h"
#include "window.h"
#include "zelDomNode.h"
#include "zelQtTextHelpers.h"
#include "zelUIVarKinds.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QPaintEngine>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

Q_DECLARE_METATYPE(ZelUIAlignment)

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

class PressCounter : public QWidget
{
public:
    int mPresses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++mPresses; }
};

const QString longText = QStringLiteral("Anfang des langen Textes und hier sein Ende");

} // namespace

class tst_zelQtAdvancedLabel : public QObject
{
    Q_OBJECT

private slots:
    void modelAlignmentBecomesQtAlignment_data();
    void modelAlignmentBecomesQtAlignment();
    void textOfTheConstructorIsTheStatusTipToo();
    void setTextSetsTheStatusTip();
    void setTextThroughQLabelLeavesTheStatusTipOnPurpose();
    void preferedWidthReplacesThatOfTheText();
    void preferedWidthOfZeroCountsAsNone();
    void canBeSqueezedToThreeDots();
    void adjustHeightFixesTheStandardHeight();
    void fittingTextIsDrawnWhole();
    void slightlyOverlongTextIsNotElided();
    void textTwoCharactersTooLongIsElided();
    void elidesWhereTheModeSays_data();
    void elidesWhereTheModeSays();
    void elidedTextIsPlacedByTheAlignment();
    void elidedRichTextIsDrawnPlain();
    void fittingRichTextKeepsItsFormat();
    void contentsMarginsCountForEliding();
    void elidedRichTextLeavesAFittingTextAlone();
    void elidedRichTextShortensFromTheEnd();
    void elidedRichTextStopsAtAnEmptyDocument();
    void setupNamesTheWidget_data();
    void setupNamesTheWidget();
    void setupLeavesTheTextToRetranslate();
    void setupByATextVariableNamesTheComponent();
    void textVariableShowsItsText();
    void retranslateSetsTextAndStatusTip();
    void modelHidesButNeverDisables();
    void pressNeverReachesTheDialogOnPurpose();
    void shortMoveStartsNoDrag();
    void longMoveDragsTheName();
    void otherButtonDragsNothing();
};

void tst_zelQtAdvancedLabel::modelAlignmentBecomesQtAlignment_data()
{
    QTest::addColumn<ZelUIAlignment>("model");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("0: that of QLabel") << ZelUIAlignment::Left << QLabel().alignment();
    QTest::newRow("1: right") << ZelUIAlignment::Right
                              << Qt::Alignment(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("2: centre") << ZelUIAlignment::Center
                               << Qt::Alignment(Qt::AlignHCenter | Qt::AlignBottom);
    QTest::newRow("any other") << static_cast<ZelUIAlignment>(7) << QLabel().alignment();
}

void tst_zelQtAdvancedLabel::modelAlignmentBecomesQtAlignment()
{
    QFETCH(ZelUIAlignment, model);
    const ZelQtAdvancedLabel label(model);
    QTEST(label.alignment(), "alignment");
    QCOMPARE(label.getAlignment(), model);
}

void tst_zelQtAdvancedLabel::textOfTheConstructorIsTheStatusTipToo()
{
    const ZelQtAdvancedLabel label(QStringLiteral("Achsabstand"));
    QCOMPARE(label.text(), QStringLiteral("Achsabstand"));
    QCOMPARE(label.statusTip(), QStringLiteral("Achsabstand"));
    QCOMPARE(label.getAlignment(), ZelUIAlignment::Left);
    QCOMPARE(ZelQtAdvancedLabel().getAlignment(), ZelUIAlignment::Left);
}

void tst_zelQtAdvancedLabel::setTextSetsTheStatusTip()
{
    ZelQtAdvancedLabel label;
    label.setText(QStringLiteral("a<sub>w</sub>"));
    QCOMPARE(label.text(), QStringLiteral("a<sub>w</sub>"));
    QCOMPARE(label.statusTip(), QStringLiteral("a<sub>w</sub>"));
}

void tst_zelQtAdvancedLabel::setTextThroughQLabelLeavesTheStatusTipOnPurpose()
{
    ZelQtAdvancedLabel label(QStringLiteral("alt"));
    static_cast<QLabel &>(label).setText(QStringLiteral("neu"));
    QCOMPARE(label.text(), QStringLiteral("neu"));
    QCOMPARE(label.statusTip(), QStringLiteral("alt"));
}

void tst_zelQtAdvancedLabel::preferedWidthReplacesThatOfTheText()
{
    ZelQtAdvancedLabel label(longText);
    const int height = label.sizeHint().height();
    label.setPreferedWidth(37);
    QCOMPARE(label.sizeHint(), QSize(37, height));
}

void tst_zelQtAdvancedLabel::preferedWidthOfZeroCountsAsNone()
{
    ZelQtAdvancedLabel label(longText);
    const QSize hint = label.ZelQtLabel::sizeHint();
    QCOMPARE(label.sizeHint(), hint);
    label.setPreferedWidth(37);
    label.setPreferedWidth(0);
    QCOMPARE(label.sizeHint(), hint);
}

void tst_zelQtAdvancedLabel::canBeSqueezedToThreeDots()
{
    const ZelQtAdvancedLabel label(longText);
    QCOMPARE(label.minimumSizeHint().width(),
             label.fontMetrics().horizontalAdvance(QStringLiteral("...")));
    QCOMPARE(label.minimumSizeHint().height(), label.QLabel::minimumSizeHint().height());
}

void tst_zelQtAdvancedLabel::adjustHeightFixesTheStandardHeight()
{
    ZelQtAdvancedLabel label(longText);
    label.adjustHeight();
    QCOMPARE(label.minimumHeight(), label.sizeHint().height());
    QCOMPARE(label.maximumHeight(), label.sizeHint().height());
}

void tst_zelQtAdvancedLabel::fittingTextIsDrawnWhole()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(label.sizeHint());
    QCOMPARE(draw(label).mText, longText);
}

void tst_zelQtAdvancedLabel::slightlyOverlongTextIsNotElided()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(narrowWidth(label) + 1, label.sizeHint().height());
    QVERIFY(label.plainTextWidth() > label.width());
    QCOMPARE(draw(label).mText, longText);
}

void tst_zelQtAdvancedLabel::textTwoCharactersTooLongIsElided()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(narrowWidth(label), label.sizeHint().height());
    const QString drawn = draw(label).mText;
    QVERIFY(drawn != longText);
    QCOMPARE(drawn, label.fontMetrics().elidedText(longText, Qt::ElideMiddle, label.width()));
}

void tst_zelQtAdvancedLabel::elidesWhereTheModeSays_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("keepsBeginning");
    QTest::addColumn<bool>("keepsEnd");
    QTest::newRow("in the middle unless told otherwise") << -1 << true << true;
    QTest::newRow("middle") << int(Qt::ElideMiddle) << true << true;
    QTest::newRow("right") << int(Qt::ElideRight) << true << false;
    QTest::newRow("left") << int(Qt::ElideLeft) << false << true;
}

void tst_zelQtAdvancedLabel::elidesWhereTheModeSays()
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

void tst_zelQtAdvancedLabel::elidedTextIsPlacedByTheAlignment()
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

void tst_zelQtAdvancedLabel::elidedRichTextIsDrawnPlain()
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

void tst_zelQtAdvancedLabel::fittingRichTextKeepsItsFormat()
{
    ZelQtAdvancedLabel label(QStringLiteral("<b>Anfang</b> und Ende"));
    label.resize(2 * label.sizeHint().width(), label.sizeHint().height());
    const Drawn drawn = draw(label);
    QVERIFY(drawn.mBold);
    QCOMPARE(drawn.mText, QStringLiteral("Anfang und Ende"));
}

void tst_zelQtAdvancedLabel::contentsMarginsCountForEliding()
{
    ZelQtAdvancedLabel label(longText);
    label.resize(label.plainTextWidth(), label.sizeHint().height());
    QCOMPARE(draw(label).mText, longText);
    label.setContentsMargins(label.width() / 4, 0, label.width() / 4, 0);
    QCOMPARE(
        draw(label).mText,
        label.fontMetrics().elidedText(longText, Qt::ElideMiddle, label.contentsRect().width()));
}

void tst_zelQtAdvancedLabel::elidedRichTextLeavesAFittingTextAlone()
{
    const OpenLabel label;
    const QString html = QStringLiteral("x<sub>1</sub>");
    QCOMPARE(label.elidedRichText(html, 1000), html);
}

void tst_zelQtAdvancedLabel::elidedRichTextShortensFromTheEnd()
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

void tst_zelQtAdvancedLabel::elidedRichTextStopsAtAnEmptyDocument()
{
    const OpenLabel label;
    QTextDocument document;
    document.setHtml(label.elidedRichText(QStringLiteral("<b>Anfang</b> und Ende"), 1));
    QCOMPARE(document.toPlainText(), QStringLiteral("..."));
}

void tst_zelQtAdvancedLabel::setupNamesTheWidget_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("attributes") << 0;
    QTest::newRow("variable") << 1;
    QTest::newRow("node") << 2;
}

void tst_zelQtAdvancedLabel::setupNamesTheWidget()
{
    QFETCH(int, form);
    ZelUIVarBool variable(L"d");
    AttrMap attributes;
    attributes[L"name"] = L"d";
    ZelDomNode node(L"text");
    node.setAttribute(L"name", L"d");
    ZelQtAdvancedLabel label;
    if (form == 0)
        label.setup(static_cast<const AttrMap &>(attributes));
    else if (form == 1)
        label.setup(&variable, attributes);
    else
        label.setup(&node);
    QCOMPARE(label.objectName(), QStringLiteral("d_label"));
    QCOMPARE(label.whatsThis(), QStringLiteral("d"));
}

void tst_zelQtAdvancedLabel::setupLeavesTheTextToRetranslate()
{
    ZelUIVarBool variable(L"d");
    variable.mText.setText(L"Durchmesser");
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QCOMPARE(label.text(), QString());
    label.retranslate();
    QCOMPARE(label.text(), QStringLiteral("Durchmesser"));
}

void tst_zelQtAdvancedLabel::setupByATextVariableNamesTheComponent()
{
    ZelUIVarText variable(L"note");
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(&variable, attributes, 1);
    QCOMPARE(label.objectName(), QStringLiteral("note_2"));
    QCOMPARE(label.whatsThis(), QStringLiteral("note"));
}

void tst_zelQtAdvancedLabel::textVariableShowsItsText()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarText>(L"note");
    meta.setText(*variable, 3, L"nicht dauerfest", ZelOrigin::Module);
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(variable, attributes, 0);
    label.setData(&meta, 3);
    QCOMPARE(label.text(), QStringLiteral("nicht dauerfest"));
    QCOMPARE(label.statusTip(), QStringLiteral("nicht dauerfest"));
}

void tst_zelQtAdvancedLabel::retranslateSetsTextAndStatusTip()
{
    ZelQtAdvancedLabel label(QStringLiteral("alt"));
    ZelUITextHandler text;
    text.setText(L"Kraft F<sub>1</sub>");
    label.setModelText(text);
    label.retranslate();
    QCOMPARE(label.text(), QStringLiteral("Kraft F<sub>1</sub>"));
    QCOMPARE(label.statusTip(), QStringLiteral("Kraft F<sub>1</sub>"));
}

void tst_zelQtAdvancedLabel::modelHidesButNeverDisables()
{
    QWidget window;
    ZelUIObject line;
    ZelQtAdvancedLabel label(longText, &window);
    label.setModelParent(&line);
    Meta meta;
    line.mEnabled = false;
    label.updateState(&meta, 0);
    QVERIFY(!label.mEnabled);
    QVERIFY(label.isEnabled());
    QVERIFY(!label.isHidden());
    line.mVisible = false;
    label.updateState(&meta, 0);
    QVERIFY(label.isHidden());
    line.mVisible = true;
    label.updateState(&meta, 0);
    QVERIFY(!label.isHidden());
}

void tst_zelQtAdvancedLabel::pressNeverReachesTheDialogOnPurpose()
{
    PressCounter window;
    auto *plain = new ZelQtLabel(longText, &window);
    auto *label = new ZelQtAdvancedLabel(longText, &window);
    label->move(0, 100);
    window.show();
    QTest::mouseClick(plain, Qt::LeftButton);
    QCOMPARE(window.mPresses, 1);
    QTest::mouseClick(label, Qt::LeftButton);
    QTest::mouseClick(label, Qt::RightButton);
    QCOMPARE(window.mPresses, 1);
}

namespace {

// Presses at `from`, moves to `to` with `button` held and yields what was dragged; a null text when
// no drag began. Some platforms run the drag in an event loop, where it is cancelled; others come
// back at once and leave the drag to be deleted later.
QString draggedText(ZelQtAdvancedLabel &label, const QPoint &from, const QPoint &to,
                    Qt::MouseButton button)
{
    QString text;
    const auto look = [&label, &text] {
        if (const auto *drag = label.findChild<QDrag *>())
            text = QStringLiteral("drag:")
                + QString::fromLocal8Bit(drag->mimeData()->data(QStringLiteral("text/plain")));
    };
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&look] {
        look();
        QDrag::cancel();
    });
    watch.start(1);
    QTest::mousePress(&label, button, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, label.mapToGlobal(to), Qt::NoButton, button,
                     Qt::NoModifier);
    QApplication::sendEvent(&label, &move);
    look();
    QTest::mouseRelease(&label, button, Qt::NoModifier, to);
    return text;
}

} // namespace

void tst_zelQtAdvancedLabel::shortMoveStartsNoDrag()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d");
    label.show();
    const QPoint from(5, 5);
    // Along both axes: the sum of both ways counts.
    const QPoint to = from + QPoint(QApplication::startDragDistance() - 3, 2);
    QCOMPARE((to - from).manhattanLength(), QApplication::startDragDistance() - 1);
    QVERIFY(draggedText(label, from, to, Qt::LeftButton).isNull());
}

void tst_zelQtAdvancedLabel::longMoveDragsTheName()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d_w1");
    label.show();
    const QPoint from(5, 5);
    const QPoint to = from + QPoint(QApplication::startDragDistance() - 2, 2);
    QCOMPARE(draggedText(label, from, to, Qt::LeftButton), QStringLiteral("drag:d_w1"));
}

void tst_zelQtAdvancedLabel::otherButtonDragsNothing()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d");
    label.show();
    const QPoint to = QPoint(5, 5) + QPoint(2 * QApplication::startDragDistance(), 0);
    QVERIFY(draggedText(label, QPoint(5, 5), to, Qt::RightButton).isNull());
}

QTEST_MAIN(tst_zelQtAdvancedLabel)
#include "tst_zelQtAdvancedLabel.moc"
