#include "meta.h"
#include "zelCondition.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QtTest>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

size_t allocations = 0;

ZelListEntry entry(short id, const wchar_t *name)
{
    ZelListEntry entry;
    entry.mId = id;
    entry.mName = name;
    return entry;
}

struct Bearing
{
    Meta mMeta;
    ZelUIMultiVar *mC = mMeta.add<ZelUIMultiVar>(L"C", ZelDimensions::Newton);
    ZelUIMultiVar *mF = mMeta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton, 2);
    ZelUIMultiVar *mZ = mMeta.add<ZelUIMultiVar>(L"z");
    ZelUIMultiVar *mCu = mMeta.add<ZelUIMultiVar>(L"Cu", ZelDimensions::Newton);
    ZelUIMultiVar *mLife = mMeta.add<ZelUIMultiVar>(L"L10h", ZelDimensions::Hour);
    ZelUIVarBool *mModified = mMeta.add<ZelUIVarBool>(L"modified");
    ZelUIVarBool *mOk = mMeta.add<ZelUIVarBool>(L"ok");
    ZelUIVarList *mLube = mMeta.add<ZelUIVarList>(L"lube");
    ZelUIVarList *mRating = mMeta.add<ZelUIVarList>(L"rating");
    ZelUIVarRealList *mRatio = mMeta.add<ZelUIVarRealList>(L"ratio");
    ZelUIVarString *mNote = mMeta.add<ZelUIVarString>(L"note");
    ZelUIVarString *mOther = mMeta.add<ZelUIVarString>(L"other");
    ZelUIVarText *mVerdict = mMeta.add<ZelUIVarText>(L"verdict");
    ZelUIVarTable *mLoads = mMeta.add<ZelUIVarTable>(L"loads");
    ZelUIVarFuncText *mInfo = mMeta.add<ZelUIVarFuncText>(L"info");

    Bearing()
    {
        mC->mInitial[0] = 10;
        mF->mInitial = {3, 4, 0};
        mZ->mValueKind = 1;
        mZ->mInitial[0] = 17;
        mCu->mOptional = true;
        mLife->mResult = mOk->mResult = mRating->mResult = mVerdict->mResult = true;
        mModified->mInitial = true;
        mLube->mEntries = {entry(1, L"grease"), entry(2, L"oil"), entry(3, L"")};
        mLube->mInitial = 2;
        mRating->mEntries = {entry(1, L"good"), entry(2, L"bad")};
        mRatio->mInitial = 1.25;
        mNote->mInitial = L"Ö'l";
    }

    std::shared_ptr<const ZelCondition> compile(const QString &text,
                                                ZelCondition::Fault *fault = nullptr) const
    {
        ZelCondition::Fault own;
        return ZelCondition::compile(zelWString(text.toStdWString()), mMeta, fault ? *fault : own);
    }
};

} // namespace

void *operator new(size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, size_t) noexcept
{
    std::free(memory);
}

class tst_zelCondition : public QObject
{
    Q_OBJECT

private slots:
    void evaluates_data();
    void evaluates();
    void unsetOrUndefinedValuesMakeComparisonsFalse_data();
    void unsetOrUndefinedValuesMakeComparisonsFalse();
    void resultsCountOnceTheyAreSet();
    void readsTheGivenObject();
    void numbersCountInDefaultUnits();
    void enteredFollowsOptionsAndChoices();
    void valuesThatAreNoNumbersCompareAsFalse();
    void faultsTellCharacterAndExpectation_data();
    void faultsTellCharacterAndExpectation();
    void operandsStandOnceEach();
    void tablesHaveNoRowsYet();
    void choiceComparesWithItsAlternatives();
    void listOfTheDatabaseComparesWithItsOwnEntry();
    void evaluatingAllocatesNothing();
    void nestingHasALimit_data();
    void nestingHasALimit();
    void longConditionsAreNoDeepOnes();
    void survivesDamage();
};

void tst_zelCondition::evaluates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("value");
    const auto row = [](const char *text, bool value) {
        QTest::newRow(text) << QString(text) << value;
    };
    row("true", true);
    row("false", false);
    row("not false", true);
    row("not not true", true);
    row("not not not true", false);
    row("modified", true);
    row("not modified", false);
    row("modified == true", true);
    row("modified != true", false);
    row("(C > 1) == modified", true);
    row("true or false and false", true);
    row("(true or false) and false", false);
    row("not true or true", true);
    row("not (true or true)", false);
    row("not 1 == 2", true);
    row("C == 10", true);
    row("C != 10", false);
    row("C < 10", false);
    row("C <= 10", true);
    row("C > 9.5", true);
    row("C >= 10.5", false);
    row("C==10 and(C<11)", true);
    row("10 < C", false);
    row("F == 3", true);
    row("F[1] == 3", true);
    row("F[2] == 4", true);
    row("F [ 2 ] == 4", true);
    row("z == 17", true);
    row("ratio == 1.25", true);
    row("1 + 2 * 3 == 7", true);
    row("(1 + 2) * 3 == 9", true);
    row("8 - 2 - 1 == 5", true);
    row("8 / 2 / 2 == 2", true);
    row("-C + 10 == 0", true);
    row("- -C == 10", true);
    row("+C == 10", true);
    row("2 * -3 == -6", true);
    row(".5 == 0.5", true);
    row("1e1 == C", true);
    row("1.5e-1 == 0.15", true);
    row("lube == 'oil'", true);
    row("lube != 'oil'", false);
    row("lube == 'grease'", false);
    row("lube != 'grease'", true);
    row("'oil' == lube", true);
    row("note == 'Ö''l'", true);
    row("note != 'Ö''l'", false);
    row("'Ö''l' == note", true);
    row("note == ''", false);
    row("other == ''", true);
    row("note == other", false);
    row("note != other", true);
    row("note == note", true);
    row("set(C)", true);
    row("set(F[2])", true);
    row("set(L10h)", false);
    row("set(lube) and set(modified) and set(note)", true);
    row("entered(C)", true);
    row("entered(Cu)", false);
    row("entered(L10h)", false);
    row("rows(loads) > 0", false);
    row("rows(loads) == 0", true);
    row("lube == 'oil' and rows(loads) > 0 or\tC\n>= F[1] + F[2]", true);
}

void tst_zelCondition::evaluates()
{
    QFETCH(QString, text);
    const Bearing bearing;
    ZelCondition::Fault fault;
    const auto condition = bearing.compile(text, &fault);
    QVERIFY2(condition, fault.mText.c_str());
    QTEST(condition->evaluate(bearing.mMeta, 0), "value");
}

void tst_zelCondition::unsetOrUndefinedValuesMakeComparisonsFalse_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("ordered");
    QTest::newRow("unset number") << "L10h"
                                  << "0" << true;
    QTest::newRow("unset number on the right") << "0"
                                               << "L10h" << true;
    QTest::newRow("calculation with an unset number") << "L10h * 0 + 1"
                                                      << "1" << true;
    QTest::newRow("unset number with itself") << "L10h"
                                              << "L10h" << true;
    QTest::newRow("division by 0") << "C / 0"
                                   << "1" << true;
    QTest::newRow("0 by 0") << "(C - 10) / (C - 10)"
                            << "1" << true;
    QTest::newRow("division by negative 0") << "C / -0"
                                            << "1" << true;
    QTest::newRow("unset flag and no") << "ok"
                                       << "false" << false;
    QTest::newRow("unset flag and yes") << "true"
                                        << "ok" << false;
    QTest::newRow("unset list") << "rating"
                                << "'good'" << false;
    QTest::newRow("unset text") << "verdict"
                                << "''" << false;
    QTest::newRow("unset text beside a text") << "note"
                                              << "verdict" << false;
}

void tst_zelCondition::unsetOrUndefinedValuesMakeComparisonsFalse()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(bool, ordered);
    const Bearing bearing;
    QStringList signs{"==", "!="};
    if (ordered)
        signs << "<"
              << "<="
              << ">"
              << ">=";
    for (const QString &sign : qAsConst(signs)) {
        const auto condition = bearing.compile(left + " " + sign + " " + right);
        QVERIFY(condition);
        QVERIFY2(!condition->evaluate(bearing.mMeta, 0), qPrintable(sign));
        const auto negated = bearing.compile("not " + left + " " + sign + " " + right);
        QVERIFY(negated && negated->evaluate(bearing.mMeta, 0));
    }
}

void tst_zelCondition::resultsCountOnceTheyAreSet()
{
    Bearing bearing;
    const auto condition =
        bearing.compile("L10h > 100 and ok and rating == 'bad' and verdict != 'x' and set(L10h)");
    QVERIFY(condition);
    QVERIFY(!condition->evaluate(bearing.mMeta, 0));
    bearing.mMeta.setReal(*bearing.mLife, 0, 0, 101, ZelOrigin::Module);
    bearing.mMeta.setBoolean(*bearing.mOk, 0, true, ZelOrigin::Module);
    bearing.mMeta.setInteger(*bearing.mRating, 0, 0, 2, ZelOrigin::Module);
    bearing.mMeta.setText(*bearing.mVerdict, 0, L"gut", ZelOrigin::Module);
    QVERIFY(condition->evaluate(bearing.mMeta, 0));
    bearing.mMeta.unsetResults(0);
    QVERIFY(!condition->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::readsTheGivenObject()
{
    Bearing bearing;
    bearing.mMeta.setReal(*bearing.mC, 2, 0, 99, ZelOrigin::User);
    const auto condition = bearing.compile("C > 50");
    QVERIFY(!condition->evaluate(bearing.mMeta, 1));
    QVERIFY(condition->evaluate(bearing.mMeta, 2));
}

void tst_zelCondition::numbersCountInDefaultUnits()
{
    Bearing bearing;
    bearing.mMeta.setCurrentUnit(*bearing.mC, 0, ZelDimensions::Kilonewton);
    QVERIFY(bearing.compile("C == 10")->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::enteredFollowsOptionsAndChoices()
{
    Bearing bearing;
    auto *choice = bearing.mMeta.add<ZelUIVarChoice>(L"choice");
    choice->mEntries = {entry(1, L"c"), entry(2, L"z")};
    choice->mAlternatives = {{bearing.mC}, {bearing.mZ}};
    const auto cu = bearing.compile("entered(Cu)");
    const auto z = bearing.compile("entered(z)");
    QVERIFY(!z->evaluate(bearing.mMeta, 0));
    bearing.mMeta.setOptionChecked(*bearing.mCu, 0, true, ZelOrigin::User);
    bearing.mMeta.pick(*choice, 0, 2, ZelOrigin::User);
    QVERIFY(cu->evaluate(bearing.mMeta, 0));
    QVERIFY(z->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::valuesThatAreNoNumbersCompareAsFalse()
{
    Bearing bearing;
    bearing.mMeta.setReal(*bearing.mC, 0, 0, std::numeric_limits<double>::quiet_NaN(),
                          ZelOrigin::Module);
    for (const char *text : {"C == C", "C != C", "C < 1", "C >= 1"})
        QVERIFY2(!bearing.compile(text)->evaluate(bearing.mMeta, 0), text);
    bearing.mMeta.setReal(*bearing.mC, 0, 0, std::numeric_limits<double>::infinity(),
                          ZelOrigin::Module);
    QVERIFY(bearing.compile("C > 1e300")->evaluate(bearing.mMeta, 0));
    QVERIFY(!bearing.compile("C - C == 0")->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::faultsTellCharacterAndExpectation_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("at");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, int at, const char *expected) {
        QTest::newRow(text) << QString(text) << at << QString(expected);
    };
    const char *const value = "a number, a text in single quotes or a variable";
    const char *const signs =
        "or, and, not, ==, !=, <, <=, >, >=, +, -, *, /, a number or a text in single quotes";
    const char *const behind = "\"and\", \"or\" or the end";
    row("", 0, value);
    row("  ", 2, value);
    row("C >", 3, value);
    row("C > and true", 4, value);
    row("and true", 0, value);
    row("true or", 7, value);
    row("not", 3, value);
    row("(C > 1", 6, "\")\"");
    row("C > 1)", 5, behind);
    row("C > 1 modified", 6, behind);
    row("true true", 5, behind);
    row("1 < C < 2", 6, behind);
    row("C = 1", 2, signs);
    row("modified && ok", 9, signs);
    row("!ok", 0, signs);
    row("C > 1 # x", 6, signs);
    row("C > 5mm", 4, signs);
    row("C > 1.2.3", 4, signs);
    row("note == 'offen", 8, signs);
    row("note == \"x\"", 8, signs);
    row("C", 0, "a comparison");
    row("modified and C", 13, "a comparison");
    row("not C", 4, "a comparison");
    row("C + 1", 0, "a comparison");
    row("5", 0, "a comparison");
    row("'oil'", 0, "a comparison");
    row("note", 0, "a comparison");
    row("lube", 0, "lube == 'entry'");
    row("modified and lube", 13, "lube == 'entry'");
    row("modified > 1", 9, "== or !=");
    row("modified == 1", 12, "a comparison");
    row("lube < 'oil'", 5, "== or !=");
    row("note < 'oil'", 5, "== or !=");
    row("lube == 'water'", 8, "grease, oil");
    row("'water' != lube", 0, "grease, oil");
    row("lube == ''", 8, "grease, oil");
    row("lube == 2", 8, "grease, oil");
    row("lube == rating", 8, "grease, oil");
    row("lube + 1 == 2", 0, "a number");
    row("modified + 1 == 2", 0, "a number");
    row("1 + modified == 2", 4, "a number");
    row("-modified == 2", 1, "a number");
    row("C == 'oil'", 5, "a number");
    row("C == modified", 5, "a number");
    row("note == 5", 8, "a text in single quotes");
    row("note == lube", 8, "a text in single quotes");
    row("'a' == 'b'", 7, "a text variable or a list");
    row("'a' == 5", 7, "a text variable or a list");
    row("unknown > 1", 0, "a variable of the module");
    row("C > 1 and unbekannt", 10, "a variable of the module");
    row("set(unknown)", 4, "a variable of the module");
    row("c == 10", 0, "a variable of the module");
    row("loads > 0", 0, "rows(loads)");
    row("set(loads)", 4, "rows(loads)");
    row("rows(C) > 0", 5, "a table");
    row("rows(loads)", 0, "a comparison");
    row("info == 'x'", 0, "");
    row("sqrt(C) > 1", 0, "set, entered, rows");
    row("set C", 0, "a variable of the module");
    row("set()", 4, "the name of a variable");
    row("set(5)", 4, "the name of a variable");
    row("set(C", 5, "\")\"");
    row("entered(F[1])", 9, "\")\"");
    row("F[0] > 1", 2, "1 to 2");
    row("F[3] > 1", 2, "1 to 2");
    row("F[1.5] > 1", 2, "1 to 2");
    row("F[C] > 1", 2, "1 to 2");
    row("F[1 > 1", 4, "\"]\"");
    row("C[2] > 1", 2, "1");
    row("1e999 > C", 0, signs);
}

void tst_zelCondition::faultsTellCharacterAndExpectation()
{
    QFETCH(QString, text);
    const Bearing bearing;
    ZelCondition::Fault fault;
    QVERIFY(!bearing.compile(text, &fault));
    QTEST(fault.mAt, "at");
    QTEST(QString::fromStdString(fault.mExpected), "expected");
    QVERIFY(!fault.mText.empty());
}

void tst_zelCondition::operandsStandOnceEach()
{
    const Bearing bearing;
    const auto condition = bearing.compile(
        "C > 1 and F[1] < C and lube == 'oil' and note == other and rows(loads) > 0 and set(z)");
    QVERIFY(condition);
    QVERIFY((condition->operands()
             == std::vector<const ZelUIVar *>{bearing.mC, bearing.mF, bearing.mLube, bearing.mNote,
                                              bearing.mOther, bearing.mLoads, bearing.mZ}));
    QVERIFY(bearing.compile("true")->operands().empty());
}

void tst_zelCondition::tablesHaveNoRowsYet()
{
    const Bearing bearing;
    QVERIFY(bearing.compile("rows(loads) == 0")->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::choiceComparesWithItsAlternatives()
{
    Bearing bearing;
    auto *choice = bearing.mMeta.add<ZelUIVarChoice>(L"range");
    choice->mEntries = {entry(1, L"lengths"), entry(2, L"forces")};
    choice->mAlternatives = {{bearing.mC}, {bearing.mZ}};
    const auto condition = bearing.compile("range == 'forces'");
    QVERIFY(condition);
    QVERIFY(!condition->evaluate(bearing.mMeta, 0));
    bearing.mMeta.pick(*choice, 0, 2, ZelOrigin::User);
    QVERIFY(condition->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::listOfTheDatabaseComparesWithItsOwnEntry()
{
    Bearing bearing;
    auto *list = bearing.mMeta.add<ZelUIVarDBList>(L"bearing");
    list->mOwn.setText(L"eigene Werte");
    auto *other = bearing.mMeta.add<ZelUIVarDBList>(L"wire");
    other->mInitial = 7;
    const auto condition = bearing.compile("bearing != 'own'");
    QVERIFY(condition);
    QVERIFY(!condition->evaluate(bearing.mMeta, 0));
    bearing.mMeta.setInteger(*list, 0, 0, 12, ZelOrigin::User);
    QVERIFY(condition->evaluate(bearing.mMeta, 0));
    ZelCondition::Fault fault;
    QVERIFY(!bearing.compile("bearing == '6204'", &fault));
    QCOMPARE(QString::fromStdString(fault.mExpected), QString("own"));
    // Without names the id is all there is to compare.
    const auto byId = bearing.compile("wire == 7");
    QVERIFY(byId && byId->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::evaluatingAllocatesNothing()
{
    Bearing bearing;
    bearing.mMeta.setText(*bearing.mNote, 0, L"a text that is longer than any short one",
                          ZelOrigin::User);
    const auto condition = bearing.compile(
        "(C / F[2] > 1 and lube == 'oil' or not modified) and note != other and L10h < 1 "
        "or note == 'a text that is longer than any short one' and entered(Cu) or set(z)");
    QVERIFY(condition);
    // Differences, since QCOMPARE allocates on its own before it compares.
    const size_t before = allocations;
    const auto probe = std::make_unique<int>(1);
    const size_t counted = allocations - before;
    QCOMPARE(counted, size_t(1));
    const size_t start = allocations;
    bool value = false;
    for (int64_t id = 0; id < 3; ++id)
        value = condition->evaluate(bearing.mMeta, id);
    const size_t evaluated = allocations - start;
    QCOMPARE(evaluated, size_t(0));
    QVERIFY(value);
}

void tst_zelCondition::nestingHasALimit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    const auto nested = [](const QString &open, const QString &core, const QString &close, int n) {
        return open.repeated(n) + core + close.repeated(n);
    };
    QTest::newRow("40 parentheses") << nested("(", "true", ")", 40) << true;
    QTest::newRow("60 parentheses") << nested("(", "true", ")", 60) << false;
    QTest::newRow("100000 parentheses") << nested("(", "true", ")", 100000) << false;
    QTest::newRow("100000 open ones") << QString("(").repeated(100000) << false;
    QTest::newRow("30 waiting operands") << nested("1+(", "1", ")", 30) + " > 0" << true;
    QTest::newRow("40 waiting operands") << nested("1+(", "1", ")", 40) + " > 0" << false;
    QTest::newRow("100000 times not") << nested("not ", "true", "", 100000) << true;
    QTest::newRow("100000 signs") << nested("-", "1", "", 100000) + " > 0" << true;
    QTest::newRow("100000 digits") << nested("1", "1", "", 100000) + " > 0" << false;
}

void tst_zelCondition::nestingHasALimit()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    const Bearing bearing;
    ZelCondition::Fault fault;
    const auto condition = bearing.compile(text, &fault);
    QCOMPARE(condition != nullptr, valid);
    if (condition)
        QVERIFY(condition->evaluate(bearing.mMeta, 0));
    else
        QVERIFY(!fault.mText.empty());
}

void tst_zelCondition::longConditionsAreNoDeepOnes()
{
    const Bearing bearing;
    const auto condition = bearing.compile(QString("C > 11 or ").repeated(20000) + "C > 9");
    QVERIFY(condition);
    QVERIFY(condition->evaluate(bearing.mMeta, 0));
    const auto sum = bearing.compile("0" + QString("+1").repeated(50000) + " == 50000");
    QVERIFY(sum && sum->evaluate(bearing.mMeta, 0));
}

void tst_zelCondition::survivesDamage()
{
    const Bearing bearing;
    const QString valid =
        "(lube == 'oil' or not set(F[2])) and rows(loads) >= 0 and -C / 2 < 1.5e3";
    QVERIFY(bearing.compile(valid));
    int refused = 0;
    for (int i = 0; i < valid.size(); ++i) {
        QStringList damaged{valid.left(i), valid.mid(i)};
        for (const QChar c : QString("('[<=x1. \u00e4"))
            damaged << QString(valid).replace(i, 1, c) << QString(valid).insert(i, c);
        damaged << QString(valid).replace(i, 1, QChar(0));
        for (const QString &text : qAsConst(damaged)) {
            ZelCondition::Fault fault;
            const auto condition = bearing.compile(text, &fault);
            if (condition)
                condition->evaluate(bearing.mMeta, 0);
            else
                QVERIFY(fault.mAt >= 0 && fault.mAt <= text.size());
            refused += !condition;
        }
    }
    QVERIFY(refused > valid.size());
}

QTEST_APPLESS_MAIN(tst_zelCondition)
#include "tst_zelCondition.moc"
