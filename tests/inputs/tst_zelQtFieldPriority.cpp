#include "lineOnPage.h"
#include "zelQtTripleCalcVarInput.h"

#include <QtTest>

using Flags = QVector<bool>;
using Double = ZelQtDoubleCalcVarInput;
using Triple = ZelQtTripleCalcVarInput;

/// The gray mark of lines with several fields: set by the program, moved by typing and by the
/// popups of the fields.
class tst_zelQtFieldPriority : public QObject
{
    Q_OBJECT

private slots:
    void noFieldIsLowAtFirst();

    void doubleLowIndexMarksTheField_data();
    void doubleLowIndexMarksTheField();
    void tripleLowIndexMarksTheField_data();
    void tripleLowIndexMarksTheField();
    void lowFieldIsGray();
    void typingMovesTheMarkOfADoubleLine();
    void typingMarksBothOthersOfATripleLine_data();
    void typingMarksBothOthersOfATripleLine();
    void minusOneEndsTheScheme_data();
    void minusOneEndsTheScheme();
    void otherIndexLowersNoFieldAndTypingGoesOn_data();
    void otherIndexLowersNoFieldAndTypingGoesOn();
    void otherIndexStartsNothing();

    void doubleHighIndexMarksTheOtherField_data();
    void doubleHighIndexMarksTheOtherField();
    void tripleHighIndexMarksTheOppositeFieldOnPurpose_data();
    void tripleHighIndexMarksTheOppositeFieldOnPurpose();
    void highIndexStartsTheScheme_data();
    void highIndexStartsTheScheme();
    void highWidgetIsTheFieldsIndex_data();
    void highWidgetIsTheFieldsIndex();
    void widgetOfAnotherLineIsIgnored_data();
    void widgetOfAnotherLineIsIgnored();

    void formulaGivesPriorityInADoubleLine();
    void formulaGivesPriorityInATripleLine_data();
    void formulaGivesPriorityInATripleLine();
    void angleGivesPriority();
    void formulaWithoutSchemeSetsNoMark();
    void failedFormulaLeavesTheMark();
};

static void addIndexColumns()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<Flags>("marked");
    QTest::addColumn<int>("lowIndex");
    QTest::addColumn<int>("highIndex");
}

static void addLineKinds()
{
    QTest::addColumn<bool>("triple");
    QTest::newRow("double line") << false;
    QTest::newRow("triple line") << true;
}

/// Types into a field from outside of its focus chain.
static void type(ZelQtValueEdit *field)
{
    field->selectAll();
    QTest::keyClick(field, Qt::Key_5);
}

/// Runs the same check over both kinds of line.
template <class Check> static void withLine(bool triple, Check check)
{
    if (triple) {
        OpenLine<Triple> line;
        check(line);
    } else {
        OpenLine<Double> line;
        check(line);
    }
}

void tst_zelQtFieldPriority::noFieldIsLowAtFirst()
{
    OpenLine<Triple> line;
    QCOMPARE(line.lowPriorityIndex(), -1);
    QCOMPARE(line.highPriorityIndex(), -1);
    type(line.fields().at(1));
    QCOMPARE(low(line.fields()), Flags({false, false, false}));
}

void tst_zelQtFieldPriority::doubleLowIndexMarksTheField_data()
{
    addIndexColumns();
    QTest::newRow("first") << 0 << Flags({true, false}) << 0 << 1;
    QTest::newRow("second") << 1 << Flags({false, true}) << 1 << 0;
    QTest::newRow("none") << -1 << Flags({false, false}) << -1 << -1;
    QTest::newRow("beyond") << 2 << Flags({false, false}) << -1 << -1;
}

void tst_zelQtFieldPriority::doubleLowIndexMarksTheField()
{
    QFETCH(int, index);
    QFETCH(Flags, marked);
    QFETCH(int, lowIndex);
    QFETCH(int, highIndex);
    for (const int former : {-1, 0, 1}) {
        OpenLine<Double> line;
        line.setLowPriorityIndex(former);
        line.setLowPriorityIndex(index);
        QCOMPARE(low(line.fields()), marked);
        QCOMPARE(line.lowPriorityIndex(), lowIndex);
        QCOMPARE(line.highPriorityIndex(), highIndex);
    }
}

void tst_zelQtFieldPriority::tripleLowIndexMarksTheField_data()
{
    addIndexColumns();
    QTest::newRow("first") << 0 << Flags({true, false, false}) << 0 << 2;
    QTest::newRow("second") << 1 << Flags({false, true, false}) << 1 << 1;
    QTest::newRow("third") << 2 << Flags({false, false, true}) << 2 << 0;
    QTest::newRow("none") << -1 << Flags({false, false, false}) << -1 << -1;
    QTest::newRow("beyond") << 3 << Flags({false, false, false}) << -1 << -1;
}

void tst_zelQtFieldPriority::tripleLowIndexMarksTheField()
{
    QFETCH(int, index);
    QFETCH(Flags, marked);
    QFETCH(int, lowIndex);
    QFETCH(int, highIndex);
    for (const int former : {-1, 0, 1, 2}) {
        OpenLine<Triple> line;
        line.setLowPriorityIndex(former);
        line.setLowPriorityIndex(index);
        QCOMPARE(low(line.fields()), marked);
        QCOMPARE(line.lowPriorityIndex(), lowIndex);
        QCOMPARE(line.highPriorityIndex(), highIndex);
    }
}

void tst_zelQtFieldPriority::lowFieldIsGray()
{
    OpenLine<Double> line;
    const QColor normal = colorOf(line.fields().at(0));
    QVERIFY(normal != QColor(Qt::gray));
    line.setLowPriorityIndex(1);
    QCOMPARE(colorOf(line.fields().at(0)), normal);
    QCOMPARE(colorOf(line.fields().at(1)), QColor(Qt::gray));
    type(line.fields().at(1));
    QCOMPARE(colorOf(line.fields().at(0)), QColor(Qt::gray));
    QCOMPARE(colorOf(line.fields().at(1)), normal);
}

void tst_zelQtFieldPriority::typingMovesTheMarkOfADoubleLine()
{
    OpenLine<Double> line;
    line.setLowPriorityIndex(1);
    type(line.fields().at(0));
    QCOMPARE(low(line.fields()), Flags({false, true}));
    type(line.fields().at(1));
    QCOMPARE(low(line.fields()), Flags({true, false}));
    QCOMPARE(line.highPriorityIndex(), 1);
    type(line.fields().at(0));
    QCOMPARE(low(line.fields()), Flags({false, true}));
}

void tst_zelQtFieldPriority::typingMarksBothOthersOfATripleLine_data()
{
    addIndexColumns();
    QTest::newRow("first") << 0 << Flags({false, true, true}) << 1 << 1;
    QTest::newRow("second") << 1 << Flags({true, false, true}) << 0 << 2;
    QTest::newRow("third") << 2 << Flags({true, true, false}) << 0 << 2;
}

void tst_zelQtFieldPriority::typingMarksBothOthersOfATripleLine()
{
    QFETCH(int, index);
    QFETCH(Flags, marked);
    QFETCH(int, lowIndex);
    QFETCH(int, highIndex);
    OpenLine<Triple> line;
    line.setLowPriorityIndex(0);
    type(line.fields().at(index));
    QCOMPARE(low(line.fields()), marked);
    QCOMPARE(line.lowPriorityIndex(), lowIndex);
    QCOMPARE(line.highPriorityIndex(), highIndex);
}

void tst_zelQtFieldPriority::minusOneEndsTheScheme_data()
{
    addLineKinds();
}

void tst_zelQtFieldPriority::minusOneEndsTheScheme()
{
    QFETCH(bool, triple);
    withLine(triple, [](auto &line) {
        line.setLowPriorityIndex(0);
        line.setLowPriorityIndex(1);
        line.setLowPriorityIndex(-1);
        const auto fields = line.fields();
        for (ZelQtValueEdit *field : fields) {
            type(field);
            QCOMPARE(line.lowPriorityIndex(), -1);
        }
    });
}

void tst_zelQtFieldPriority::otherIndexLowersNoFieldAndTypingGoesOn_data()
{
    addLineKinds();
}

void tst_zelQtFieldPriority::otherIndexLowersNoFieldAndTypingGoesOn()
{
    QFETCH(bool, triple);
    withLine(triple, [](auto &line) {
        line.setLowPriorityIndex(0);
        line.setLowPriorityIndex(7);
        QCOMPARE(line.lowPriorityIndex(), -1);
        type(line.fields().at(0));
        QCOMPARE(line.lowPriorityIndex(), 1);
    });
}

void tst_zelQtFieldPriority::otherIndexStartsNothing()
{
    OpenLine<Double> line;
    line.setLowPriorityIndex(7);
    type(line.fields().at(0));
    QCOMPARE(low(line.fields()), Flags({false, false}));
}

void tst_zelQtFieldPriority::doubleHighIndexMarksTheOtherField_data()
{
    addIndexColumns();
    QTest::newRow("first") << 0 << Flags({false, true}) << 1 << 0;
    QTest::newRow("second") << 1 << Flags({true, false}) << 0 << 1;
    QTest::newRow("none") << -1 << Flags({false, false}) << -1 << -1;
    QTest::newRow("beyond") << 2 << Flags({false, false}) << -1 << -1;
}

void tst_zelQtFieldPriority::doubleHighIndexMarksTheOtherField()
{
    QFETCH(int, index);
    QFETCH(Flags, marked);
    QFETCH(int, lowIndex);
    QFETCH(int, highIndex);
    OpenLine<Double> line;
    line.setHighPriorityIndex(0);
    line.setHighPriorityIndex(index);
    QCOMPARE(low(line.fields()), marked);
    QCOMPARE(line.lowPriorityIndex(), lowIndex);
    QCOMPARE(line.highPriorityIndex(), highIndex);
}

void tst_zelQtFieldPriority::tripleHighIndexMarksTheOppositeFieldOnPurpose_data()
{
    addIndexColumns();
    QTest::newRow("first") << 0 << Flags({false, false, true}) << 2 << 0;
    QTest::newRow("second lowers itself") << 1 << Flags({false, true, false}) << 1 << 1;
    QTest::newRow("third") << 2 << Flags({true, false, false}) << 0 << 2;
    QTest::newRow("none") << -1 << Flags({false, false, false}) << -1 << -1;
    QTest::newRow("beyond") << 3 << Flags({false, false, false}) << -1 << -1;
}

void tst_zelQtFieldPriority::tripleHighIndexMarksTheOppositeFieldOnPurpose()
{
    QFETCH(int, index);
    QFETCH(Flags, marked);
    QFETCH(int, lowIndex);
    QFETCH(int, highIndex);
    OpenLine<Triple> line;
    line.setHighPriorityIndex(0);
    line.setHighPriorityIndex(index);
    QCOMPARE(low(line.fields()), marked);
    QCOMPARE(line.lowPriorityIndex(), lowIndex);
    QCOMPARE(line.highPriorityIndex(), highIndex);
}

void tst_zelQtFieldPriority::highIndexStartsTheScheme_data()
{
    addLineKinds();
}

void tst_zelQtFieldPriority::highIndexStartsTheScheme()
{
    QFETCH(bool, triple);
    withLine(triple, [](auto &line) {
        line.setHighPriorityIndex(0);
        type(line.fields().at(1));
        QVERIFY(!line.fields().at(1)->hasLowPriority());
        QCOMPARE(line.lowPriorityIndex(), 0);
        line.setHighPriorityIndex(-1);
        type(line.fields().at(0));
        QCOMPARE(line.lowPriorityIndex(), -1);
    });
}

void tst_zelQtFieldPriority::highWidgetIsTheFieldsIndex_data()
{
    addLineKinds();
}

void tst_zelQtFieldPriority::highWidgetIsTheFieldsIndex()
{
    QFETCH(bool, triple);
    withLine(triple, [](auto &line) {
        for (int i = 0; i < line.fields().size(); ++i) {
            line.setHighPriorityWidget(line.fields().at(i));
            QCOMPARE(line.highPriorityIndex(), i);
        }
    });
}

void tst_zelQtFieldPriority::widgetOfAnotherLineIsIgnored_data()
{
    addLineKinds();
}

void tst_zelQtFieldPriority::widgetOfAnotherLineIsIgnored()
{
    QFETCH(bool, triple);
    withLine(triple, [](auto &line) {
        ZelQtValueEdit other;
        line.setLowPriorityIndex(1);
        line.setHighPriorityWidget(&other);
        line.setHighPriorityWidget(nullptr);
        QCOMPARE(line.lowPriorityIndex(), 1);
    });
}

void tst_zelQtFieldPriority::formulaGivesPriorityInADoubleLine()
{
    LineOnPage<Double> page;
    page.mLine->setLowPriorityIndex(0);
    QVERIFY(page.enter(0));
    // The mark is moved before the line reports the number.
    QVector<Flags> atChange;
    connect(page.mLine, &Double::inputValueChanged, this,
            [&] { atChange.append(low(page.mLine->fields())); });
    QVERIFY(enterFormula(page.field(0), QStringLiteral("12")));
    QCOMPARE(atChange, QVector<Flags>({{false, true}}));
    QCOMPARE(low(page.mLine->fields()), Flags({false, true}));
    QCOMPARE(page.field(0)->text(), QStringLiteral("12.0000"));
}

void tst_zelQtFieldPriority::formulaGivesPriorityInATripleLine_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<Flags>("marked");
    QTest::newRow("first") << 0 << Flags({false, false, true});
    QTest::newRow("second") << 1 << Flags({false, true, false});
    QTest::newRow("third") << 2 << Flags({true, false, false});
}

void tst_zelQtFieldPriority::formulaGivesPriorityInATripleLine()
{
    QFETCH(int, field);
    QFETCH(Flags, marked);
    LineOnPage<Triple> page;
    page.mLine->setLowPriorityIndex(field);
    QVERIFY(page.enter(field));
    QVERIFY(enterFormula(page.field(field), QStringLiteral("12")));
    QCOMPARE(low(page.mLine->fields()), marked);
    QCOMPARE(page.mLine->highPriorityIndex(), field);
    QCOMPARE(page.field(field)->text(), QStringLiteral("12.0000"));
}

void tst_zelQtFieldPriority::angleGivesPriority()
{
    LineOnPage<Triple> page;
    page.mLine->setDefaultUnit(QStringLiteral("°"));
    page.mLine->setLowPriorityIndex(2);
    QVERIFY(page.enter(2));
    QVERIFY(enterAngle(page.field(2), QStringLiteral("30")));
    QCOMPARE(low(page.mLine->fields()), Flags({true, false, false}));
    QCOMPARE(page.field(2)->text(), QStringLiteral("30.0000"));
}

void tst_zelQtFieldPriority::formulaWithoutSchemeSetsNoMark()
{
    LineOnPage<Triple> page;
    QVERIFY(page.enter(1));
    QVERIFY(enterFormula(page.field(1), QStringLiteral("12")));
    QCOMPARE(page.field(1)->text(), QStringLiteral("12.0000"));
    QCOMPARE(page.mLine->lowPriorityIndex(), -1);
}

void tst_zelQtFieldPriority::failedFormulaLeavesTheMark()
{
    LineOnPage<Double> page;
    page.mLine->setLowPriorityIndex(0);
    QVERIFY(page.enter(0));
    QVERIFY(enterFormula(page.field(0), QStringLiteral("no number")));
    QCOMPARE(low(page.mLine->fields()), Flags({true, false}));
}

QTEST_MAIN(tst_zelQtFieldPriority)
#include "tst_zelQtFieldPriority.moc"
