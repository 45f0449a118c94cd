#include "sumModule.h"

#include "internMessage.h"
#include "zelLanguage.h"
#include "zelUIVarChoice.h"

#include <QtTest>

namespace {

const std::string sumFile = TEST_DATA_DIR "/sum.xml";

QString report(const ZelFaultList &faults)
{
    return QString::fromStdString(zelFaultReport(faults));
}

QStringList codes(const ZelCalcResult &result)
{
    QStringList list;
    for (const ZelCalcMessage &message : result.mMessages)
        list << QString::fromStdString(message.mCode);
    return list;
}

struct Sum
{
    Sum()
        : mLoaded(zelLoadModule(sumFile, sumRegistry(), mFaults))
    {
    }
    SumModule &module() const { return static_cast<SumModule &>(*mLoaded->mModule); }
    Meta &meta() const { return mLoaded->meta(); }
    void type(const wchar_t *name, double value, int64_t id = 0) const
    {
        const ZelUIVar &variable = *meta().variable(name);
        meta().setReal(variable, id, 0, value, ZelOrigin::User);
        meta().noteTyped(variable, id);
    }

    ZelFaultList mFaults;
    std::unique_ptr<ZelLoadedModule> mLoaded;
};

// Asks for something that the description does not have, or has otherwise.
class Asking : public ZelCalcModule
{
public:
    void calculate(ZelCalcRun &) override { mRan = true; }
    bool mRan = false;
};

} // namespace

class tst_zelCalcModule : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void handlesReadAndWriteTheStore();
    void unboundHandlesAreNeutral();
    void listHandleKnowsEntriesByName();
    void resultsAreUnsetUntilTheyAreComputed();
    void calculationWritesResults();
    void objectsAreCalculatedApart();
    void errorRefusesAndUnsetsResults();
    void exceptionIsAMessageAndRefuses();
    void foreignExceptionIsAMessageToo();
    void refusalAfterSuccessEmptiesTheResults();
    void messagesColourTheirFields();
    void errorIsNotHiddenByAWarning();
    void messageTextFollowsLanguageAndUnits();
    void argumentsStandForTheirNumbers();
    void typingInAnotherAlternativeConverts();
    void whatWasTypedComesThroughTheConversion();
    void pickedByTheModuleOrAFileIsNotConverted();
    void unknownClassIsAFaultAndTheMaskShows();
    void descriptionWithoutClassNeedsNoCalculation();
    void functionsOfTheModuleAreKnownAtLoad();
};

void tst_zelCalcModule::cleanup()
{
    setZelLanguage(ZelLanguage::German);
    TarvexModule::Setup = nullptr;
}

void tst_zelCalcModule::handlesReadAndWriteTheStore()
{
    const Sum sum;
    QCOMPARE(report(sum.mFaults), QString());
    SumModule &module = sum.module();
    QCOMPARE(module.mA.get(), 2.0);
    module.mA.set(4.5);
    QCOMPARE(module.mA.get(), 4.5);
    QCOMPARE(module.mA.get(7), 2.0);
    QCOMPARE(sum.meta().real(*sum.meta().variable(L"a"), 0), 4.5);
    QCOMPARE(module.mCount.get(), int64_t(4));
    module.mCount.set(-3);
    QCOMPARE(module.mCount.get(), int64_t(-3));
    QCOMPARE(module.mDoubled.get(), false);
    module.mDoubled.set(true);
    QCOMPARE(module.mDoubled.get(), true);
    QCOMPARE(module.mNote.get(), zelWString(L"keine"));
    module.mNote.set(L"viele");
    QCOMPARE(module.mNote.get(), zelWString(L"viele"));
    module.mMode.set(3);
    QCOMPARE(module.mMode.get(), int64_t(3));
    QVERIFY(module.mA.isEntered());
    QVERIFY(!module.mArea.isEntered());
    QVERIFY(!module.mOffset.isEntered());
    QVERIFY(!module.mSum.isEntered());
}

void tst_zelCalcModule::unboundHandlesAreNeutral()
{
    SumModule module;
    module.mA.set(3);
    module.mNote.set(L"x");
    module.mSum.unset();
    QCOMPARE(module.mA.get(), 0.0);
    QCOMPARE(module.mCount.get(), int64_t(0));
    QCOMPARE(module.mDoubled.get(), false);
    QVERIFY(module.mNote.get().empty());
    QVERIFY(!module.mMode.is("plain"));
    QVERIFY(!module.mA.isSet());
    QVERIFY(!module.mA.isEntered());
    QVERIFY(!module.mA.variable());
    QVERIFY(!module.canCalculate());
    QVERIFY(!module.run(0).mSucceeded);
}

void tst_zelCalcModule::listHandleKnowsEntriesByName()
{
    const Sum sum;
    QVERIFY(sum.module().mMode.is("plain"));
    QVERIFY(!sum.module().mMode.is("throw"));
    QVERIFY(!sum.module().mMode.is("nothing"));
    QVERIFY(sum.module().mGiven.is("side"));
}

void tst_zelCalcModule::resultsAreUnsetUntilTheyAreComputed()
{
    const Sum sum;
    QVERIFY(!sum.module().mSum.isSet());
    QVERIFY(sum.module().run(0).mSucceeded);
    QVERIFY(sum.module().mSum.isSet());
    sum.module().mSum.unset();
    QVERIFY(!sum.module().mSum.isSet());
}

void tst_zelCalcModule::calculationWritesResults()
{
    const Sum sum;
    const ZelCalcResult result = sum.module().run(0);
    QVERIFY(result.mSucceeded);
    QCOMPARE(codes(result), QStringList{"done"});
    QCOMPARE(sum.module().mSum.get(), 5.5);
    QCOMPARE(sum.module().mArea.get(), 6.0);
    QCOMPARE(sum.module().mOffset.get(), 0.5);
}

void tst_zelCalcModule::objectsAreCalculatedApart()
{
    const Sum sum;
    sum.module().mA.set(10, 2);
    QVERIFY(sum.module().run(2).mSucceeded);
    QCOMPARE(sum.module().mSum.get(2), 13.5);
    QVERIFY(!sum.module().mSum.isSet(0));
}

void tst_zelCalcModule::errorRefusesAndUnsetsResults()
{
    const Sum sum;
    sum.module().mA.set(-1);
    const ZelCalcResult result = sum.module().run(0);
    QVERIFY(!result.mSucceeded);
    QCOMPARE(codes(result), QStringList{"notPositive"});
    QCOMPARE(int(result.mMessages[0].mSeverity), int(ZelMessageSeverity::Error));
    QCOMPARE(result.mMessages[0].mVariables, std::vector<zelWString>{L"a"});
    // The module had written it before it saw the error.
    QVERIFY(!sum.module().mSum.isSet());
}

void tst_zelCalcModule::exceptionIsAMessageAndRefuses()
{
    const Sum sum;
    sum.module().mMode.set(2);
    const ZelCalcResult result = sum.module().run(0);
    QVERIFY(!result.mSucceeded);
    QCOMPARE(codes(result), QStringList{"exception"});
    QCOMPARE(QString::fromStdWString(result.mMessages[0].text()),
             QString("Interner Fehler der Berechnung: überall"));
}

void tst_zelCalcModule::foreignExceptionIsAMessageToo()
{
    const Sum sum;
    sum.module().mMode.set(3);
    const ZelCalcResult result = sum.module().run(0);
    QVERIFY(!result.mSucceeded);
    QCOMPARE(codes(result), QStringList{"exception"});
}

void tst_zelCalcModule::refusalAfterSuccessEmptiesTheResults()
{
    const Sum sum;
    QVERIFY(sum.module().run(0).mSucceeded);
    sum.module().mMode.set(2);
    QVERIFY(!sum.module().run(0).mSucceeded);
    QVERIFY(!sum.module().mSum.isSet());
    // Inputs and values that may be entered keep what they hold.
    QCOMPARE(sum.module().mArea.get(), 6.0);
}

void tst_zelCalcModule::messagesColourTheirFields()
{
    const Sum sum;
    const auto state = [&sum](const wchar_t *name) {
        return sum.meta().messageState(*sum.meta().variable(name), 0);
    };
    sum.module().mB.set(200);
    sum.module().run(0);
    QCOMPARE(state(L"b"), 2);
    QCOMPARE(state(L"a"), 2);
    QCOMPARE(state(L"s"), 0); // a note colours nothing
    sum.module().mA.set(0);
    sum.module().run(0);
    QCOMPARE(state(L"a"), 1);
    QCOMPARE(state(L"b"), 0); // colours of the run before are gone
}

void tst_zelCalcModule::errorIsNotHiddenByAWarning()
{
    const Sum sum;
    ZelCalcRun run(sum.meta(), 0, nullptr);
    run.error("e", {sum.module().mA}, "Fehler");
    run.warning("w", {sum.module().mA}, "Warnung");
    QCOMPARE(sum.meta().messageState(*sum.meta().variable(L"a"), 0), 1);
    QVERIFY(run.hasErrors());
    QCOMPARE(run.messages().size(), size_t(2));
}

void tst_zelCalcModule::messageTextFollowsLanguageAndUnits()
{
    const Sum sum;
    sum.module().mB.set(254.5);
    const ZelCalcResult result = sum.module().run(0);
    QCOMPARE(codes(result), (QStringList{"long", "done"}));
    const auto text = [&result] { return QString::fromStdWString(result.mMessages[0].text()); };
    QCOMPARE(text(), QString("Die Seite b ist mit 254,5 mm sehr lang."));
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(text(), QString("Side b is very long: 254.5 mm."));
    TarvexSetup setup;
    setup.mUSCustomaryUnits = 1;
    TarvexModule::Setup = &setup;
    QCOMPARE(text(), QString("Side b is very long: 10 in."));
}

void tst_zelCalcModule::argumentsStandForTheirNumbers()
{
    ZelCalcMessage message;
    message.mText.setText(L"%2, %1, %9, 100 %, %3%");
    message.mArguments = {"ä", 3, 0.25};
    QCOMPARE(QString::fromStdWString(message.text()), QString("3, ä, %9, 100 %, 0,25%"));
}

void tst_zelCalcModule::typingInAnotherAlternativeConverts()
{
    const Sum sum;
    // b was typed before, so the area of the last calculation is not the present one.
    sum.type(L"b", 5);
    QCOMPARE(sum.module().mConversions, QString());
    sum.type(L"A", 8);
    QCOMPARE(sum.module().mConversions, QString("1>2@0 "));
    sum.type(L"A", 9);
    QCOMPARE(sum.module().mConversions, QString("1>2@0 "));
    sum.type(L"b", 1);
    QCOMPARE(sum.module().mConversions, QString("1>2@0 2>1@0 "));
}

void tst_zelCalcModule::whatWasTypedComesThroughTheConversion()
{
    const Sum sum;
    // The module's conversion writes a * b = 6 over the area that was just typed.
    sum.type(L"A", 8);
    QCOMPARE(sum.module().mArea.get(), 8.0);
    QVERIFY(sum.module().run(0).mSucceeded);
    QCOMPARE(sum.module().mB.get(), 4.0);
}

void tst_zelCalcModule::pickedByTheModuleOrAFileIsNotConverted()
{
    const Sum sum;
    const auto *given = dynamic_cast<const ZelUIVarChoice *>(sum.meta().variable(L"given"));
    sum.meta().pick(*given, 0, 2, ZelOrigin::Load);
    sum.meta().pick(*given, 0, 1, ZelOrigin::Module);
    QCOMPARE(sum.module().mConversions, QString());
    sum.meta().pick(*given, 0, 2, ZelOrigin::User);
    QCOMPARE(sum.module().mConversions, QString("1>2@0 "));
    QCOMPARE(sum.module().mArea.get(), 6.0);
}

void tst_zelCalcModule::unknownClassIsAFaultAndTheMaskShows()
{
    ZelFaultList faults;
    const std::string source =
        "<module id=\"m\" class=\"SunModule\"><variables><real name=\"d\"/></variables></module>";
    const auto loaded =
        zelLoadModule(ZelDescription::fromText(source, "m.xml", faults), sumRegistry(), faults);
    QCOMPARE(report(faults),
             QString("m.xml:1:23: error: unknown calculation \"SunModule\" "
                     "(did you mean \"SumModule\"?)\n"));
    QVERIFY(loaded->meta().variable(L"d"));
    const ZelCalcResult result = loaded->mModule->run(0);
    QVERIFY(!result.mSucceeded);
    QCOMPARE(codes(result), QStringList{"noCalculation"});
    QVERIFY(!result.mMessages[0].text().empty());
}

void tst_zelCalcModule::descriptionWithoutClassNeedsNoCalculation()
{
    ZelFaultList faults;
    const auto loaded = zelLoadModule(
        ZelDescription::fromText("<module id=\"m\"/>", "m.xml", faults), sumRegistry(), faults);
    QVERIFY(faults.empty());
    QVERIFY(loaded->mModule->run(0).mSucceeded);
}

void tst_zelCalcModule::functionsOfTheModuleAreKnownAtLoad()
{
    class WithFunction : public Asking
    {
    public:
        WithFunction()
        {
            meta().setFunction(L"title", [](const zelWString &, zelWString &) { return true; });
        }
    };
    ZelModuleRegistry registry;
    registry.add(L"Asking", [] { return std::make_unique<WithFunction>(); });
    const auto load = [&registry](const std::string &function) {
        ZelFaultList faults;
        const std::string source = "<module id=\"m\" class=\"Asking\"><variables><functext "
                                   "name=\"t\" function=\""
            + function + "\"/></variables></module>";
        zelLoadModule(ZelDescription::fromText(source, "m.xml", faults), registry, faults);
        return faults;
    };
    QVERIFY(load("title").empty());
    QCOMPARE(load("titel").size(), size_t(1));
    QCOMPARE(int(load("titel")[0].mCode), int(ZelFaultCode::UnknownFunction));
}

QTEST_GUILESS_MAIN(tst_zelCalcModule)
#include "tst_zelCalcModule.moc"
