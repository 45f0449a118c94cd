#include "internMessage.h"
#include "tarvexModule.h"
#include "zelDimensions.h"

#include <QtTest>
#include <cstring>

// What the handler was given: variant, type, text.
struct MessageLog
{
    QStringList mShown;
    int mAnswer = 0;

    MessageLog()
    {
        Meldung::setHandler([this](MeldungsVar variant, MeldungsTyp type, const zelWString &text) {
            mShown << QString("%1 %2 %3").arg(variant).arg(type).arg(QString::fromStdWString(text));
            return mAnswer;
        });
    }
    ~MessageLog() { Meldung::setHandler({}); }
    QStringList take() { return std::exchange(mShown, {}); }
};

class tst_tarvexModule : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void withoutSettingsAllIsMetric();
    void settingsRuleTheUnits();
    void flagIsTheFirstByteOfTheSettings();
    void activeModule();
    void deadModuleIsNotActive();
    void noticeShowsWhenItGetsItsText();
    void questionHoldsItsTextUntilItIsAsked();
    void noticeInBetweenLeavesTheTextOfAQuestion();
    void messageWithoutHandlerIsReportedAndDeclined();
};

void tst_tarvexModule::cleanup()
{
    TarvexModule::Setup = nullptr;
    Meldung::setHandler({});
}

void tst_tarvexModule::withoutSettingsAllIsMetric()
{
    QVERIFY(!TarvexModule::Setup);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Inch, true), ZelDimensions::Millimetre);
}

void tst_tarvexModule::settingsRuleTheUnits()
{
    TarvexSetup setup;
    TarvexModule::Setup = &setup;
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Millimetre, true),
             ZelDimensions::Millimetre);
    setup.mUSCustomaryUnits = 1;
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Millimetre, true), ZelDimensions::Inch);
    QCOMPARE(ZelDimensions::defaultUnit(ZelDimensions::Inch, false), ZelDimensions::Millimetre);
}

void tst_tarvexModule::flagIsTheFirstByteOfTheSettings()
{
    TarvexSetup setup{1};
    unsigned char first = 0;
    std::memcpy(&first, &setup, 1);
    QCOMPARE(int(first), 1);
}

void tst_tarvexModule::activeModule()
{
    QVERIFY(!TarvexModule::GetActiveModule());
    TarvexModule first;
    TarvexModule second;
    QCOMPARE(TarvexModule::GetActiveModule(&first), &first);
    QCOMPARE(TarvexModule::GetActiveModule(nullptr), &first);
    QCOMPARE(TarvexModule::GetActiveModule(&second), &second);
    first.deactivate();
    QCOMPARE(TarvexModule::GetActiveModule(), &second);
    second.deactivate();
    QVERIFY(!TarvexModule::GetActiveModule());
}

void tst_tarvexModule::deadModuleIsNotActive()
{
    {
        TarvexModule module;
        TarvexModule::GetActiveModule(&module);
    }
    QVERIFY(!TarvexModule::GetActiveModule());
}

void tst_tarvexModule::noticeShowsWhenItGetsItsText()
{
    MessageLog log;
    TarvexModule module;
    Meldung *notice = module.GetMeldung(0, 3, true);
    QCOMPARE(log.take(), QStringList());
    notice->setText(L"Keine Zeile");
    QCOMPARE(log.take(), QStringList("0 3 Keine Zeile"));
    QCOMPARE(notice->answer(), 0);
    QCOMPARE(log.take(), QStringList());
}

void tst_tarvexModule::questionHoldsItsTextUntilItIsAsked()
{
    MessageLog log;
    log.mAnswer = 1;
    TarvexModule module;
    module.GetMeldung(2, 1, true)->setText(L"Löschen?");
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(module.GetMeldung(2, 9, true)->answer(), 1);
    QCOMPARE(log.take(), QStringList("2 9 Löschen?"));
    log.mAnswer = 0;
    QCOMPARE(module.GetMeldung(2, 9, true)->answer(), 0);
}

void tst_tarvexModule::noticeInBetweenLeavesTheTextOfAQuestion()
{
    MessageLog log;
    TarvexModule module;
    module.GetMeldung(2, 1, true)->setText(L"Löschen?");
    module.GetMeldung(0, 3, true)->setText(L"Nur so");
    module.GetMeldung(2, 9, true)->answer();
    QCOMPARE(log.take(), (QStringList{"0 3 Nur so", "2 9 Löschen?"}));
}

void tst_tarvexModule::messageWithoutHandlerIsReportedAndDeclined()
{
    QStringList reported;
    const auto former = setInternMessageSink(
        [&reported](const char *, long, const char *text) { reported << text; });
    TarvexModule module;
    module.GetMeldung(0, 3, true)->setText(L"Fehler");
    Meldung *question = module.GetMeldung(2, 9, true);
    question->setText(L"Löschen?");
    const int answer = question->answer();
    setInternMessageSink(former);
    QVERIFY(answer != 0);
    QCOMPARE(reported, (QStringList{"Fehler", "Löschen?"}));
}

QTEST_GUILESS_MAIN(tst_tarvexModule)
#include "tst_tarvexModule.moc"
