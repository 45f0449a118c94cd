#include "sumModule.h"

#include "zelLanguage.h"
#include "zelMask.h"
#include "zelUIBoard.h"
#include "zelUIComboBox.h"
#include "zelUIEditButton.h"
#include "zelUIFlag.h"
#include "zelUIPushButton.h"
#include "zelUITabPage.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"
#include "zelUiPlainFactory.h"

#include <QtTest>

#include <bit>

namespace {

template <class Kind> Kind *find(const ZelUIObject &parent, const wchar_t *itemName)
{
    for (ZelUIObject *child : parent.modelChildren()) {
        auto *found = dynamic_cast<Kind *>(child);
        auto *item = dynamic_cast<ZelUIItem *>(child);
        if (found && (item ? item->getItemName() : child->getName()) == itemName)
            return found;
        if (Kind *below = find<Kind>(*child, itemName))
            return below;
    }
    return nullptr;
}

QString text(const zelWString &wide)
{
    return QString::fromStdWString(wide);
}

struct SumMask
{
    SumMask()
        : mLoaded(zelLoadModule(TEST_DATA_DIR "/sum.xml", sumRegistry(), mFaults))
        , mMask(*mLoaded, mFactory, mFaults)
    {
    }
    template <class Kind = ZelUIValueEdit> Kind &item(const wchar_t *name) const
    {
        for (const ZelUITabPage *page : mMask.pages()) {
            if (Kind *found = find<Kind>(*page, name))
                return *found;
        }
        throw std::runtime_error("no such item");
    }
    SumModule &module() const { return static_cast<SumModule &>(*mLoaded->mModule); }
    /// As a user enters a value and leaves the field.
    void enter(const wchar_t *name, double value)
    {
        item(name).mValue = value;
        mMask.collect();
        mMask.refresh();
    }

    ZelFaultList mFaults;
    std::unique_ptr<ZelLoadedModule> mLoaded;
    ZelUiPlainFactory mFactory;
    ZelMask mMask;
};

// Knows boards and fields, but neither lists nor labels.
class PoorFactory : public ZelUiPlainFactory
{
public:
    ZelUIComboBox *makeComboBox() override { return nullptr; }
    ZelUITextLabel *makeTextLabel(ZelUIAlignment) override { return nullptr; }
};

} // namespace

class tst_zelDriver : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void buildMakesAPageForEachOfTheDescription();
    void factoryWithoutPagesGivesNone();
    void kindThatTheFactoryDoesNotKnowIsLeftOut();
    void buildFillsTheFields();
    void textsAreThereBeforeTheFirstRefresh();
    void calculateTakesInputsAndShowsResults();
    void refusedCalculationEmptiesTheResults();
    void collectWritesOnlyWhatTheUserChanged();
    void resultsAreNeverCollected();
    void typingLowersTheOthersOnCollect();
    void switchOfAnOptionalValue();
    void acceptButtonFollowsTheCalculation();
    void retranslateChangesTextsAndKeepsValues();
    void unitSystemChangesNoStoredBit();
    void otherObjectShowsItsOwnValues();
    void whatBecomesEnabledFillsAtOnce();
    void faultsOfTheBuildNameTheFile();
    void whatTheCheckLeavesBuildsWithoutFaults_data();
    void whatTheCheckLeavesBuildsWithoutFaults();
};

void tst_zelDriver::cleanup()
{
    setZelLanguage(ZelLanguage::German);
    TarvexModule::Setup = nullptr;
}

void tst_zelDriver::buildMakesAPageForEachOfTheDescription()
{
    const SumMask sum;
    QCOMPARE(QString::fromStdString(zelFaultReport(sum.mFaults)), QString());
    QCOMPARE(sum.mMask.pages().size(), size_t(2));
    QCOMPARE(text(sum.mMask.pages()[0]->getTitle()), QString("Eingabe"));
    QCOMPARE(text(sum.mMask.pages()[1]->getTitle()), QString("Ergebnis"));
}

void tst_zelDriver::factoryWithoutPagesGivesNone()
{
    ZelFaultList faults;
    const auto loaded = zelLoadModule(TEST_DATA_DIR "/sum.xml", sumRegistry(), faults);
    ZelUiFactory nothing;
    ZelMask mask(*loaded, nothing, faults);
    QVERIFY(mask.pages().empty());
    QVERIFY(faults.empty());
    QVERIFY(mask.calculate().mSucceeded);
}

void tst_zelDriver::kindThatTheFactoryDoesNotKnowIsLeftOut()
{
    ZelFaultList faults;
    const auto loaded = zelLoadModule(TEST_DATA_DIR "/sum.xml", sumRegistry(), faults);
    PoorFactory factory;
    ZelMask mask(*loaded, factory, faults);
    QVERIFY(faults.empty());
    QVERIFY(!find<ZelUIComboBox>(*mask.pages()[0], L"mode"));
    QVERIFY(find<ZelUIValueEdit>(*mask.pages()[0], L"a"));
    QVERIFY(mask.calculate().mSucceeded);
}

void tst_zelDriver::buildFillsTheFields()
{
    const SumMask sum;
    const ZelUIValueEdit &a = sum.item(L"a");
    QCOMPARE(a.mValue, 2.0);
    QCOMPARE(a.mDecimals, short(2));
    QVERIFY(a.mHasBottom && a.mHasTop);
    QVERIFY(a.mEnabled && a.mVisible && !a.mReadOnly);
    QVERIFY(!sum.item(L"hidden").mVisible);
    // A result that was not computed is empty: it counts as disabled.
    QVERIFY(!sum.item(L"s").mEnabled);
    QVERIFY(sum.item(L"s").mReadOnly);
    QCOMPARE(text(sum.item<ZelUIUnitLabel>(L"a_unit").getUnitString()), QString("mm"));
}

void tst_zelDriver::textsAreThereBeforeTheFirstRefresh()
{
    ZelFaultList faults;
    const auto loaded = zelLoadModule(TEST_DATA_DIR "/sum.xml", sumRegistry(), faults);
    ZelUiPlainFactory factory;
    const ZelUITabPage *page = zelBuild(*loaded->mDescription.pages()[0], loaded->meta(), factory,
                                        faults, loaded->mDescription.fileName());
    QVERIFY(page);
    auto *label = find<ZelUITextLabel>(*page, L"a_label");
    QVERIFY(label);
    QCOMPARE(text(label->getText()), QString("Seite a"));
}

void tst_zelDriver::calculateTakesInputsAndShowsResults()
{
    SumMask sum;
    // Typed, but not confirmed by anything: the calculation collects.
    sum.item(L"a").mValue = 10;
    sum.item<ZelUIFlag>(L"doubled").mChecked = true;
    const ZelCalcResult result = sum.mMask.calculate();
    QVERIFY(result.mSucceeded);
    QCOMPARE(result.mMessages.size(), size_t(1));
    QCOMPARE(sum.item(L"s").mValue, 27.0);
    QVERIFY(sum.item(L"s").mEnabled);
    QVERIFY(sum.item(L"s").mReadOnly);
    QCOMPARE(sum.item(L"A").mValue, 30.0);
}

void tst_zelDriver::refusedCalculationEmptiesTheResults()
{
    SumMask sum;
    QVERIFY(sum.mMask.calculate().mSucceeded);
    QVERIFY(sum.item(L"s").mEnabled);
    sum.item(L"a").mValue = -1;
    QVERIFY(!sum.mMask.calculate().mSucceeded);
    QVERIFY(!sum.item(L"s").mEnabled);
    QCOMPARE(sum.item(L"a").mValue, -1.0);
}

void tst_zelDriver::collectWritesOnlyWhatTheUserChanged()
{
    SumMask sum;
    QStringList written;
    sum.mMask.meta().setObserver(
        [&written](const ZelValueChange &change) { written << text(change.mVariable->name()); });
    sum.mMask.collect();
    QCOMPARE(written, QStringList());
    sum.item(L"b").mValue = 4;
    sum.mMask.collect();
    QCOMPARE(written, QStringList{"b"});
    sum.mMask.collect();
    QCOMPARE(written, QStringList{"b"});
}

void tst_zelDriver::resultsAreNeverCollected()
{
    SumMask sum;
    QVERIFY(sum.mMask.calculate().mSucceeded);
    sum.item(L"s").mValue = 99;
    sum.mMask.collect();
    QCOMPARE(sum.module().mSum.get(), 5.5);
}

void tst_zelDriver::typingLowersTheOthersOnCollect()
{
    SumMask sum;
    QVERIFY(!sum.item(L"b").mLowPriority);
    QVERIFY(sum.item(L"A").mLowPriority);
    QCOMPARE(text(sum.item(L"A").mPriorityName), QString("given"));
    QVERIFY(sum.item(L"a").mPriorityName.empty());
    QVERIFY(!sum.item(L"A").mReadOnly);

    sum.item(L"A").mValue = 8;
    sum.mMask.collect();
    // Before any refresh, which may come much later.
    QVERIFY(sum.item(L"b").mLowPriority);
    QVERIFY(!sum.item(L"A").mLowPriority);
    QCOMPARE(sum.module().mConversions, QString("1>2@0 "));
    QVERIFY(sum.mMask.calculate().mSucceeded);
    QCOMPARE(sum.item(L"b").mValue, 4.0);
    QCOMPARE(sum.item(L"A").mValue, 8.0);

    sum.enter(L"b", 5);
    QVERIFY(!sum.item(L"b").mLowPriority);
    QVERIFY(sum.item(L"A").mLowPriority);
    QCOMPARE(sum.item(L"b").mValue, 5.0);
}

void tst_zelDriver::switchOfAnOptionalValue()
{
    SumMask sum;
    auto &button = sum.item<ZelUIEditButton>(L"offset_edit");
    QCOMPARE(int(button.mEditType), int(ZelUIEditButtonType::CHECKBOX));
    QVERIFY(!button.mChecked);
    QVERIFY(sum.item(L"offset").mReadOnly);
    button.mChecked = true;
    sum.mMask.collect();
    sum.mMask.refresh();
    QVERIFY(!sum.item(L"offset").mReadOnly);
    sum.enter(L"offset", 20);
    QVERIFY(sum.mMask.calculate().mSucceeded);
    QCOMPARE(sum.item(L"s").mValue, 25.0);
    button.mChecked = false;
    QVERIFY(sum.mMask.calculate().mSucceeded);
    QCOMPARE(sum.item(L"s").mValue, 5.5);
    QCOMPARE(sum.item(L"offset").mValue, 0.5);
}

void tst_zelDriver::acceptButtonFollowsTheCalculation()
{
    SumMask sum;
    auto &ok = sum.item<ZelUIPushButton>(L"ok");
    auto &cancel = sum.item<ZelUIPushButton>(L"cancel");
    QVERIFY(sum.mMask.calculate().mSucceeded);
    QVERIFY(ok.mEnabled);
    sum.item(L"a").mValue = -1;
    QVERIFY(!sum.mMask.calculate().mSucceeded);
    QVERIFY(!ok.mEnabled);
    QVERIFY(cancel.mEnabled);
}

void tst_zelDriver::retranslateChangesTextsAndKeepsValues()
{
    SumMask sum;
    sum.enter(L"a", 7);
    sum.item<ZelUIComboBox>(L"mode").mCurrentId = 3;
    sum.mMask.collect();
    setZelLanguage(ZelLanguage::English);
    sum.mMask.retranslate();
    QCOMPARE(text(sum.item<ZelUITextLabel>(L"a_label").getText()), QString("Side a"));
    QCOMPARE(text(sum.mMask.pages()[0]->getTitle()), QString("Input"));
    QCOMPARE(text(sum.item<ZelUIComboBox>(L"mode").getRenderedData()), QString("odd"));
    QCOMPARE(sum.item(L"a").mValue, 7.0);
    QCOMPARE(sum.item<ZelUIComboBox>(L"mode").mCurrentId, short(3));
}

void tst_zelDriver::unitSystemChangesNoStoredBit()
{
    SumMask sum;
    sum.enter(L"a", 0.1);
    const auto bits = [&sum] { return std::bit_cast<uint64_t>(sum.module().mA.get()); };
    const uint64_t before = bits();
    TarvexSetup setup;
    setup.mUSCustomaryUnits = 1;
    TarvexModule::Setup = &setup;
    sum.mMask.updateUnitSystem();
    QCOMPARE(text(sum.item<ZelUIUnitLabel>(L"a_unit").getUnitString()), QString("in"));
    QCOMPARE(sum.item(L"a").valueInCurrentUnit(), 0.1 / 25.4);
    sum.mMask.collect();
    sum.mMask.refresh();
    QCOMPARE(text(sum.item<ZelUIUnitLabel>(L"a_unit").getUnitString()), QString("in"));
    setup.mUSCustomaryUnits = 0;
    sum.mMask.updateUnitSystem();
    sum.mMask.collect();
    QCOMPARE(text(sum.item<ZelUIUnitLabel>(L"a_unit").getUnitString()), QString("mm"));
    QCOMPARE(bits(), before);
}

void tst_zelDriver::otherObjectShowsItsOwnValues()
{
    SumMask sum;
    sum.enter(L"a", 7);
    sum.mMask.setId(5);
    QCOMPARE(sum.item(L"a").mValue, 2.0);
    sum.enter(L"a", 9);
    sum.mMask.setId(0);
    QCOMPARE(sum.item(L"a").mValue, 7.0);
    QCOMPARE(sum.module().mA.get(5), 9.0);
}

void tst_zelDriver::whatBecomesEnabledFillsAtOnce()
{
    ZelFaultList faults;
    const std::string source =
        "<module id=\"m\"><variables><real name=\"x\" initial=\"3\" enabled=\"on\"/>"
        "<bool name=\"on\"/></variables><page><board><column><var name=\"x\"/><var name=\"on\"/>"
        "</column></board></page></module>";
    const auto loaded =
        zelLoadModule(ZelDescription::fromText(source, "m.xml", faults), sumRegistry(), faults);
    // Fields show nothing while they are disabled: one that is filled before its state stays empty.
    class Field : public ZelUIValueEdit
    {
    public:
        void setData(Meta *meta, int64_t id) override
        {
            ZelUIValueEdit::setData(meta, id);
            mShown = mEnabled ? mValue : -1;
        }
        double mShown = -1;
    };
    class Factory : public ZelUiPlainFactory
    {
    public:
        ZelUIValueEdit *makeValueEdit() override { return &mField; }
        Field mField;
    };
    Factory factory;
    ZelMask mask(*loaded, factory, faults);
    QVERIFY(faults.empty());
    QCOMPARE(factory.mField.mShown, -1.0);
    find<ZelUIFlag>(*mask.pages()[0], L"on")->mChecked = true;
    mask.collect();
    mask.refresh();
    QCOMPARE(factory.mField.mShown, 3.0);
}

void tst_zelDriver::faultsOfTheBuildNameTheFile()
{
    ZelFaultList faults;
    Meta meta;
    ZelUiPlainFactory factory;
    // Built without the check that takes unknown variables out.
    auto document = ZelDomDocument::fromText(
        "<page>\n<board><column><var name=\"x\"/></column></board></page>", "m.xml", faults);
    QVERIFY(zelBuild(*document.root(), meta, factory, faults, "m.xml"));
    QCOMPARE(faults.size(), size_t(1));
    QCOMPARE(int(faults[0].mCode), int(ZelFaultCode::UnknownName));
    QCOMPARE(faults[0].mFile, std::string("m.xml"));
    QCOMPARE(faults[0].mLine, 2);
}

void tst_zelDriver::whatTheCheckLeavesBuildsWithoutFaults_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("damage");
    for (const char *file : {"sum.xml", "bearing.xml"}) {
        QTest::addRow("%s cut", file) << file << 0;
        QTest::addRow("%s neighbours swapped", file) << file << 1;
        QTest::addRow("%s word doubled", file) << file << 2;
        QTest::addRow("%s letter exchanged", file) << file << 3;
    }
}

void tst_zelDriver::whatTheCheckLeavesBuildsWithoutFaults()
{
    QFETCH(QString, file);
    QFETCH(int, damage);
    QFile source(TEST_DATA_DIR "/" + file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const std::string bytes = source.readAll().toStdString();
    const ZelModuleRegistry registry = sumRegistry();
    size_t tried = 0;
    size_t faulty = 0;
    for (size_t at = 0; at + 1 < bytes.size(); at += damage == 0 ? 1 : 3) {
        ++tried;
        std::string damaged = bytes;
        if (damage == 0)
            damaged.resize(at);
        else if (damage == 1)
            std::swap(damaged[at], damaged[at + 1]);
        else if (damage == 2)
            damaged.insert(at, damaged.substr(at, bytes.find_first_of(" >", at) - at + 1));
        else
            damaged[at] = static_cast<char>("xA0 \"<"[at % 6]);
        ZelFaultList faults;
        const auto loaded =
            zelLoadModule(ZelDescription::fromText(damaged, "m.xml", faults), registry, faults);
        const size_t found = faults.size();
        ZelUiPlainFactory factory;
        ZelMask mask(*loaded, factory, faults);
        mask.calculate();
        mask.retranslate();
        faulty += found > 0 ? 1 : 0;
        if (faults.size() != found)
            QFAIL(qPrintable(QString("byte %1: %2")
                                 .arg(at)
                                 .arg(QString::fromStdString(faults.back().toString()))));
    }
    // Damage that hits white space or a text is none.
    QVERIFY(faulty > tried / 3);
}

QTEST_GUILESS_MAIN(tst_zelDriver)
#include "tst_zelDriver.moc"
