#include "zelQtTextHelpers.h"

#include "modal.h"
#include "zelQtTextHelpers_p.h"

#include <QMenu>
#include <QtTest>

class tst_zelQtTextHelpers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsAColor_data();
    void readsAColor();
    void numbersBeyond255GiveAnInvalidColorOnPurpose();
    void writesAColor();
    void colorRoundTrip_data();
    void colorRoundTrip();
    void simpleTextFlattensRichText_data();
    void simpleTextFlattensRichText();
    void plainTextKeepsRoomForEntities_data();
    void plainTextKeepsRoomForEntities();
    void nothingHasNoWidth_data();
    void nothingHasNoWidth();
    void widthHasHalfAWInReserve();
    void widthUsesTheFontOfTheApplication();
    void tellsPlainTextFromRichText_data();
    void tellsPlainTextFromRichText();
    void unitWithoutDimensionShowsNoMenu();
    void unitMenuListsTheDimensionInOrder();
    void unitMenuMarksNothingOnPurpose();
    void chosenUnitComesBack();
    void unitMenuLeftWithoutAChoice();
    void ordersWithoutRegardToCase();
};

void tst_zelQtTextHelpers::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtTextHelpers::readsAColor_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("stored form") << "{1|2|3|4;RGBA}" << QColor(1, 2, 3, 4);
    QTest::newRow("three numbers are opaque") << "{255|0|0;RGBA}" << QColor(255, 0, 0, 255);
    QTest::newRow("plain form") << "10|20|30" << QColor(10, 20, 30, 255);
    QTest::newRow("empty parts are dropped") << "10||20||30" << QColor(10, 20, 30, 255);
    QTest::newRow("a part that is no number is 0") << "10|x|30" << QColor(10, 0, 30, 255);
    QTest::newRow("the tail is case sensitive") << "1|2|3;rgba}" << QColor(1, 2, 0, 255);
    QTest::newRow("no separator, gray is meant") << "red" << QColor(Qt::gray);
    QTest::newRow("empty") << "" << QColor(Qt::gray);
    QTest::newRow("a brace alone") << "{" << QColor(Qt::gray);
    QTest::newRow("two numbers") << "{1|2;RGBA}" << QColor(Qt::gray);
    QTest::newRow("five numbers") << "1|2|3|4|5" << QColor(Qt::gray);
}

void tst_zelQtTextHelpers::readsAColor()
{
    QFETCH(QString, text);
    QTEST(colorFromString(text), "color");
}

void tst_zelQtTextHelpers::numbersBeyond255GiveAnInvalidColorOnPurpose()
{
    QTest::ignoreMessage(QtWarningMsg, "QColor::fromRgb: RGB parameters out of range");
    QVERIFY(!colorFromString(QStringLiteral("{300|0|0|255;RGBA}")).isValid());
}

void tst_zelQtTextHelpers::writesAColor()
{
    QCOMPARE(colorToString(QColor(255, 7, 0, 128)), QStringLiteral("{255|7|0|128;RGBA}"));
}

void tst_zelQtTextHelpers::colorRoundTrip_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("black") << QColor(0, 0, 0);
    QTest::newRow("white, transparent") << QColor(255, 255, 255, 0);
    for (int i = 1; i < 255; i += 23)
        QTest::addRow("%d", i) << QColor(i, 255 - i, (i * 7) % 256, (i * 5) % 256);
}

void tst_zelQtTextHelpers::colorRoundTrip()
{
    QFETCH(QColor, color);
    QCOMPARE(colorFromString(colorToString(color)), color);
}

void tst_zelQtTextHelpers::simpleTextFlattensRichText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("simple");
    QTest::newRow("superscript") << "mm<sup>2</sup>"
                                 << "mm^2";
    QTest::newRow("an entity leaves nothing") << "x<sup>2</sup>&nbsp;y"
                                              << "x^2y";
    QTest::newRow("other tags vanish") << "<b>a</b><br>b"
                                       << "ab";
    QTest::newRow("umlauts are letters") << "a&grüße;b"
                                         << "ab";
    QTest::newRow("a tag with attributes stays") << "<font color=red>a</font>"
                                                 << "<font color=red>a";
    QTest::newRow("a numeric entity stays") << "&#176;"
                                            << "&#176;";
    QTest::newRow("case sensitive superscript") << "m<SUP>2</SUP>"
                                                << "m2";
    QTest::newRow("plain") << "1 < 2 & 3"
                           << "1 < 2 & 3";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_zelQtTextHelpers::simpleTextFlattensRichText()
{
    QFETCH(QString, text);
    QTEST(simpleText(text), "simple");
}

void tst_zelQtTextHelpers::plainTextKeepsRoomForEntities_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    QTest::newRow("entity") << "a&nbsp;b"
                            << "a_b";
    QTest::newRow("two entities") << "&lt;&gt;"
                                  << "__";
    QTest::newRow("tag") << "<b>a</b>"
                         << "a";
    QTest::newRow("superscript stays in line") << "mm<sup>2</sup>"
                                               << "mm2";
    QTest::newRow("a tag with attributes stays") << "<font color=red>a"
                                                 << "<font color=red>a";
    QTest::newRow("plain") << "a < b"
                           << "a < b";
}

void tst_zelQtTextHelpers::plainTextKeepsRoomForEntities()
{
    QFETCH(QString, text);
    QTEST(plainText(text), "plain");
}

void tst_zelQtTextHelpers::nothingHasNoWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("tags alone") << "<b></b>";
}

void tst_zelQtTextHelpers::nothingHasNoWidth()
{
    QFETCH(QString, text);
    QCOMPARE(plainTextWidth(text), 0);
}

void tst_zelQtTextHelpers::widthHasHalfAWInReserve()
{
    QFont font = QApplication::font();
    font.setPixelSize(37);
    const QFontMetrics metrics(font);
    const int plain = metrics.horizontalAdvance(QStringLiteral("a_2"));
    const int reserve = metrics.horizontalAdvance(QLatin1Char('w'));
    QVERIFY(plain > 0 && reserve > 1);
    QCOMPARE(plainTextWidth(QStringLiteral("a&nbsp;<sup>2</sup>"), metrics),
             static_cast<int>(plain + 0.5 * reserve));
}

void tst_zelQtTextHelpers::widthUsesTheFontOfTheApplication()
{
    const QString text = QStringLiteral("Länge");
    QCOMPARE(plainTextWidth(text), plainTextWidth(text, QApplication::fontMetrics()));
}

void tst_zelQtTextHelpers::tellsPlainTextFromRichText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("plain");
    QTest::newRow("a lone angle bracket") << "1 < 2" << true;
    QTest::newRow("a lone ampersand") << "a & b" << true;
    QTest::newRow("a tag") << "a<br>" << false;
    QTest::newRow("a closing tag") << "a</b>" << false;
    QTest::newRow("an entity") << "a&amp;b" << false;
    QTest::newRow("a numeric entity counts as plain") << "&#176;" << true;
    QTest::newRow("a tag with attributes counts as plain, which is meant")
        << "<font color=red>" << true;
    QTest::newRow("empty") << "" << true;
}

void tst_zelQtTextHelpers::tellsPlainTextFromRichText()
{
    QFETCH(QString, text);
    QTEST(isPlainText(text), "plain");
}

void tst_zelQtTextHelpers::unitWithoutDimensionShowsNoMenu()
{
    const auto menu = onPopup([](QWidget *) {});
    QCOMPARE(execUnitMenu(ZelDimensions::NoUnit, QPoint()), ZelDimensions::NoUnit);
    QCOMPARE(execUnitMenu(QString(), QPoint()), QString());
    QCOMPARE(execUnitMenu(QStringLiteral("no unit"), QPoint()), QString());
    QVERIFY(!menu.ran());
}

void tst_zelQtTextHelpers::unitMenuListsTheDimensionInOrder()
{
    QStringList expected;
    for (const std::wstring &text : ZelDimensions::getStringList(ZelDimensions::Angle))
        expected.append(QString::fromStdWString(text));
    QVERIFY(expected.size() > 1);

    QStringList texts;
    QPoint place;
    const auto popup = onPopup<QMenu>([&](QMenu *menu) {
        for (const QAction *action : menu->actions())
            texts.append(action->text());
        place = menu->pos();
        QVERIFY(!menu->parent());
    });
    execUnitMenu(static_cast<ZelDimensions::Unit>(133), QPoint(20, 30));
    QVERIFY(popup.ran());
    QCOMPARE(texts, expected);
    QCOMPARE(place, QPoint(20, 30));
}

void tst_zelQtTextHelpers::unitMenuMarksNothingOnPurpose()
{
    const auto popup = onPopup<QMenu>([](QMenu *menu) {
        QVERIFY(!menu->defaultAction());
        QVERIFY(!menu->activeAction());
        for (const QAction *action : menu->actions())
            QVERIFY(!action->isCheckable());
    });
    execUnitMenu(ZelDimensions::Metre, QPoint());
    QVERIFY(popup.ran());
}

void tst_zelQtTextHelpers::chosenUnitComesBack()
{
    const auto chooseSecond = [](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    };
    const ZelDimensions::Unit second = ZelDimensions::getList(ZelDimensions::Length).at(1);
    const auto first = onPopup<QMenu>(chooseSecond);
    QCOMPARE(execUnitMenu(ZelDimensions::Metre, QPoint()), second);
    QVERIFY(first.ran());

    const auto again = onPopup<QMenu>(chooseSecond);
    QCOMPARE(execUnitMenu(QStringLiteral("m"), QPoint()),
             QString::fromStdWString(ZelDimensions::getString(second)));
    QVERIFY(again.ran());
}

void tst_zelQtTextHelpers::unitMenuLeftWithoutAChoice()
{
    const auto escape = [](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); };
    const auto first = onPopup<QMenu>(escape);
    QCOMPARE(execUnitMenu(ZelDimensions::Metre, QPoint()), ZelDimensions::NoUnit);
    QVERIFY(first.ran());

    const auto again = onPopup<QMenu>(escape);
    QCOMPARE(execUnitMenu(QStringLiteral("m"), QPoint()), QString());
    QVERIFY(again.ran());
}

void tst_zelQtTextHelpers::ordersWithoutRegardToCase()
{
    QStringList names{QStringLiteral("b"), QStringLiteral("C"), QStringLiteral("A")};
    std::sort(names.begin(), names.end(), lessCaseInsensitive);
    QCOMPARE(names, QStringList({QStringLiteral("A"), QStringLiteral("b"), QStringLiteral("C")}));
    QVERIFY(!lessCaseInsensitive(QStringLiteral("A"), QStringLiteral("a")));
}

QTEST_MAIN(tst_zelQtTextHelpers)
#include "tst_zelQtTextHelpers.moc"
