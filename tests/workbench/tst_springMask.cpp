#include "springModuleSupport.h"
#include "tarvexModule.h"
#include "zelLanguage.h"
#include "zelMask.h"
#include "zelUIComboBox.h"
#include "zelUIEditButton.h"
#include "zelUIMultiVar.h"
#include "zelUITabPage.h"
#include "zelUIValueEdit.h"
#include "zelUiPlainFactory.h"

#include <QtTest>

using namespace SpringTest;

// The mask of the spring without widgets: what a user does, and what the fields show then.
class tst_springMask : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void maskHasNoFaults();
    void examplesAreTypedAndRead_data();
    void examplesAreTypedAndRead();
    void switchingUnitsAndLanguageChangesNoStoredBit_data();
    void switchingUnitsAndLanguageChangesNoStoredBit();
    void switchingWhileTypingChangesNoStoredBit();

    void materialOfAGradeIsReadOnly();
    void strengthOfAGradeIsEmptyWithoutAWireThatExists();
    void temperatureIsForGradesAlone();
    void permissibleStressIsForHotCoiledSpringsAlone();
    void correctedStressesShowForDynamicLoad();
    void typingAForceLowersTheLengths();
    void fieldsTypedBetweenTwoCollectionsAllCount();
    void refusedSpringShowsNoResults();

private:
    template <class Object> Object &find(const QString &itemName) const;
    ZelUIValueEdit &field(const char *name) const { return find<ZelUIValueEdit>(name); }
    bool type(const QString &name, const QString &text);
    bool typeNumber(const QString &name, double metric);
    void tick(const QString &name);
    void typeExample(const QString &example);
    void setSystem(bool usCustomary);
    void setLanguage(ZelLanguage language);
    QString bits() const { return QString::fromStdString(zelWriteValues(meta(), true)); }
    Meta &meta() const { return mSpring->meta(); }
    void compareShown(const Expected &row) const;

    TarvexSetup mSetup;
    std::unique_ptr<ZelUiPlainFactory> mFactory;
    std::unique_ptr<ZelLoadedModule> mSpring;
    std::unique_ptr<ZelMask> mMask;
    ZelFaultList mFaults;
};

void tst_springMask::init()
{
    mSetup = {};
    TarvexModule::Setup = &mSetup;
    mFaults.clear();
    mMask.reset();
    mFactory = std::make_unique<ZelUiPlainFactory>();
    mSpring = load();
    mMask = std::make_unique<ZelMask>(*mSpring, *mFactory, mFaults);
}

void tst_springMask::cleanup()
{
    TarvexModule::Setup = nullptr;
    setZelLanguage(ZelLanguage::German);
}

template <class Object> static Object *findBelow(const ZelUIObject &parent, const QString &itemName)
{
    for (ZelUIObject *child : parent.modelChildren()) {
        auto *item = dynamic_cast<ZelUIItem *>(child);
        auto *object = dynamic_cast<Object *>(child);
        if (item && object && toText(item->getItemName()) == itemName)
            return object;
        if (Object *below = findBelow<Object>(*child, itemName))
            return below;
    }
    return nullptr;
}

template <class Object> Object &tst_springMask::find(const QString &itemName) const
{
    for (const ZelUITabPage *page : mMask->pages()) {
        if (Object *found = findBelow<Object>(*page, itemName))
            return *found;
    }
    qFatal("no %s in the mask", qPrintable(itemName));
}

// A field that is confirmed is collected, and the mask follows.
bool tst_springMask::type(const QString &name, const QString &text)
{
    bool changed = false;
    const bool read = find<ZelUIInput>(name).setUserInput(&meta(), 0, text.toStdWString(), changed);
    mMask->collect();
    mMask->refresh();
    return read;
}

// In the unit that the field shows, with as many digits as the number has.
bool tst_springMask::typeNumber(const QString &name, double metric)
{
    const auto &edit = find<ZelUIValueEdit>(name);
    const double shown = ZelDimensions::changeUnit(metric, edit.defaultUnit(), edit.currentUnit());
    return type(name, QString::fromStdString(zelNumberText(shown)).replace('.', ','));
}

void tst_springMask::tick(const QString &name)
{
    find<ZelUIEditButton>(name + "_edit").mChecked = true;
    mMask->collect();
    mMask->refresh();
}

void tst_springMask::setSystem(bool usCustomary)
{
    mSetup.mUSCustomaryUnits = usCustomary;
    mMask->updateUnitSystem();
    mMask->refresh();
}

void tst_springMask::setLanguage(ZelLanguage language)
{
    setZelLanguage(language);
    mMask->retranslate();
}

void tst_springMask::typeExample(const QString &example)
{
    using Numbers = QVector<QPair<QString, double>>;
    const bool first = example == "S1";
    QVERIFY(type("grade", first ? "eigene Werte" : "SH"));
    QVERIFY(type("load", first ? "statisch" : "dynamisch"));
    QVERIFY(type("nu", first ? "0,5: beide Enden fest und geführt" : "1: beide Enden kippbar"));
    tick("nt");
    const Numbers numbers = first
        ? Numbers{{"d", 7},     {"D", 42},    {"n", 8},      {"nt", 10},
                  {"L0", 110},  {"G", 81370}, {"E", 206000}, {"rho", 7.85},
                  {"Rm", 1090}, {"F1", 400},  {"F2", 1250}}
        : Numbers{{"d", 2.5}, {"D", 20}, {"n", 7.5}, {"nt", 9.5},
                  {"L0", 70}, {"T", 20}, {"L1", 62}, {"L2", 46}};
    for (const auto &[name, number] : numbers)
        QVERIFY2(typeNumber(name, number), qPrintable(name));
}

void tst_springMask::maskHasNoFaults()
{
    QCOMPARE(QString::fromStdString(zelFaultReport(mFaults)), QString());
    QCOMPARE(mMask->pages().size(), size_t(1));
}

void tst_springMask::examplesAreTypedAndRead_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<bool>("usCustomary");
    for (const QString example : {"S1", "S2"}) {
        QTest::addRow("%s metric", qPrintable(example)) << example << false;
        QTest::addRow("%s US customary", qPrintable(example)) << example << true;
    }
}

// A field shows decimals, the document six digits: they differ by half a unit of both.
void tst_springMask::compareShown(const Expected &row) const
{
    auto &edit = find<ZelUIValueEdit>(row.mName);
    const QString text = toText(edit.getRenderedData());
    if (!row.mValue) {
        QVERIFY2(text.isEmpty(), qPrintable(row.mName));
        return;
    }
    bool isNumber = false;
    const double shown = text.toDouble(&isNumber);
    QVERIFY2(isNumber, qPrintable(row.mName));
    const double expected =
        ZelDimensions::changeUnit(*row.mValue, edit.defaultUnit(), edit.currentUnit());
    const double slack = 0.5 * std::pow(10, -edit.mDecimals) + 1e-5 * std::abs(expected);
    QVERIFY2(std::abs(shown - expected) <= slack, qPrintable(row.mName + ' ' + text));
    QVERIFY2(std::abs(shown - expected) <= 0.05 * std::abs(expected),
             qPrintable(row.mName + " shows too few digits: " + text));
}

void tst_springMask::examplesAreTypedAndRead()
{
    QFETCH(QString, example);
    QFETCH(bool, usCustomary);
    setSystem(usCustomary);
    typeExample(example);
    QCOMPARE(field("d").currentUnit() == ZelDimensions::Inch, usCustomary);
    const ZelCalcResult result = mMask->calculate();
    QVERIFY(result.mSucceeded);
    QCOMPARE(codes(result), example == "S1" ? QStringList() : QStringList("mayBuckle"));
    for (const Expected &row : expectedResults(example)) {
        if (row.mValue)
            QVERIFY2(close(value(meta(), row.mName), *row.mValue), qPrintable(row.mName));
        compareShown(row);
    }
}

void tst_springMask::switchingUnitsAndLanguageChangesNoStoredBit_data()
{
    QTest::addColumn<QString>("example");
    QTest::newRow("S1") << "S1";
    QTest::newRow("S2") << "S2";
}

void tst_springMask::switchingUnitsAndLanguageChangesNoStoredBit()
{
    QFETCH(QString, example);
    typeExample(example);
    QVERIFY(mMask->calculate().mSucceeded);
    const QString before = bits();
    const QString shown = toText(field("R").getRenderedData());
    setSystem(true);
    QVERIFY(toText(field("R").getRenderedData()) != shown);
    mMask->collect();
    QCOMPARE(bits(), before);
    setLanguage(ZelLanguage::English);
    QCOMPARE(toText(find<ZelUIComboBox>("grade").getRenderedData()),
             example == "S1" ? QStringLiteral("own values") : QStringLiteral("SH"));
    mMask->collect();
    QCOMPARE(bits(), before);
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(bits(), before);
    setSystem(false);
    setLanguage(ZelLanguage::German);
    mMask->collect();
    QCOMPARE(bits(), before);
    QCOMPARE(toText(field("R").getRenderedData()), shown);
}

// Half of the inputs in each system: those typed before stay as they were typed.
void tst_springMask::switchingWhileTypingChangesNoStoredBit()
{
    typeExample("S2");
    setSystem(true);
    setLanguage(ZelLanguage::English);
    QVERIFY(typeNumber("L1", 61));
    QCOMPARE(value(meta(), "d"), 2.5);
    QCOMPARE(value(meta(), "L2"), 46.0);
    setSystem(false);
    QCOMPARE(value(meta(), "d"), 2.5);
    QVERIFY(close(value(meta(), "L1"), 61, 1e-15));
    QVERIFY(typeNumber("L1", 62));
    QVERIFY(mMask->calculate().mSucceeded);
    for (const Expected &row : expectedResults("S2")) {
        if (row.mValue)
            QVERIFY2(close(value(meta(), row.mName), *row.mValue), qPrintable(row.mName));
    }
}

void tst_springMask::materialOfAGradeIsReadOnly()
{
    typeExample("S2");
    for (const char *name : {"G", "E", "rho", "Rm"}) {
        QVERIFY(field(name).mReadOnly);
        QVERIFY(!type(name, "1000"));
    }
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(toText(field("Rm").getRenderedData()), QStringLiteral("1893.7"));
    QVERIFY(type("grade", "eigene Werte"));
    for (const char *name : {"G", "E", "rho", "Rm"}) {
        QVERIFY(!field(name).mReadOnly);
        QVERIFY(type(name, "1000"));
    }
}

void tst_springMask::strengthOfAGradeIsEmptyWithoutAWireThatExists()
{
    QCOMPARE(toText(field("Rm").getRenderedData()), QString());
    typeExample("S2");
    QVERIFY(mMask->calculate().mSucceeded);
    QVERIFY(!field("Rm").getRenderedData().empty());
    QVERIFY(type("d", "0,2"));
    QVERIFY(!mMask->calculate().mSucceeded);
    QCOMPARE(toText(field("Rm").getRenderedData()), QString());
    QVERIFY(type("grade", "eigene Werte"));
    QVERIFY(type("Rm", "2000"));
}

void tst_springMask::temperatureIsForGradesAlone()
{
    QVERIFY(field("T").mEnabled);
    QVERIFY(type("grade", "eigene Werte"));
    QVERIFY(!field("T").mEnabled);
}

void tst_springMask::permissibleStressIsForHotCoiledSpringsAlone()
{
    QVERIFY(field("tau_zul").mReadOnly);
    QVERIFY(find<ZelUIEditButton>("tau_zul_edit").mReadOnly);
    QVERIFY(type("coiling", "warmgeformt"));
    QVERIFY(!find<ZelUIEditButton>("tau_zul_edit").mReadOnly);
    QVERIFY(field("tau_zul").mReadOnly);
    tick("tau_zul");
    QVERIFY(!field("tau_zul").mReadOnly);
    QVERIFY(type("tau_zul", "900"));
    QCOMPARE(value(meta(), "tau_zul"), 900.0);
}

void tst_springMask::correctedStressesShowForDynamicLoad()
{
    typeExample("S2");
    QVERIFY(mMask->calculate().mSucceeded);
    QVERIFY(field("tau_k2").mVisible);
    QVERIFY(type("load", "statisch"));
    QVERIFY(!field("tau_k2").mVisible);
    QVERIFY(field("tau_2").mVisible);
}

void tst_springMask::typingAForceLowersTheLengths()
{
    typeExample("S2");
    QVERIFY(mMask->calculate().mSucceeded);
    QVERIFY(field("F1").mLowPriority && field("F2").mLowPriority);
    QVERIFY(!field("L1").mLowPriority && !field("L2").mLowPriority);
    const double first = value(meta(), "F1");
    QVERIFY(type("F2", "150"));
    QVERIFY(field("L1").mLowPriority && field("L2").mLowPriority);
    QVERIFY(!field("F1").mLowPriority && !field("F2").mLowPriority);
    QVERIFY(value(meta(), "F1") == first);
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(toText(field("F1").getRenderedData()), QStringLiteral("53.06"));
    QCOMPARE(toText(field("F2").getRenderedData()), QStringLiteral("150.00"));
    QCOMPARE(toText(field("L1").getRenderedData()), QStringLiteral("62.000"));
    QCOMPARE(toText(field("L2").getRenderedData()), QStringLiteral("47.384"));
}

// Calculating collects what is not confirmed yet: the length is converted, the force is kept.
void tst_springMask::fieldsTypedBetweenTwoCollectionsAllCount()
{
    typeExample("S2");
    QVERIFY(mMask->calculate().mSucceeded);
    field("L1").mValue = 60;
    field("F2").mValue = 150;
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(value(meta(), "F2"), 150.0);
    QVERIFY(close(value(meta(), "F1"), value(meta(), "R") * 10, 1e-12));
    field("F1").mValue = 55;
    field("F2").mValue = 160;
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(value(meta(), "F1"), 55.0);
    QCOMPARE(value(meta(), "F2"), 160.0);
    field("L1").mValue = 61;
    field("L2").mValue = 47;
    QVERIFY(mMask->calculate().mSucceeded);
    QCOMPARE(value(meta(), "L1"), 61.0);
    QCOMPARE(value(meta(), "L2"), 47.0);
    QVERIFY(close(value(meta(), "F2"), value(meta(), "R") * 23, 1e-12));
}

void tst_springMask::refusedSpringShowsNoResults()
{
    typeExample("S2");
    QVERIFY(mMask->calculate().mSucceeded);
    QVERIFY(!field("R").getRenderedData().empty());
    QVERIFY(type("D", "2"));
    QVERIFY(!mMask->calculate().mSucceeded);
    for (const char *name : {"R", "s1", "tau_2", "mass", "fe"})
        QCOMPARE(toText(field(name).getRenderedData()), QString());
    QCOMPARE(toText(field("D").getRenderedData()), QStringLiteral("2.000"));
}

QTEST_APPLESS_MAIN(tst_springMask)
#include "tst_springMask.moc"
