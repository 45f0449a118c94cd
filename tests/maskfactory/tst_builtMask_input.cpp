#include "builtMask.h"

#include "zelQtCheckBox.h"
#include "zelQtComboBox.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFlag.h"
#include "zelQtRadioButton.h"
#include "zelQtValueEdit.h"

#include <QLabel>

// A person at a mask: types, chooses and switches; what follows shows on the mask.

namespace {

const char *const states = R"(<module id="test">
 <variables>
  <list name="kind" text="Art" initial="none">
   <entry id="1" name="none" text="ohne"/><entry id="2" name="light" text="leicht"/>
   <entry id="3" name="heavy" text="schwer"/>
  </list>
  <real name="m" text="Masse" unit="kg" initial="4" enabled="kind != 'none'"/>
  <real name="g" text="Beschleunigung" initial="9.81" readonly="kind == 'light'"/>
  <real name="extra" text="Zusatz" visible="kind == 'heavy'" initial="1"/>
  <bool name="lock" text="Sperren"/>
  <text name="note" text="Notiz" initial="leer" enabled="not lock"/>
 </variables>
 <page name="p" text="Seite"><board><column>
  <var name="kind"/><var name="m"/><var name="g"/><var name="extra"/>
  <var name="lock"/><var name="note"/>
 </column></board></page>
</module>)";

const char *const choices = R"(<module id="test">
 <variables>
  <choice name="by" text="Vorgabe" by="switch">
   <alternative name="length" vars="L"/><alternative name="force" vars="F"/>
  </choice>
  <real name="L" text="Länge" unit="mm" initial="10"/>
  <real name="F" text="Kraft" unit="N" initial="20"/>
  <choice name="typed" text="Eingabe" by="typing">
   <alternative name="x" vars="x1 x2"/><alternative name="a" vars="a x1"/>
  </choice>
  <real name="x1" text="x1" initial="1"/><real name="x2" text="x2" initial="2"/>
  <real name="a" text="Achsabstand" unit="mm" initial="50"/>
  <real name="Cu" text="Grenzlast" unit="N" optional="true" initial="30"/>
 </variables>
 <page name="p" text="Seite"><board><column>
  <var name="L"/><var name="F"/><var name="x1"/><var name="x2"/><var name="a"/><var name="Cu"/>
 </column></board></page>
</module>)";

const char *const hosts = R"(<module id="test">
 <variables>
  <real name="d" text="Durchmesser" unit="mm" help="11"/><bool name="on" text="An"/>
  <list name="kind" text="Art"><entry id="1" name="a" text="eins"/>
   <entry id="2" name="b" text="zwei"/></list>
  <real name="inner" text="Innen"/>
 </variables>
 <page name="p" text="Seite" help="21">
  <board><column>
   <var name="d" buttons="info" info="7 8"/><var name="on" buttons="info" infofile="on.htm"/>
   <var name="kind"/>
  </column></board>
  <tabs><page name="A" text="A" help="31">
   <board><column><var name="inner" buttons="info" info="9"/></column></board>
  </page></tabs>
 </page>
</module>)";

QRadioButton *radioOf(const BuiltMask &mask, const char *name)
{
    return mask.find<ZelQtEditButton>(name)->radioButtonWidget();
}

bool isGray(const ZelQtValueEdit *field)
{
    return field->palette().color(QPalette::Text) == QColor(Qt::gray);
}

} // namespace

class tst_builtMask_input : public QObject
{
    Q_OBJECT

private slots:
    void descriptionsOfThisFileHaveNoFaults_data();
    void descriptionsOfThisFileHaveNoFaults();
    void listChosenByKeysChangesTheStateOfOthers();
    void readOnlyFieldTakesNoKeys();
    void flagDisablesATextAndBringsItBack();
    void typedNumberReachesTheModuleWhenTheFieldIsLeft();
    void radioButtonsPickOneAlternative();
    void checkedRadioButtonStaysChecked();
    void typingPicksTheAlternative();
    void checkBoxOfAnOptionalValueOpensIt();
    void infoButtonReportsPastThePagesToTheHost();
    void valueSignalsStopAtTheNearestPageHostFirst();
    void helpIsThatOfTheFieldOrItsPage();
};

void tst_builtMask_input::descriptionsOfThisFileHaveNoFaults_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("states") << QByteArray(states);
    QTest::newRow("choices") << QByteArray(choices);
    QTest::newRow("hosts") << QByteArray(hosts);
}

void tst_builtMask_input::descriptionsOfThisFileHaveNoFaults()
{
    QFETCH(QByteArray, xml);
    QCOMPARE(BuiltMask(xml).faults(), QStringList());
}

void tst_builtMask_input::listChosenByKeysChangesTheStateOfOthers()
{
    BuiltMask mask(states);
    QVERIFY(mask.show());
    auto *kind = mask.find<ZelQtComboBox>("kind");
    const auto *m = mask.find<ZelQtValueEdit>("m");
    const auto *g = mask.find<ZelQtValueEdit>("g");
    const auto *extra = mask.find<ZelQtValueEdit>("extra");
    QCOMPARE(kind->currentText(), QString("ohne"));
    QVERIFY(!m->isEnabled() && !g->isReadOnly() && !extra->isVisible());
    QCOMPARE(m->text(), QString());

    QVERIFY(focus(kind));
    QTest::keyClick(kind, Qt::Key_Down);
    QCOMPARE(kind->currentText(), QString("leicht"));
    QCOMPARE(mask.integer(L"kind"), int64_t(2));
    QVERIFY(m->isEnabled() && g->isReadOnly() && !extra->isVisible());
    QCOMPARE(m->text(), QString("4.0000")); // fills in the same refresh

    QTest::keyClick(kind, Qt::Key_S); // by the first letter
    QCOMPARE(kind->currentText(), QString("schwer"));
    QVERIFY(m->isEnabled() && !g->isReadOnly() && extra->isVisible());
    QVERIFY(mask.find<QLabel>("extra_label")->isVisible());

    QTest::keyClick(kind, Qt::Key_Home);
    QVERIFY(!m->isEnabled() && !extra->isVisible());
    QVERIFY(!mask.find<QLabel>("extra_label")->isVisible());
    QCOMPARE(m->text(), QString());
    QCOMPARE(mask.real(L"m"), 4.0);
    QVERIFY(kind->hasFocus());
}

void tst_builtMask_input::readOnlyFieldTakesNoKeys()
{
    BuiltMask mask(states);
    QVERIFY(mask.show());
    auto *kind = mask.find<ZelQtComboBox>("kind");
    QVERIFY(focus(kind));
    QTest::keyClick(kind, Qt::Key_Down);
    auto *g = mask.find<ZelQtValueEdit>("g");

    QVERIFY(enter(g, "5"));

    QCOMPARE(g->text(), QString("9.8100"));
    QCOMPARE(mask.real(L"g"), 9.81);
}

void tst_builtMask_input::flagDisablesATextAndBringsItBack()
{
    BuiltMask mask(states);
    QVERIFY(mask.show());
    auto *note = mask.find<QLineEdit>("note");
    QVERIFY(enter(note, "voll"));
    tick(mask.find<ZelQtFlag>("lock"));
    QVERIFY(!note->isEnabled());
    QCOMPARE(note->text(), QString());
    tick(mask.find<ZelQtFlag>("lock"));
    QCOMPARE(note->text(), QString("voll"));
    QCOMPARE(mask.meta().text(*mask.meta().variable(L"note"), 0), zelWString(L"voll"));
}

void tst_builtMask_input::typedNumberReachesTheModuleWhenTheFieldIsLeft()
{
    BuiltMask mask(choices);
    QVERIFY(mask.show());
    auto *length = mask.find<ZelQtValueEdit>("L");
    QVERIFY(type(length, "12.5"));
    QCOMPARE(mask.mCollected, 0);
    QCOMPARE(mask.real(L"L"), 10.0);

    QTest::keyClick(length, Qt::Key_Tab);

    QCOMPARE(mask.mCollected, 1);
    QCOMPARE(mask.real(L"L"), 12.5);
    QCOMPARE(length->text(), QString("12.5000"));
}

void tst_builtMask_input::radioButtonsPickOneAlternative()
{
    BuiltMask mask(choices);
    QVERIFY(mask.show());
    const auto *length = mask.find<ZelQtValueEdit>("L");
    const auto *force = mask.find<ZelQtValueEdit>("F");
    QVERIFY(radioOf(mask, "L_edit")->isChecked() && !radioOf(mask, "F_edit")->isChecked());
    QVERIFY(!length->isReadOnly() && force->isReadOnly());

    tick(radioOf(mask, "F_edit"));

    QVERIFY(!radioOf(mask, "L_edit")->isChecked() && radioOf(mask, "F_edit")->isChecked());
    QVERIFY(length->isReadOnly() && !force->isReadOnly());
    QVERIFY(!mask.isEntered(L"L") && mask.isEntered(L"F"));

    tick(radioOf(mask, "L_edit"));
    QVERIFY(mask.isEntered(L"L") && !mask.isEntered(L"F"));
    QVERIFY(radioOf(mask, "L_edit")->isChecked() && !radioOf(mask, "F_edit")->isChecked());
}

void tst_builtMask_input::checkedRadioButtonStaysChecked()
{
    BuiltMask mask(choices);
    QVERIFY(mask.show());
    tick(radioOf(mask, "L_edit"));
    QVERIFY(mask.mCollected > 0);
    QVERIFY(radioOf(mask, "L_edit")->isChecked());
    QVERIFY(mask.isEntered(L"L") && !mask.isEntered(L"F"));
}

void tst_builtMask_input::typingPicksTheAlternative()
{
    BuiltMask mask(choices);
    QVERIFY(mask.show());
    auto *x1 = mask.find<ZelQtValueEdit>("x1");
    auto *x2 = mask.find<ZelQtValueEdit>("x2");
    auto *a = mask.find<ZelQtValueEdit>("a");
    QVERIFY(!isGray(x1) && !isGray(x2) && isGray(a));
    QVERIFY(!a->isReadOnly());

    QVERIFY(enter(a, "60"));
    QVERIFY(!isGray(x1) && isGray(x2) && !isGray(a));
    QCOMPARE(mask.real(L"a"), 60.0);

    QVERIFY(enter(x2, "3"));
    QVERIFY(!isGray(x1) && !isGray(x2) && isGray(a));

    // In both alternatives: the one whose other member was typed last stays.
    QVERIFY(enter(a, "61"));
    QVERIFY(enter(x1, "1.5"));
    QVERIFY(!isGray(x1) && isGray(x2) && !isGray(a));
}

void tst_builtMask_input::checkBoxOfAnOptionalValueOpensIt()
{
    BuiltMask mask(choices);
    QVERIFY(mask.show());
    auto *field = mask.find<ZelQtValueEdit>("Cu");
    auto *box = mask.find<ZelQtEditButton>("Cu_edit")->checkBoxWidget();
    QVERIFY(!field->isEnabled());
    QCOMPARE(field->text(), QString());
    QVERIFY(!box->isChecked());

    tick(box);
    QVERIFY(box->isChecked());
    QVERIFY(field->isEnabled() && !field->isReadOnly());
    QVERIFY(mask.isEntered(L"Cu"));
    QCOMPARE(field->text(), QString("30.0000"));
    QVERIFY(enter(field, "31"));
    QCOMPARE(mask.real(L"Cu"), 31.0);

    tick(box);
    QVERIFY(!box->isChecked());
    QVERIFY(!field->isEnabled());
    QCOMPARE(field->text(), QString()); // nothing computed it yet
    QVERIFY(!mask.isEntered(L"Cu"));
}

void tst_builtMask_input::infoButtonReportsPastThePagesToTheHost()
{
    BuiltMask mask(hosts);
    QVERIFY(mask.show());
    EventRecorder pages;
    const auto all = mask.mHost->findChildren<ZelQtTabPage *>();
    QCOMPARE(all.size(), 2);
    for (ZelQtTabPage *page : all) {
        pages.recordArguments(page, qOverload<int>(&ZelQtTabPage::infoChanged), "page");
        pages.recordArguments(page, qOverload<QString>(&ZelQtTabPage::infoChanged), "page");
    }
    for (const char *field : {"d", "on", "inner"}) {
        const QList<ZelQtInfoButton *> buttons = mask.mHost->findChildren<ZelQtInfoButton *>();
        for (ZelQtInfoButton *button : buttons) {
            if (button->whatsThis() == field)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(
        mask.mHost->take(),
        QStringList({"host infoChanged(7)", "host infoChanged(on.htm)", "host infoChanged(9)"}));
    QCOMPARE(pages.events(), QStringList());
}

void tst_builtMask_input::valueSignalsStopAtTheNearestPageHostFirst()
{
    BuiltMask mask(hosts);
    QVERIFY(mask.show());
    EventRecorder recorder;
    auto *nested = mask.find<ZelQtTabPage>("A");
    recorder.recordProtocol(mask.page(), "page");
    recorder.recordProtocol(nested, "nested");
    recorder.recordProtocol(mask.find<ZelQtValueEdit>("d"), "d");
    recorder.recordProtocol(mask.find<ZelQtFlag>("on"), "on");
    recorder.recordProtocol(mask.find<ZelQtComboBox>("kind"), "kind");
    recorder.recordProtocol(mask.find<ZelQtValueEdit>("inner"), "inner");

    QVERIFY(enter(mask.find<ZelQtValueEdit>("d"), "5"));
    QCOMPARE(recorder.take(),
             QStringList({"page valueChanged", "d valueChanged", "page valueConfirmed",
                          "d valueConfirmed"}));
    tick(mask.find<ZelQtFlag>("on"));
    QCOMPARE(recorder.take(),
             QStringList({"page valueChanged", "on valueChanged", "page valueConfirmed",
                          "on valueConfirmed"}));
    auto *kind = mask.find<ZelQtComboBox>("kind");
    QVERIFY(focus(kind));
    QTest::keyClick(kind, Qt::Key_Down);
    QCOMPARE(recorder.take(),
             QStringList({"page valueChanged", "kind valueChanged", "page valueConfirmed",
                          "kind valueConfirmed"}));
    QVERIFY(enter(mask.find<ZelQtValueEdit>("inner"), "5"));
    QCOMPARE(recorder.take(),
             QStringList({"nested valueChanged", "inner valueChanged", "nested valueConfirmed",
                          "inner valueConfirmed"}));
    QCOMPARE(mask.mHost->take(), QStringList());
}

void tst_builtMask_input::helpIsThatOfTheFieldOrItsPage()
{
    BuiltMask mask(hosts);
    QVERIFY(mask.show());
    EventRecorder recorder;
    recorder.recordArguments(mask.page(), &ZelQtTabPage::helpChanged, "page");
    recorder.recordArguments(mask.find<ZelQtTabPage>("A"), &ZelQtTabPage::helpChanged, "nested");
    const auto helpOf = [&](QWidget *widget) {
        const bool focused = focus(widget);
        QTest::keyClick(widget, Qt::Key_F1);
        return focused ? recorder.take() : QStringList("no focus");
    };
    QCOMPARE(helpOf(mask.find<ZelQtValueEdit>("d")), QStringList("page(11.htm)"));
    QCOMPARE(helpOf(mask.find<ZelQtFlag>("on")), QStringList("page(21.htm)"));
    QCOMPARE(helpOf(mask.find<ZelQtComboBox>("kind")), QStringList("page(21.htm)"));
    // Every host up the chain tells it: nobody takes the key.
    QCOMPARE(helpOf(mask.find<ZelQtValueEdit>("inner")),
             QStringList({"nested(31.htm)", "page(31.htm)"}));
}

QTEST_MAIN(tst_builtMask_input)
#include "tst_builtMask_input.moc"
