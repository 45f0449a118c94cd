#include "zelQtSameText_p.h"

#include <QtTest>

class tst_zelQtSameText : public QObject
{
    Q_OBJECT

private slots:
    void comparesEveryCharacter_data();
    void comparesEveryCharacter();
};

void tst_zelQtSameText::comparesEveryCharacter_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("same");
    QTest::newRow("both empty") << ""
                                << "" << true;
    QTest::newRow("null and empty") << QString() << "" << true;
    QTest::newRow("equal") << QStringLiteral("Größe") << QStringLiteral("Größe") << true;
    QTest::newRow("longer") << "mm"
                            << "mm2" << false;
    QTest::newRow("shorter") << "mm2"
                             << "mm" << false;
    QTest::newRow("last differs") << "mm2"
                                  << "mm3" << false;
    QTest::newRow("first differs") << "am"
                                   << "mm" << false;
    QTest::newRow("only the low bits") << QStringLiteral("\u0141") << QStringLiteral("A") << false;
}

void tst_zelQtSameText::comparesEveryCharacter()
{
    QFETCH(QString, shown);
    QFETCH(QString, text);
    QFETCH(bool, same);
    QCOMPARE(isSameText(shown, text.toStdWString()), same);
}

QTEST_APPLESS_MAIN(tst_zelQtSameText)
#include "tst_zelQtSameText.moc"
