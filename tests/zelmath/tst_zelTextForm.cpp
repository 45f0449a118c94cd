#include "faults.h"
#include "zelTextForm.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QtTest>
#include <bit>
#include <limits>
#include <random>

namespace {

ZelListEntry entry(short id, const wchar_t *name)
{
    ZelListEntry entry;
    entry.mId = id;
    entry.mName = name;
    return entry;
}

struct Spring
{
    Meta mMeta;
    ZelUIMultiVar *mD = mMeta.add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre);
    ZelUIMultiVar *mF = mMeta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton, 2);
    ZelUIMultiVar *mN = mMeta.add<ZelUIMultiVar>(L"n");
    ZelUIMultiVar *mZ = mMeta.add<ZelUIMultiVar>(L"z");
    ZelUIMultiVar *mT = mMeta.add<ZelUIMultiVar>(L"T", ZelDimensions::Celsius);
    ZelUIMultiVar *mTau =
        mMeta.add<ZelUIMultiVar>(L"tau_k2", ZelDimensions::NewtonPerSquareMillimetre);
    ZelUIVarBool *mHot = mMeta.add<ZelUIVarBool>(L"hot");
    ZelUIVarList *mEnds = mMeta.add<ZelUIVarList>(L"ends");
    ZelUIVarRealList *mRatio = mMeta.add<ZelUIVarRealList>(L"ratio");
    ZelUIVarChoice *mRange = mMeta.add<ZelUIVarChoice>(L"range");
    ZelUIVarString *mNote = mMeta.add<ZelUIVarString>(L"note");
    ZelUIVarTable *mLoads = mMeta.add<ZelUIVarTable>(L"loads");
    ZelUIMultiVar *mRate = mMeta.add<ZelUIMultiVar>(L"R", ZelDimensions::NewtonPerMillimetre);

    Spring()
    {
        mD->mInitial[0] = 2;
        mF->mInitial = {10, 20, 0};
        mZ->mValueKind = 1;
        mTau->mOptional = true;
        mEnds->mEntries = {entry(1, L"open"), entry(2, L"closed"), entry(7, L"")};
        mRange->mEntries = {entry(1, L"lengths"), entry(2, L"forces")};
        mRange->mAlternatives = {{mD}, {mF}};
        mRate->mResult = true;
    }

    int read(const QByteArray &text, ZelFaultList *faults = nullptr)
    {
        ZelFaultList own;
        return zelReadValues(mMeta, text.toStdString(), "spring.val", faults ? *faults : own);
    }
    QString written(bool withResults = false) const
    {
        return QString::fromStdString(zelWriteValues(mMeta, withResults));
    }
};

} // namespace

class tst_zelTextForm : public QObject
{
    Q_OBJECT

private slots:
    void writesInitialValuesOfAnUntouchedStore();
    void writesAllObjectsInOrder();
    void writesResultsThatAreSetOnDemand();
    void computedValueOfAnUncheckedOptionIsAResult();
    void everyDoubleReadsBackTheSame_data();
    void everyDoubleReadsBackTheSame();
    void randomDoublesReadBackTheSame();
    void textsReadBackTheSame_data();
    void textsReadBackTheSame();
    void whatIsWrittenReadsBack();
    void readsValues_data();
    void readsValues();
    void unitsAreConverted_data();
    void unitsAreConverted();
    void readingTellsTheObserverWithTheOrigin();
    void readingAChoicePicks();
    void choiceWithoutAlternativesReadsBack();
    void commentsAndEmptyLinesCountForNothing();
    void listsOfTheDatabaseStandByNumber();
    void lastLineOfAValueHolds();
    void faultsHaveCodeAndPlace_data();
    void faultsHaveCodeAndPlace();
    void faultyLineChangesNothing();
    void unknownUnitListsThoseOfTheDimension();
    void unknownEntryListsTheOthers();
    void unsetValueIsEmptyText();
    void survivesDamage();
    void hugeFileOfFaultsEnds();
};

void tst_zelTextForm::writesInitialValuesOfAnUntouchedStore()
{
    QCOMPARE(Spring().written(),
             QString("d = 2 mm\nF = 10 N\nF[2] = 20 N\nn = 0\nz = 0\nT = 0 degC\n"
                     "entered(tau_k2) = false\nhot = false\nends = 0\n"
                     "ratio = 0\nrange = lengths\nnote = \"\"\n"));
}

void tst_zelTextForm::writesAllObjectsInOrder()
{
    Spring spring;
    spring.mMeta.setReal(*spring.mF, 2, 1, -0.1, ZelOrigin::User);
    spring.mMeta.setReal(*spring.mD, -1, 0, 1e22, ZelOrigin::User);
    const QStringList lines = spring.written().split('\n');
    QCOMPARE(lines[0], QString("d@-1 = 1e+22 mm"));
    QCOMPARE(lines[6], QString("entered(tau_k2)@-1 = false"));
    QCOMPARE(lines[12], QString("d@2 = 2 mm"));
    QCOMPARE(lines[14], QString("F[2]@2 = -0.1 N"));
}

void tst_zelTextForm::writesResultsThatAreSetOnDemand()
{
    Spring spring;
    QVERIFY(!spring.written(true).contains("R ="));
    spring.mMeta.setReal(*spring.mRate, 0, 0, 3.5, ZelOrigin::Module);
    QVERIFY(!spring.written(false).contains("R ="));
    QVERIFY(spring.written(true).endsWith("\nR = 3.5 N/mm\n"));
}

void tst_zelTextForm::computedValueOfAnUncheckedOptionIsAResult()
{
    Spring spring;
    spring.mMeta.setReal(*spring.mTau, 0, 0, 3.5, ZelOrigin::Module);
    QVERIFY(!spring.written(false).contains("tau_k2 ="));
    QVERIFY(spring.written(true).contains("\ntau_k2 = 3.5 N/mm2\n"));
    spring.mMeta.setOptionChecked(*spring.mTau, 0, true, ZelOrigin::User);
    QVERIFY(spring.written(false).contains("\nentered(tau_k2) = true\ntau_k2 = 3.5 N/mm2\n"));
}

void tst_zelTextForm::everyDoubleReadsBackTheSame_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    using Limits = std::numeric_limits<double>;
    QTest::newRow("tenth") << 0.1 << "0.1";
    QTest::newRow("third") << 1.0 / 3 << "0.3333333333333333";
    QTest::newRow("whole") << 1000.0 << "1000";
    QTest::newRow("negative zero") << -0.0 << "-0";
    QTest::newRow("largest") << Limits::max() << "1.7976931348623157e+308";
    QTest::newRow("smallest") << Limits::denorm_min() << "5e-324";
    QTest::newRow("smallest normal") << Limits::min() << "2.2250738585072014e-308";
    QTest::newRow("infinity") << Limits::infinity() << "inf";
    QTest::newRow("negative infinity") << -Limits::infinity() << "-inf";
    QTest::newRow("no number") << Limits::quiet_NaN() << "nan";
}

void tst_zelTextForm::everyDoubleReadsBackTheSame()
{
    QFETCH(double, value);
    QTEST(QString::fromStdString(zelNumberText(value)), "text");
    Spring spring;
    spring.mMeta.setReal(*spring.mD, 0, 0, value, ZelOrigin::User);
    Spring other;
    ZelFaultList faults;
    other.read(spring.written().toUtf8(), &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(std::bit_cast<quint64>(other.mMeta.real(*other.mD, 0)), std::bit_cast<quint64>(value));
}

void tst_zelTextForm::randomDoublesReadBackTheSame()
{
    std::mt19937_64 random(1);
    Spring spring;
    for (int i = 0; i < 2000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value))
            continue;
        const QByteArray line = "n = " + QByteArray::fromStdString(zelNumberText(value));
        QCOMPARE(spring.read(line), 1);
        QCOMPARE(std::bit_cast<quint64>(spring.mMeta.real(*spring.mN, 0)),
                 std::bit_cast<quint64>(value));
    }
}

void tst_zelTextForm::textsReadBackTheSame_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  a  ";
    QTest::newRow("quotes") << "\"a\" \"";
    QTest::newRow("backslashes") << "\\ \\\\ \\n \\\"";
    QTest::newRow("line breaks") << "a\nb\n\n";
    QTest::newRow("carriage return at the end") << "a\r";
    QTest::newRow("tab") << "a\tb";
    QTest::newRow("comment") << "# a = b";
    QTest::newRow("beyond ASCII") << "Öl ≥ 𝜏";
}

void tst_zelTextForm::textsReadBackTheSame()
{
    QFETCH(QString, text);
    Spring spring;
    spring.mMeta.setText(*spring.mNote, 0, zelWString(text.toStdWString()), ZelOrigin::User);
    Spring other;
    ZelFaultList faults;
    other.read(spring.written().toUtf8(), &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(QString::fromStdWString(other.mMeta.text(*other.mNote, 0)), text);
}

void tst_zelTextForm::whatIsWrittenReadsBack()
{
    Spring spring;
    Meta &meta = spring.mMeta;
    for (const int64_t id : {0, 1, 12}) {
        const auto number = static_cast<double>(id);
        meta.setReal(*spring.mF, id, 1, 0.1 + number, ZelOrigin::User);
        meta.setInteger(*spring.mZ, id, 0, std::numeric_limits<int64_t>::max() - id,
                        ZelOrigin::User);
        meta.setBoolean(*spring.mHot, id, true, ZelOrigin::User);
        meta.setInteger(*spring.mEnds, id, 0, id == 1 ? 7 : 2, ZelOrigin::User);
        meta.setReal(*spring.mRatio, id, 0, 1.5, ZelOrigin::User);
        meta.setOptionChecked(*spring.mTau, id, id == 1, ZelOrigin::User);
        meta.pick(*spring.mRange, id, 2, ZelOrigin::User);
    }
    Spring other;
    ZelFaultList faults;
    const int count = other.read(spring.written().toUtf8(), &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(count, spring.written().count('\n'));
    QCOMPARE(other.written(), spring.written());
    QVERIFY(other.written().contains("ends@1 = 7\n"));
    QVERIFY(other.written().contains("ends@12 = closed\n"));
}

void tst_zelTextForm::readsValues_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *line, const char *value) {
        QTest::newRow(line) << QByteArray(line) << QString(value);
    };
    row("d = 3.5 mm", "d = 3.5 mm");
    row("  d=3.5 \t mm  ", "d = 3.5 mm");
    row("d = 3.5 mm\r", "d = 3.5 mm");
    row("d[1] = 3 mm", "d = 3 mm");
    row("d[1]@0 = 3 mm", "d = 3 mm");
    row("F[2] = 7 N", "F[2] = 7 N");
    row("n = .5", "n = 0.5");
    row("n = 5.", "n = 5");
    row("n = -1E3", "n = -1000");
    row("z = -12", "z = -12");
    row("tau_k2 = 4 N/mm²", "tau_k2 = 4 N/mm2");
    row("tau_k2 = 4 N/mm2", "tau_k2 = 4 N/mm2");
    row("hot = true", "hot = true");
    row("ends = closed", "ends = closed");
    row("ends = 1", "ends = open");
    row("ratio = 2.25", "ratio = 2.25");
    row("range = forces", "range = forces");
    row("range = 2", "range = forces");
    row("note = \"a = 1\"", "note = \"a = 1\"");
    row("entered(tau_k2) = true", "entered(tau_k2) = true");
    row("d@7 = 1 mm", "d@7 = 1 mm");
    row("d@-7 = 1 mm", "d@-7 = 1 mm");
    row("entered(tau_k2)@3 = true", "entered(tau_k2)@3 = true");
}

void tst_zelTextForm::readsValues()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, value);
    Spring spring;
    QVERIFY(!spring.written(true).split('\n').contains(value));
    ZelFaultList faults;
    QCOMPARE(spring.read(line, &faults), 1);
    QCOMPARE(faultPlaces(faults), QStringList());
    QVERIFY2(spring.written(true).split('\n').contains(value), qPrintable(spring.written(true)));
}

void tst_zelTextForm::unitsAreConverted_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::newRow("inch") << QByteArray("d = 1 in") << "d" << 25.4;
    QTest::newRow("metre") << QByteArray("d = 2 m") << "d" << 2000.0;
    QTest::newRow("kilonewton") << QByteArray("F = 1.5 kN") << "F" << 1500.0;
    QTest::newRow("kelvin") << QByteArray("T = 273.15 K") << "T" << 0.0;
    QTest::newRow("gigapascal") << QByteArray("tau_k2 = 1 GPa") << "tau_k2" << 1000.0;
}

void tst_zelTextForm::unitsAreConverted()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, name);
    Spring spring;
    QCOMPARE(spring.read(line), 1);
    QTEST(spring.mMeta.real(*spring.mMeta.variable(zelWString(name.toStdWString())), 0), "value");
}

void tst_zelTextForm::readingTellsTheObserverWithTheOrigin()
{
    Spring spring;
    QStringList heard;
    spring.mMeta.setObserver([&](const ZelValueChange &change) {
        heard << QString::fromStdWString(change.mVariable->name()) + (change.mOption ? "?" : "")
                + QString::number(int(change.mOrigin));
    });
    spring.read("d = 2 mm\nd = 3 mm\nentered(tau_k2) = true\n");
    ZelFaultList faults;
    zelReadValues(spring.mMeta, "d = 4 mm", "", faults, ZelOrigin::User);
    QCOMPARE(heard, (QStringList{"d2", "tau_k2?2", "tau_k22", "d0"}));
}

void tst_zelTextForm::readingAChoicePicks()
{
    Spring spring;
    QList<short> picked;
    spring.mMeta.setChoiceObserver(
        [&](const ZelUIVarChoice &, int64_t, short former, short current, ZelOrigin origin) {
            picked << former << current << short(origin);
        });
    spring.read("range = forces");
    QCOMPARE(picked, (QList<short>{1, 2, short(ZelOrigin::Load)}));
}

// What is left of a choice in a damaged description.
void tst_zelTextForm::choiceWithoutAlternativesReadsBack()
{
    Spring spring;
    spring.mMeta.add<ZelUIVarChoice>(L"empty");
    QVERIFY(spring.written().endsWith("\nempty = 0\n"));
    ZelFaultList faults;
    spring.read(spring.written().toUtf8(), &faults);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(spring.read("empty = 1", &faults), 0);
    QCOMPARE(faultPlaces(faults).size(), 1);
}

void tst_zelTextForm::commentsAndEmptyLinesCountForNothing()
{
    Spring spring;
    ZelFaultList faults;
    QCOMPARE(spring.read("\xEF\xBB\xBF# Feder\n\n \t\n  # d = 4 mm\r\n\r\nd = 5 mm", &faults), 1);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(spring.mMeta.real(*spring.mD, 0), 5.0);
    QCOMPARE(spring.read(""), 0);
}

void tst_zelTextForm::listsOfTheDatabaseStandByNumber()
{
    Spring spring;
    auto *wire = spring.mMeta.add<ZelUIVarDBList>(L"wire");
    wire->mOwn.setText(L"eigene Werte");
    auto *size = spring.mMeta.add<ZelUIVarLS>(L"size");
    QVERIFY(spring.written().endsWith("wire = own\nsize = 0\nsize[2] = 0\n"));
    ZelFaultList faults;
    QCOMPARE(spring.read("wire = 12\nsize = 3\nsize[2] = 40\n", &faults), 3);
    QCOMPARE(faultPlaces(faults), QStringList());
    QCOMPARE(spring.mMeta.integer(*wire, 0), int64_t(12));
    QCOMPARE(spring.mMeta.integer(*size, 0, 0), int64_t(3));
    QCOMPARE(spring.mMeta.integer(*size, 0, 1), int64_t(40));
    spring.read("wire = own", &faults);
    QCOMPARE(spring.mMeta.integer(*wire, 0), int64_t(0));
    spring.read("wire = 6204a", &faults);
    QCOMPARE(faultPlaces(faults), QStringList("1:8 BadValue"));
}

void tst_zelTextForm::lastLineOfAValueHolds()
{
    Spring spring;
    QCOMPARE(spring.read("d = 5 mm\nd = 6 mm\n"), 2);
    QCOMPARE(spring.mMeta.real(*spring.mD, 0), 6.0);
}

void tst_zelTextForm::faultsHaveCodeAndPlace_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("place");
    const auto row = [](const QByteArray &line, const char *place) {
        QTest::newRow(line.constData()) << line << QString(place);
    };
    row("x = 1", "1:1 UnknownName");
    row("  x = 1", "1:3 UnknownName");
    row("= 1", "1:1 Syntax");
    row("Ö = 1", "1:1 Syntax");
    row("d", "1:2 Syntax");
    row("d 5 mm", "1:3 Syntax");
    row("dd = 5 mm", "1:1 UnknownName");
    row("d =", "1:4 BadValue");
    row("d = mm", "1:5 BadValue");
    row("d = 5", "1:6 UnknownUnit");
    row("d = 5mm", "1:5 BadValue");
    row("d = 5,5 mm", "1:5 BadValue");
    row("d = +5 mm", "1:5 BadValue");
    row("d = 0x5 mm", "1:5 BadValue");
    row("d = 1e999 mm", "1:5 BadValue");
    row("d = infinity mm", "1:5 BadValue");
    row("d = NaN mm", "1:5 BadValue");
    row("d = 5 furlong", "1:7 UnknownUnit");
    row("d = 5 N", "1:7 UnlikeUnits");
    row("d = 5 mm mm", "1:7 UnknownUnit");
    row("d = 5 MM", "1:7 UnknownUnit");
    row("n = 5 mm", "1:7 UnlikeUnits");
    row("n = 5 x", "1:7 UnknownUnit");
    row("ratio = 5 mm", "1:11 UnlikeUnits");
    row("z = 5.5", "1:5 BadValue");
    row("z = 99999999999999999999", "1:5 BadValue");
    row("F[0] = 1 N", "1:2 UnknownName");
    row("F[3] = 1 N", "1:2 UnknownName");
    row("F[] = 1 N", "1:2 UnknownName");
    row("F[2 = 1 N", "1:2 UnknownName");
    row("F[1.0] = 1 N", "1:2 UnknownName");
    row("d[2] = 1 mm", "1:2 UnknownName");
    row("d@ = 1 mm", "1:3 BadValue");
    row("d@x = 1 mm", "1:3 BadValue");
    row("d@99999999999999999999 = 1 mm", "1:3 BadValue");
    row("d@1[1] = 1 mm", "1:3 BadValue");
    row("hot = 1", "1:7 BadValue");
    row("hot = True", "1:7 BadValue");
    row("hot = true x", "1:7 BadValue");
    row("ends = water", "1:8 BadValue");
    row("ends = 3", "1:8 BadValue");
    row("ends = open x", "1:8 BadValue");
    row("ends =", "1:7 BadValue");
    row("range = 0", "1:9 BadValue");
    row("range = 3", "1:9 BadValue");
    row("range = both", "1:9 BadValue");
    row("note = text", "1:8 BadValue");
    row("note = \"offen", "1:14 BadValue");
    row("note = \"Öl\\q\"", "1:11 BadValue");
    row("note = \"a\\", "1:10 BadValue");
    row("note = \"a\" b", "1:12 BadValue");
    row("R = 5 N/mm", "1:1 WrongKind");
    row("loads = 1", "1:1 WrongKind");
    row("entered(d) = true", "1:9 WrongKind");
    row("entered(x) = true", "1:9 UnknownName");
    row("entered(tau_k2 = true", "1:15 Syntax");
    row("entered(tau_k2) = 1", "1:19 BadValue");
    row("entered = true", "1:1 UnknownName");
    row("note = \"Ö\xFF\"", "1:10 NotUtf8");
}

void tst_zelTextForm::faultsHaveCodeAndPlace()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, place);
    Spring spring;
    const QString before = spring.written();
    ZelFaultList faults;
    QCOMPARE(spring.read(line, &faults), 0);
    QCOMPARE(faultPlaces(faults), QStringList(place));
    QCOMPARE(faults[0].mFile, std::string("spring.val"));
    QVERIFY(spring.mMeta.objects().empty());
    QCOMPARE(spring.written(), before);
}

void tst_zelTextForm::faultyLineChangesNothing()
{
    Spring spring;
    ZelFaultList faults;
    QCOMPARE(spring.read("d = 5 mm\nd = 6 N\n# x\n\nx = 1\nF = 8 N\nhot = maybe", &faults), 2);
    QCOMPARE(faultPlaces(faults),
             (QStringList{"2:7 UnlikeUnits", "5:1 UnknownName", "7:7 BadValue"}));
    QCOMPARE(spring.mMeta.real(*spring.mD, 0), 5.0);
    QCOMPARE(spring.mMeta.real(*spring.mF, 0), 8.0);
}

void tst_zelTextForm::unknownUnitListsThoseOfTheDimension()
{
    Spring spring;
    ZelFaultList faults;
    spring.read("d = 5 furlong\nn = 5 x", &faults);
    QCOMPARE(faults.size(), size_t(2));
    QVERIFY(QString::fromStdString(faults[0].mExpected).startsWith("mm, cm, m,"));
    QCOMPARE(QString::fromStdString(faults[1].mExpected), QString("no unit"));
}

void tst_zelTextForm::unknownEntryListsTheOthers()
{
    Spring spring;
    ZelFaultList faults;
    spring.read("ends = water", &faults);
    QCOMPARE(faults.size(), size_t(1));
    QCOMPARE(QString::fromStdString(faults[0].mExpected), QString("open, closed"));
}

void tst_zelTextForm::unsetValueIsEmptyText()
{
    Spring spring;
    QCOMPARE(zelValueText(spring.mMeta, *spring.mRate, 0), std::string());
    QCOMPARE(zelValueText(spring.mMeta, *spring.mD, 0, 1), std::string());
    QCOMPARE(zelValueText(spring.mMeta, *spring.mLoads, 0), std::string());
    QCOMPARE(zelValueText(spring.mMeta, *spring.mF, 0, 1), std::string("20 N"));
}

void tst_zelTextForm::survivesDamage()
{
    const QByteArray valid = Spring().written().toUtf8();
    int faulty = 0;
    for (int i = 0; i < valid.size(); ++i) {
        for (const char byte : {'\0', '\xFF', '"', '\\', '=', '[', '@', '\n', 'e', '9'}) {
            QByteArray bytes = valid;
            bytes[i] = byte;
            Spring spring;
            ZelFaultList faults;
            const int count = spring.read(bytes, &faults);
            QVERIFY(count + int(faults.size()) <= valid.count('\n') + 1);
            faulty += !faults.empty();
        }
        Spring spring;
        QVERIFY(spring.read(valid.left(i)) <= valid.count('\n'));
    }
    QVERIFY(faulty > valid.size());
}

void tst_zelTextForm::hugeFileOfFaultsEnds()
{
    Spring spring;
    ZelFaultList faults;
    QCOMPARE(spring.read(QByteArray("x\n").repeated(200000) + "d = 9 mm", &faults), 1);
    QCOMPARE(faults.size(), size_t(1000));
    QCOMPARE(spring.mMeta.real(*spring.mD, 0), 9.0);
    faults.clear();
    QCOMPARE(spring.read("note = \"" + QByteArray(10 * 1024 * 1024, 'x'), &faults), 0);
    QCOMPARE(faults.size(), size_t(1));
}

QTEST_APPLESS_MAIN(tst_zelTextForm)
#include "tst_zelTextForm.moc"
