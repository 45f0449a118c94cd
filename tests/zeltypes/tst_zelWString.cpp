#include "zelWString.h"

#include <QtTest>

class tst_zelWString : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void takesANumberAsDecimalText();
    void readsTheLeadingNumber_data();
    void readsTheLeadingNumber();
    void utf8RoundTrip_data();
    void utf8RoundTrip();
    void invalidBytesBecomeTheReplacementCharacter_data();
    void invalidBytesBecomeTheReplacementCharacter();
};

void tst_zelWString::startsEmpty()
{
    QVERIFY(zelWString().empty());
    QVERIFY(zelWString(static_cast<const wchar_t *>(nullptr)).empty());
    QVERIFY(zelWString() == L"");
}

void tst_zelWString::takesANumberAsDecimalText()
{
    QVERIFY(zelWString(-42) == L"-42");
}

void tst_zelWString::readsTheLeadingNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("plain") << "17" << 17;
    QTest::newRow("negative") << "-3" << -3;
    QTest::newRow("with a rest") << "12 mm" << 12;
    QTest::newRow("no number") << "mm" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("beyond int") << "99999999999" << 0;
    QTest::newRow("beyond long") << "99999999999999999999999" << 0;
}

void tst_zelWString::readsTheLeadingNumber()
{
    QFETCH(QString, text);
    QTEST(zelWString(text.toStdWString()).toInt(), "number");
}

void tst_zelWString::utf8RoundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("ascii") << "abc";
    QTest::newRow("umlaut") << "Öffnen";
    QTest::newRow("three bytes") << "中文 € ≥";
    QTest::newRow("four bytes") << QString::fromUtf8("\xF0\x9D\x9C\x8F");
}

void tst_zelWString::utf8RoundTrip()
{
    QFETCH(QString, text);
    const zelWString wide = zelWString::fromUtf8(text.toStdString());
    QCOMPARE(QString::fromStdWString(wide), text);
    QCOMPARE(QByteArray::fromStdString(wide.toUtf8()), text.toUtf8());
}

void tst_zelWString::invalidBytesBecomeTheReplacementCharacter_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("lone continuation") << QByteArray("a\x80");
    QTest::newRow("overlong") << QByteArray("a\xC0\xAF");
    QTest::newRow("surrogate") << QByteArray("a\xED\xA0\x80");
    QTest::newRow("cut off") << QByteArray("a\xE2\x82");
    QTest::newRow("beyond Unicode") << QByteArray("a\xF4\x90\x80\x80");
}

void tst_zelWString::invalidBytesBecomeTheReplacementCharacter()
{
    QFETCH(QByteArray, bytes);
    const std::wstring wide = zelWString::fromUtf8(bytes.toStdString());
    QVERIFY(wide.size() > 1);
    QCOMPARE(wide[0], L'a');
    for (size_t i = 1; i < wide.size(); ++i)
        QCOMPARE(wide[i], L'\uFFFD');
}

QTEST_APPLESS_MAIN(tst_zelWString)
#include "tst_zelWString.moc"
