#include "zelQtLabel.h"

#include "zelQtTextHelpers.h"

#include <QtTest>

class tst_zelQtLabel : public QObject
{
    Q_OBJECT

private slots:
    void takesRichTextOnOneLine();
    void hasTheHeightOfEveryOneLineWidget_data();
    void hasTheHeightOfEveryOneLineWidget();
    void richTextIsOneCharacterWider();
    void plainTextKeepsItsWidth();
    void standardWidthWinsOverTheText();
    void standardWidthOffStaysFixedOnPurpose();
    void tellsRichText_data();
    void tellsRichText();
    void measuresPlainText_data();
    void measuresPlainText();
    void measuresInItsOwnFont();
    void hasTheSizeThatItsTextDocumentHas_data();
    void hasTheSizeThatItsTextDocumentHas();
    void hasTheSizeOfAFrameAndOfMarginsToo();
    void measuresAgainAfterEveryChange();
    void anEntityIsWiderThanInTheFreeFunctionOnPurpose();
};

void tst_zelQtLabel::takesRichTextOnOneLine()
{
    const ZelQtLabel empty;
    const ZelQtLabel label(QStringLiteral("mm<sup>2</sup>"));
    for (const ZelQtLabel *each : {&empty, &label}) {
        QVERIFY(!each->wordWrap());
        QCOMPARE(each->textFormat(), Qt::RichText);
    }
    QCOMPARE(empty.text(), QString());
    QCOMPARE(label.text(), QStringLiteral("mm<sup>2</sup>"));
}

void tst_zelQtLabel::hasTheHeightOfEveryOneLineWidget_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pointSize");
    QTest::newRow("empty") << "" << 10;
    QTest::newRow("plain") << "Kraft" << 10;
    QTest::newRow("rich") << "x<sub>1</sub><sup>2</sup>" << 10;
    QTest::newRow("large font") << "Kraft" << 20;
}

void tst_zelQtLabel::hasTheHeightOfEveryOneLineWidget()
{
    QFETCH(QString, text);
    QFETCH(int, pointSize);
    ZelQtLabel label(text);
    QFont font = label.font();
    font.setPointSize(pointSize);
    label.setFont(font);
    const QFontMetrics metrics = label.fontMetrics();
    QCOMPARE(label.sizeHint().height(), metrics.height() + metrics.lineSpacing() / 2);
}

void tst_zelQtLabel::richTextIsOneCharacterWider()
{
    const ZelQtLabel label(QStringLiteral("m<sup>2</sup>"));
    QVERIFY(label.containsRichText());
    QCOMPARE(label.sizeHint().width(),
             label.QLabel::sizeHint().width() + label.fontMetrics().averageCharWidth());
}

void tst_zelQtLabel::plainTextKeepsItsWidth()
{
    const ZelQtLabel label(QStringLiteral("Achsabstand"));
    QCOMPARE(label.sizeHint().width(), label.QLabel::sizeHint().width());
}

void tst_zelQtLabel::standardWidthWinsOverTheText()
{
    ZelQtLabel label(QStringLiteral("m<sup>2</sup>"));
    label.setOurStdWidth(true);
    QCOMPARE(label.sizeHint().width(), 16 * label.fontMetrics().averageCharWidth());
    QCOMPARE(label.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void tst_zelQtLabel::standardWidthOffStaysFixedOnPurpose()
{
    ZelQtLabel label(QStringLiteral("Achsabstand"));
    QVERIFY(label.sizePolicy().horizontalPolicy() != QSizePolicy::Fixed);
    label.setOurStdWidth(false);
    QCOMPARE(label.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(label.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(label.sizeHint().width(), label.QLabel::sizeHint().width());
}

void tst_zelQtLabel::tellsRichText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("rich");
    QTest::newRow("empty") << "" << false;
    QTest::newRow("plain") << "mm" << false;
    QTest::newRow("tag") << "m<sup>2" << true;
    QTest::newRow("closing tag") << "m</sup>" << true;
    QTest::newRow("tag with an umlaut") << QStringLiteral("<größe>") << true;
    QTest::newRow("entity") << "a&nbsp;b" << true;
    QTest::newRow("lone less-than") << "1 < 2" << false;
    QTest::newRow("lone ampersand") << "a & b" << false;
    QTest::newRow("tag with attributes") << "<font color=red>" << false;
    QTest::newRow("numeric entity") << "20&#176;" << false;
}

void tst_zelQtLabel::tellsRichText()
{
    QFETCH(QString, text);
    QFETCH(bool, rich);
    const ZelQtLabel label(text);
    QCOMPARE(label.containsRichText(), rich);
    QCOMPARE(ZelQtLabel().containsRichText(text), rich);
    QCOMPARE(isPlainText(text), !rich);
}

void tst_zelQtLabel::measuresPlainText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("measured");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("plain as it stands") << "1 < 2 & 3"
                                        << "1 < 2 & 3";
    QTest::newRow("tags vanish") << "x<sub>1</sub>"
                                 << "x1";
    QTest::newRow("an entity counts as two underscores") << "a&nbsp;b"
                                                         << "a__b";
    QTest::newRow("both") << "<b>a</b>&auml;"
                          << "a__";
}

void tst_zelQtLabel::measuresPlainText()
{
    QFETCH(QString, text);
    QFETCH(QString, measured);
    const ZelQtLabel label(text);
    const int expected = label.fontMetrics().horizontalAdvance(measured);
    QCOMPARE(label.plainTextWidth(), expected);
    QCOMPARE(ZelQtLabel().plainTextWidth(text), expected);
}

void tst_zelQtLabel::measuresInItsOwnFont()
{
    ZelQtLabel label(QStringLiteral("x<sub>1</sub>"));
    const int before = label.plainTextWidth();
    QFont font = label.font();
    font.setPointSize(3 * font.pointSize());
    label.setFont(font);
    QVERIFY(label.plainTextWidth() > before);
    QCOMPARE(label.plainTextWidth(), label.fontMetrics().horizontalAdvance(QStringLiteral("x1")));
}

void tst_zelQtLabel::anEntityIsWiderThanInTheFreeFunctionOnPurpose()
{
    // Without the free function's reserve, and with one underscore more for each entity.
    const ZelQtLabel label(QStringLiteral("&nbsp;&nbsp;&nbsp;&nbsp;"));
    const QFontMetrics metrics = label.fontMetrics();
    QCOMPARE(label.plainTextWidth(), metrics.horizontalAdvance(QStringLiteral("________")));
    QCOMPARE(plainText(label.text()), QStringLiteral("____"));
    QVERIFY(label.plainTextWidth() != plainTextWidth(label.text(), metrics));
}

// A document is dear: most texts are measured without one, and nobody may see that.
void tst_zelQtLabel::hasTheSizeThatItsTextDocumentHas_data()
{
    QTest::addColumn<QString>("text");
    const char *const texts[] = {
        "",
        " ",
        "Kraft",
        "f",
        "Übermaß der Paßfeder",
        "two  spaces",
        " before",
        "behind ",
        "two\nlines",
        "a\ttab",
        "a\u00a0space that stays",
        "Kraft < Gewicht",
        "Kraft & Moment",
        "&deg;",
        "x<sub>1</sub>",
        "<b>fett</b>",
        "AVAToTy.",
        "fi ffl",
        "شعاع",
        "\u2028",
    };
    for (const char *text : texts)
        QTest::addRow("\"%s\"", text) << QString::fromUtf8(text);
    QTest::addRow("long") << QStringLiteral("Durchmesser ").repeated(300).trimmed();
}

void tst_zelQtLabel::hasTheSizeThatItsTextDocumentHas()
{
    QFETCH(QString, text);
    for (const int pointSize : {7, 9, 13, 22}) {
        for (const bool italic : {false, true}) {
            ZelQtLabel label(text);
            QLabel plain(text);
            plain.setTextFormat(Qt::RichText);
            QFont font = label.font();
            font.setPointSize(pointSize);
            font.setItalic(italic);
            label.setFont(font);
            plain.setFont(font);
            QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint());
            const int reserve = isPlainText(text) ? 0 : label.fontMetrics().averageCharWidth();
            QCOMPARE(label.sizeHint().width(), plain.sizeHint().width() + reserve);
        }
    }
}

void tst_zelQtLabel::hasTheSizeOfAFrameAndOfMarginsToo()
{
    ZelQtLabel label(QStringLiteral("Kraft"));
    QLabel plain(QStringLiteral("Kraft"));
    plain.setTextFormat(Qt::RichText);
    const auto change = [&](const std::function<void(QLabel &)> &changeOne) {
        changeOne(label);
        changeOne(plain);
    };
    const std::function<void(QLabel &)> changes[] = {
        [](QLabel &one) { one.setIndent(5); },
        [](QLabel &one) { one.setIndent(-1); },
        [](QLabel &one) { one.setMargin(4); },
        [](QLabel &one) { one.setMargin(0); },
        [](QLabel &one) { one.setFrameShape(QFrame::Box); },
        [](QLabel &one) { one.setFrameShape(QFrame::NoFrame); },
        [](QLabel &one) { one.setContentsMargins(1, 2, 3, 4); },
        [](QLabel &one) { one.setContentsMargins(0, 0, 0, 0); },
        // Like QLabel not before the text is measured again: layouts keep to the minimum anyway.
        [](QLabel &one) { one.setMinimumWidth(300); },
        [](QLabel &one) { one.setText(QStringLiteral("Moment")); },
        [](QLabel &one) { one.setMinimumWidth(0); },
        [](QLabel &one) { one.setTextFormat(Qt::PlainText); },
        [](QLabel &one) { one.setWordWrap(true); },
        [](QLabel &one) { one.setPixmap(QPixmap(17, 18)); },
    };
    for (const auto &one : changes) {
        change(one);
        QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint());
        QCOMPARE(label.sizeHint().width(), plain.sizeHint().width());
    }
}

void tst_zelQtLabel::measuresAgainAfterEveryChange()
{
    ZelQtLabel label(QStringLiteral("Kraft"));
    const int narrow = label.sizeHint().width();
    label.setText(QStringLiteral("Kraft und Moment"));
    QVERIFY(label.sizeHint().width() > narrow);
    static_cast<QLabel &>(label).setText(QStringLiteral("Kraft"));
    QCOMPARE(label.sizeHint().width(), narrow);

    QFont font = label.font();
    font.setPointSize(3 * font.pointSize());
    label.setFont(font);
    QVERIFY(label.sizeHint().width() > 2 * narrow);
    QVERIFY(label.minimumSizeHint().width() > 2 * narrow);
}

QTEST_MAIN(tst_zelQtLabel)
#include "tst_zelQtLabel.moc"
