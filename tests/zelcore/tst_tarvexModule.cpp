#include "internMessage.h"
#include "tarvexModule.h"
#include "zelDimensions.h"

#include <QtTest>
#include <cstring>

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
    void messageGoesThroughTheHandler();
    void messageWithoutHandlerIsReported();
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

void tst_tarvexModule::messageGoesThroughTheHandler()
{
    QString shown;
    Meldung::setHandler([&shown](MeldungsVar variant, MeldungsTyp type, const zelWString &text) {
        shown =
            QString("%1 %2 %3").arg(int(variant)).arg(int(type)).arg(QString::fromStdWString(text));
        return 1;
    });
    TarvexModule module;
    Meldung *message = module.GetMeldung(MeldungsVar::YesNo, MeldungsTyp::Question, true);
    QVERIFY(message);
    QCOMPARE(message->show(L"Löschen?"), 1);
    QCOMPARE(shown, QString("1 3 Löschen?"));
}

void tst_tarvexModule::messageWithoutHandlerIsReported()
{
    QString reported;
    const auto former = setInternMessageSink(
        [&reported](const char *, long, const char *text) { reported = text; });
    TarvexModule module;
    QCOMPARE(module.GetMeldung(MeldungsVar::Ok, MeldungsTyp::Error, true)->show(L"Fehler"), 0);
    setInternMessageSink(former);
    QCOMPARE(reported, QString("Fehler"));
}

QTEST_GUILESS_MAIN(tst_tarvexModule)
#include "tst_tarvexModule.moc"
