#include "builtMask.h"

#include "zelQtColumnLayout.h"
#include "zelQtFlag.h"
#include "zelQtFormulaLabel.h"
#include "zelQtGroupBox.h"
#include "zelQtNotepad.h"
#include "zelQtTopLayout.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QGroupBox>
#include <QLabel>

// How masks of descriptions stand on the screen: the grid, groups, and what conditions hide.

namespace {

const char *const twoColumns = R"(<module id="test">
 <variables>
  <real name="d" text="Durchmesser" formula="d" unit="mm" initial="20"/>
  <real name="length" text="Eine sehr lange Bezeichnung der Länge" unit="mm"/>
  <real name="F" text="Kraft" formula="F_max" unit="N" optional="true"/>
  <real name="size" text="Größe" formula="s" unit="mm" components="3"/>
  <text name="note" text="Notiz"/>
  <real name="x" text="Verschiebung" formula="x" unit="mm"/>
 </variables>
 <page name="p" text="Seite">
  <board>
   <column>
    <var name="d" buttons="info,database"/><var name="length" buttons="info"/>
    <var name="F"/><var name="size"/><var name="note"/>
   </column>
   <column><var name="x"/></column>
  </board>
 </page>
</module>)";

const char *const group = R"(<module id="test">
 <variables>
  <real name="above" text="Oben"/><real name="left" text="Links"/>
  <real name="right" text="Rechts"/><real name="below" text="Unten"/>
  <bool name="on" text="An" initial="true"/>
 </variables>
 <page name="p" text="Seite">
  <board frame="true" flat="true" name="box" text="Gruppe" enabled="on">
   <head><var name="above"/></head>
   <column><var name="left"/></column><column><var name="right"/></column>
   <foot><var name="below"/></foot>
  </board>
  <board><column><var name="on"/></column></board>
 </page>
</module>)";

const char *const hiddenBoard = R"(<module id="test">
 <variables>
  <bool name="on" text="An" initial="true"/><bool name="form" text="Formular" initial="true"/>
  <notes name="notes" text="Notizen"/><real name="x" text="x"/><real name="y" text="y"/>
 </variables>
 <page name="p" text="Seite">
  <board row="0"><column><var name="on"/><var name="form"/></column></board>
  <board row="1" visible="on"><column><var name="notes" expand="true" span="6"/></column></board>
  <board row="2" frame="true" name="box" text="Gruppe" visible="form">
   <column><var name="x"/></column>
  </board>
  <board row="3"><column><var name="y"/></column></board>
 </page>
</module>)";

template <class Widget> QList<int> leftEdges(const BuiltMask &mask, const QStringList &names)
{
    QList<int> edges;
    for (const QString &name : names)
        edges << placeOn(mask.find<Widget>(qPrintable(name)), mask.mHost.get()).x();
    return edges;
}

bool allEqual(const QList<int> &numbers)
{
    return std::count(numbers.begin(), numbers.end(), numbers.first()) == numbers.size();
}

} // namespace

class tst_builtMask : public QObject
{
    Q_OBJECT

private slots:
    void descriptionsOfThisFileHaveNoFaults_data();
    void descriptionsOfThisFileHaveNoFaults();
    void linesOfAColumnAlignInTheirGrid();
    void componentsShareOneLine();
    void columnsStandSideBySideOnTheirOwnGrids();
    void promptsAndSymbolsStandInTheirColumns();
    void groupStacksHeadColumnsAndFoot();
    void groupIsNeverDisabledItself();
    void hiddenBoardLosesItsStretch();
    void hiddenGroupGivesItsRoomAway();
    void pageOfItsHintShowsItsPromptsWhole();
    void hiddenLineLeavesNoGap();
    void tabKeyFollowsTheDescription_data();
    void tabKeyFollowsTheDescription();
};

void tst_builtMask::descriptionsOfThisFileHaveNoFaults_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("two columns") << QByteArray(twoColumns);
    QTest::newRow("group") << QByteArray(group);
    QTest::newRow("hidden board") << QByteArray(hiddenBoard);
}

void tst_builtMask::descriptionsOfThisFileHaveNoFaults()
{
    QFETCH(QByteArray, xml);
    QCOMPARE(BuiltMask(xml).faults(), QStringList());
}

void tst_builtMask::linesOfAColumnAlignInTheirGrid()
{
    BuiltMask mask(twoColumns);
    QVERIFY(mask.show());
    QVERIFY(allEqual(leftEdges<QLineEdit>(mask, {"d", "length", "F", "size", "note"})));
    QVERIFY(allEqual(leftEdges<QLabel>(mask, {"d_unit", "length_unit", "F_unit", "size_unit"})));
    const QList<int> columns{
        leftEdges<QLabel>(mask, {"d_label"}).first(),
        leftEdges<QLabel>(mask, {"d_formula"}).first(), leftEdges<QLineEdit>(mask, {"d"}).first(),
        leftEdges<QWidget>(mask, {"F_edit"}).first(), leftEdges<QLabel>(mask, {"d_unit"}).first()};
    for (int i = 1; i < columns.size(); ++i)
        QVERIFY2(columns[i - 1] < columns[i], qPrintable(QString::number(i)));
    // Below each other, in the order of the description.
    int former = -1;
    for (const char *name : {"d", "length", "F", "size", "note"}) {
        const auto *field = mask.find<QLineEdit>(name);
        const int top = placeOn(field, mask.mHost.get()).y();
        QVERIFY2(top > former, name);
        former = top + field->height();
    }
}

void tst_builtMask::componentsShareOneLine()
{
    BuiltMask mask(twoColumns);
    QVERIFY(mask.show());
    const QPoint first = placeOn(mask.find<QLineEdit>("size"), mask.mHost.get());
    const QPoint second = placeOn(mask.find<QLineEdit>("size_2"), mask.mHost.get());
    const QPoint third = placeOn(mask.find<QLineEdit>("size_3"), mask.mHost.get());
    QCOMPARE(second.y(), first.y());
    QCOMPARE(third.y(), first.y());
    QVERIFY(first.x() < second.x() && second.x() < third.x());
    QVERIFY(third.x() < placeOn(mask.find<QLabel>("size_unit"), mask.mHost.get()).x());
}

void tst_builtMask::columnsStandSideBySideOnTheirOwnGrids()
{
    BuiltMask mask(twoColumns);
    QVERIFY(mask.show());
    const auto *unit = mask.find<QLabel>("d_unit");
    const QPoint right = placeOn(mask.find<QLabel>("x_label"), mask.mHost.get());
    QVERIFY(right.x() > placeOn(unit, mask.mHost.get()).x() + unit->width());
    QCOMPARE(placeOn(mask.find<QLineEdit>("x"), mask.mHost.get()).y(),
             placeOn(mask.find<QLineEdit>("d"), mask.mHost.get()).y());
    QCOMPARE(mask.mHost->findChildren<ZelQtColumnLayout *>().size(), 2);
}

void tst_builtMask::promptsAndSymbolsStandInTheirColumns()
{
    BuiltMask mask(twoColumns);
    QVERIFY(mask.show());
    QCOMPARE(mask.find<QLabel>("length_label")->text(),
             QString("Eine sehr lange Bezeichnung der Länge"));
    QVERIFY(mask.find<ZelQtFormulaLabel>("F_formula")->text().contains("<sub>max</sub>"));
    QVERIFY(!mask.has("length_formula"));
    QCOMPARE(mask.find<ZelQtValueEdit>("d")->text(), QString("20.0000"));
}

// Narrower pages shorten their prompts, down to three dots.
void tst_builtMask::pageOfItsHintShowsItsPromptsWhole()
{
    BuiltMask mask(twoColumns);
    mask.mHost->resize(mask.mHost->sizeHint());
    QVERIFY(mask.show());
    for (const char *name : {"d_label", "length_label", "F_label", "x_label"}) {
        const auto *label = mask.find<QLabel>(name);
        QVERIFY2(label->width() >= label->fontMetrics().horizontalAdvance(label->text()), name);
    }
}

void tst_builtMask::groupStacksHeadColumnsAndFoot()
{
    BuiltMask mask(group);
    QVERIFY(mask.show());
    const auto *box = mask.find<ZelQtGroupBox>("box");
    QCOMPARE(box->title(), QString("Gruppe"));
    QVERIFY(box->isFlat());
    const auto place = [&](const char *name) { return placeOn(mask.find<QLineEdit>(name), box); };
    QVERIFY(place("above").y() < place("left").y());
    QCOMPARE(place("left").y(), place("right").y());
    QVERIFY(place("left").x() < place("right").x());
    QVERIFY(place("right").y() < place("below").y());
    for (const char *name : {"above", "left", "right", "below"})
        QVERIFY2(box->isAncestorOf(mask.find<QLineEdit>(name)), name);
    QVERIFY(!box->isAncestorOf(mask.find<ZelQtFlag>("on")));
}

void tst_builtMask::groupIsNeverDisabledItself()
{
    BuiltMask mask(group);
    QVERIFY(mask.show());
    QVERIFY(mask.find<QLineEdit>("left")->isEnabled());

    tick(mask.find<ZelQtFlag>("on"));

    QVERIFY(mask.find<ZelQtGroupBox>("box")->isEnabled());
    for (const char *name : {"above", "left", "right", "below"}) {
        QVERIFY2(!mask.find<QLineEdit>(name)->isEnabled(), name);
        QCOMPARE(mask.find<QLineEdit>(name)->text(), QString());
    }
}

void tst_builtMask::hiddenBoardLosesItsStretch()
{
    BuiltMask mask(hiddenBoard);
    const QSize hint = mask.mHost->sizeHint();
    mask.mHost->resize(hint.width(), 3 * hint.height());
    QVERIFY(mask.show());
    const auto *grid = qobject_cast<ZelQtTopLayout *>(mask.page()->layout());
    QVERIFY(grid);
    QCOMPARE(grid->rowStretch(1), 100);
    const auto *notes = mask.find<ZelQtNotepad>("notes");
    const int room = notes->height();
    QVERIFY(room > hint.height());
    const auto *below = mask.find<QLineEdit>("y");
    const int formerTop = placeOn(below, mask.mHost.get()).y();

    tick(mask.find<ZelQtFlag>("on"));

    QVERIFY(!notes->isVisible());
    QCOMPARE(grid->rowStretch(1), 0);
    QTRY_VERIFY(placeOn(below, mask.mHost.get()).y() < formerTop - room + 1);

    tick(mask.find<ZelQtFlag>("on"));
    QCOMPARE(grid->rowStretch(1), 100);
    QTRY_COMPARE(placeOn(below, mask.mHost.get()).y(), formerTop);
}

void tst_builtMask::hiddenGroupGivesItsRoomAway()
{
    BuiltMask mask(hiddenBoard);
    QVERIFY(mask.show());
    const auto *box = mask.find<ZelQtGroupBox>("box");
    QVERIFY(box->isVisible());
    const auto *below = mask.find<QLineEdit>("y");

    tick(mask.find<ZelQtFlag>("form"));

    QVERIFY(!box->isVisible());
    QVERIFY(!mask.find<QLineEdit>("x")->isVisible());
    QVERIFY(below->isVisible());
    tick(mask.find<ZelQtFlag>("form"));
    QVERIFY(box->isVisible());
    QVERIFY(mask.find<QLineEdit>("x")->isVisible());
}

void tst_builtMask::hiddenLineLeavesNoGap()
{
    const auto gap = [](const char *condition) {
        const QByteArray xml = QByteArray(R"(<module id="test"><variables>
<real name="a" text="a" unit="mm"/><real name="b" text="b" unit="mm" optional="true"/>
<real name="c" text="c" unit="mm"/></variables><page text="P"><board><column><var name="a"/>)")
            + condition + R"(<var name="c"/></column></board></page></module>)";
        BuiltMask mask(xml);
        const bool shown = mask.show();
        const int above = placeOn(mask.find<QLineEdit>("a"), mask.mHost.get()).y();
        const int below = placeOn(mask.find<QLineEdit>("c"), mask.mHost.get()).y();
        return shown && mask.mFaults.empty() ? below - above : -1;
    };
    const int without = gap("");
    QVERIFY(without > 0);
    QCOMPARE(gap(R"(<var name="b" buttons="info" visible="false"/>)"), without);
    QCOMPARE(gap(R"(<line text="L"><var name="b" visible="false"/></line>)"), without);
    QVERIFY(gap(R"(<var name="b" buttons="info"/>)") > without);
}

void tst_builtMask::tabKeyFollowsTheDescription_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QStringList>("order");
    // Line by line down the first column, with the icon buttons of each line, then down the second.
    // The check box of a line is passed over, and so is the value that it keeps empty.
    QTest::newRow("columns") << QByteArray(twoColumns)
                             << QStringList{"d",           "d_info", "d_database", "length",
                                            "length_info", "size",   "size_2",     "size_3",
                                            "note",        "x",      "d"};
    QTest::newRow("group before a board")
        << QByteArray(group) << QStringList{"above", "left", "right", "below", "on", "above"};
    QTest::newRow("boards and a hidden group")
        << QByteArray(hiddenBoard) << QStringList{"on", "form", "notes", "x", "y", "on"};
}

void tst_builtMask::tabKeyFollowsTheDescription()
{
    QFETCH(QByteArray, xml);
    QFETCH(QStringList, order);
    BuiltMask mask(xml);
    QVERIFY(mask.show());
    QVERIFY(focus(mask.find<QWidget>(qPrintable(order.first()))));
    QStringList reached;
    for (int i = 0; i < order.size(); ++i) {
        reached << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(reached, order);
}

QTEST_MAIN(tst_builtMask)
#include "tst_builtMask.moc"
