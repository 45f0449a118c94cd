#include "zelModuleRegistry.h"

#include <QtTest>

namespace {

QString report(const ZelFaultList &faults)
{
    return QString::fromStdString(zelFaultReport(faults));
}

// Asks for something that the description does not have, or has otherwise.
class Asking : public ZelCalcModule
{
public:
    void calculate(ZelCalcRun &) override { mRan = true; }
    bool mRan = false;
};

template <class Handle> class AskingFor : public Asking
{
public:
    Handle mHandle{*this, "v"};
};

class AskingInMetre : public Asking
{
public:
    ZelRealVar mHandle{*this, "v", "m"};
};

class AskingInNonsense : public Asking
{
public:
    ZelRealVar mHandle{*this, "v", "nonsense"};
};

class AskingInMillimetre : public Asking
{
public:
    ZelRealVar mHandle{*this, "v", "mm"};
};

class AskingByFileUnit : public Asking
{
public:
    ZelRealVar mHandle{*this, "v", "N/mm2"};
};

// The fault of a module that is bound to one variable, "" for none.
template <class Module> QString faultOf(const char *variables, ZelFaultCode *code = nullptr)
{
    ZelModuleRegistry registry;
    registry.add<Module>(L"Asking");
    ZelFaultList faults;
    const std::string source = "<module id=\"m\" class=\"Asking\"><variables>\n"
        + std::string(variables) + "\n</variables><page/></module>";
    const auto loaded =
        zelLoadModule(ZelDescription::fromText(source, "m.xml", faults), registry, faults);
    if (code && !faults.empty())
        *code = faults[0].mCode;
    const bool calculates = loaded->mModule->canCalculate();
    const ZelCalcResult result = loaded->mModule->run(0);
    const bool ran = static_cast<Module &>(*loaded->mModule).mRan;
    // Either there is a fault and no calculation, or none and it runs.
    if (calculates != faults.empty() || ran != calculates || result.mSucceeded != calculates)
        return "inconsistent";
    return report(faults);
}

} // namespace

class tst_zelVarHandles : public QObject
{
    Q_OBJECT
private slots:
    void missingHandleIsAFault();
    void handleOfAnotherKindIsAFault_data();
    void handleOfAnotherKindIsAFault();
    void handleInAnotherUnitIsAFault();
    void unitTextForFilesIsAUnitToo();
    void realHandleTakesAListOfNumbers();
    void listHandleTakesAChoice();
    void resultHandleWantsAResult();
};

void tst_zelVarHandles::missingHandleIsAFault()
{
    ZelFaultCode code = ZelFaultCode::Syntax;
    QCOMPARE(faultOf<AskingInMillimetre>("<real name=\"w\" unit=\"mm\"/>", &code),
             QString("m.xml:1:23: error: the calculation Asking finds no variable \"v\" "
                     "(<real name=\"v\" unit=\"mm\">)\n"));
    QCOMPARE(int(code), int(ZelFaultCode::MissingHandle));
}

void tst_zelVarHandles::handleOfAnotherKindIsAFault_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("ofReal");
    QTest::addColumn<QString>("ofInt");
    QTest::addColumn<QString>("ofBool");
    QTest::addColumn<QString>("ofList");
    QTest::addColumn<QString>("ofText");
    const QString ok;
    const auto fault = [](const char *tag) {
        return QString("m.xml:2:2: error: the calculation Asking finds another kind of variable "
                       "\"v\" (<%1 name=\"v\">)\n")
            .arg(tag);
    };
    const QString real = fault("real"), whole = fault("int"), flag = fault("bool"),
                  list = fault("list"), text = fault("text");
    QTest::newRow("real") << "<real name=\"v\"/>" << ok << whole << flag << list << text;
    QTest::newRow("int") << "<int name=\"v\"/>" << real << ok << flag << list << text;
    QTest::newRow("bool") << "<bool name=\"v\"/>" << real << whole << ok << list << text;
    QTest::newRow("list") << "<list name=\"v\"/>" << real << whole << flag << ok << text;
    QTest::newRow("dblist") << "<dblist name=\"v\" table=\"t\"/>" << real << whole << flag << ok
                            << text;
    QTest::newRow("text") << "<text name=\"v\"/>" << real << whole << flag << list << ok;
    QTest::newRow("notes") << "<notes name=\"v\"/>" << real << whole << flag << list << ok;
    QTest::newRow("table") << "<table name=\"v\"/>" << real << whole << flag << list << text;
}

void tst_zelVarHandles::handleOfAnotherKindIsAFault()
{
    QFETCH(QString, variable);
    const QByteArray source = variable.toUtf8();
    QTEST(faultOf<AskingFor<ZelRealVar>>(source), "ofReal");
    QTEST(faultOf<AskingFor<ZelIntVar>>(source), "ofInt");
    QTEST(faultOf<AskingFor<ZelBoolVar>>(source), "ofBool");
    QTEST(faultOf<AskingFor<ZelListVar>>(source), "ofList");
    QTEST(faultOf<AskingFor<ZelTextVar>>(source), "ofText");
}

void tst_zelVarHandles::handleInAnotherUnitIsAFault()
{
    ZelFaultCode code = ZelFaultCode::Syntax;
    QCOMPARE(faultOf<AskingInMetre>("<real name=\"v\" unit=\"mm\"/>", &code),
             QString("m.xml:2:22: error: the calculation Asking finds another unit of \"v\" "
                     "(<real name=\"v\" unit=\"m\">)\n"));
    QCOMPARE(int(code), int(ZelFaultCode::WrongUnit));
    QVERIFY(faultOf<AskingInMetre>("<real name=\"v\"/>").contains("another unit"));
    QVERIFY(
        faultOf<AskingFor<ZelRealVar>>("<real name=\"v\" unit=\"mm\"/>").contains("another unit"));
    // A slip in the module itself is seen for every unit of the description.
    QVERIFY(faultOf<AskingInNonsense>("<real name=\"v\"/>").contains("another unit"));
    QCOMPARE(faultOf<AskingInMillimetre>("<real name=\"v\" unit=\"mm\"/>"), QString());
}

void tst_zelVarHandles::unitTextForFilesIsAUnitToo()
{
    QCOMPARE(faultOf<AskingByFileUnit>("<real name=\"v\" unit=\"N/mm²\"/>"), QString());
}

void tst_zelVarHandles::realHandleTakesAListOfNumbers()
{
    QCOMPARE(
        faultOf<AskingFor<ZelRealVar>>("<reallist name=\"v\"><entry number=\"1\"/></reallist>"),
        QString());
}

void tst_zelVarHandles::listHandleTakesAChoice()
{
    QCOMPARE(faultOf<AskingFor<ZelListVar>>("<real name=\"x\"/><choice name=\"v\">"
                                            "<alternative name=\"p\" vars=\"x\"/></choice>"),
             QString());
}

void tst_zelVarHandles::resultHandleWantsAResult()
{
    QVERIFY(faultOf<AskingFor<ZelResultVar>>("<real name=\"v\"/>")
                .contains("(<real name=\"v\" role=\"result\">)"));
    QCOMPARE(faultOf<AskingFor<ZelResultVar>>("<real name=\"v\" role=\"result\"/>"), QString());
}

QTEST_GUILESS_MAIN(tst_zelVarHandles)
#include "tst_zelVarHandles.moc"
