#include "builtMask.h"

#include "zelQtCheckBox.h"
#include "zelQtColumnLayout.h"
#include "zelQtComboBox.h"
#include "zelQtEditButton.h"
#include "zelQtFlag.h"
#include "zelQtTabContainer.h"
#include "zelQtUiWidget.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

// Life and death of a built mask, and what faults of its description leave standing.

namespace {

// Every kind of line, with conditions that hide and disable them, tabs in tabs, and buttons.
const char *const everything = R"(<module id="test">
 <variables>
  <bool name="on" text="An" initial="true"/>
  <list name="kind" text="Art"><entry id="1" name="a" text="eins"/>
   <entry id="2" name="b" text="zwei"/></list>
  <real name="d" text="Durchmesser" formula="d_1" unit="mm" components="3" visible="on"/>
  <real name="F" text="Kraft" unit="N" optional="true" visible="kind == 'b'"/>
  <int name="n" text="Anzahl" step="1" visible="on"/>
  <text name="note" text="Notiz" enabled="on"/><notes name="notes" text="Notizen"/>
  <choice name="by" text="Vorgabe"><alternative name="l" vars="L"/>
   <alternative name="m" vars="M"/></choice>
  <real name="L" text="Länge" unit="mm"/><real name="M" text="Moment" unit="N·m"/>
  <real name="R" text="Ergebnis" unit="N/mm" role="result"/>
 </variables>
 <page name="p" text="Seite">
  <board row="0"><column>
   <var name="on" buttons="info"/><var name="kind" buttons="database"/>
   <var name="d" buttons="size,convert,plus,info,offer,database,settings,file"/>
   <line text="Beide"><var name="L"/><var name="M"/></line>
   <line text="Längen"><var name="L"/><var name="d"/></line>
   <var name="F"/><var name="n"/><var name="note"/>
   <text align="center">Ein Text</text><button text="Knopf"/>
  </column><column visible="on"><var name="M"/><var name="R"/></column></board>
  <board row="1" frame="true" text="Gruppe" visible="on"><foot><var name="notes"/></foot></board>
  <tabs row="2">
   <page name="A" text="A" visible="on"><tabs><page name="X" text="X" visible="kind == 'b'">
    <board><column><var name="R"/></column></board></page></tabs></page>
   <page name="B" text="B"/>
  </tabs>
  <buttons><button role="accept" text="Ok"/></buttons>
 </page>
</module>)";

enum Victim { Page, Host, Module, Mask };

// Without the lists of the combo boxes, which Qt makes as popups.
bool isRealWindow(const QWidget *widget)
{
    return widget->isWindow() && widget->windowType() != Qt::Popup;
}

QWidgetList windowsBeside(const QWidgetList &before)
{
    QWidgetList fresh;
    const QWidgetList now = QApplication::topLevelWidgets();
    for (QWidget *widget : now) {
        if (isRealWindow(widget) && !before.contains(widget))
            fresh << widget;
    }
    return fresh;
}

class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            mNames << widget->metaObject()->className();
        return false;
    }
    QStringList mNames;
};

QByteArray withVariables(const char *lines)
{
    return QByteArray(R"(<module id="test">
 <variables>
  <real name="a" text="a" unit="mm" initial="1"/><real name="F" text="F" unit="N"/>
  <bool name="on" text="An"/>
 </variables>
)") + lines
        + "</module>";
}

} // namespace

Q_DECLARE_METATYPE(QVector<int>)

class tst_builtMask_life : public QObject
{
    Q_OBJECT

private slots:
    void nothingBecomesAWindow();
    void partsOfTheModelGoInAnyOrder_data();
    void partsOfTheModelGoInAnyOrder();
    void pageGoesWhileAFieldIsEdited_data();
    void pageGoesWhileAFieldIsEdited();
    void pageGoesInItsOwnConfirmation();
    void deletedFieldLeavesTheRestOfItsLine();
    void hiddenTabGoesWithItsPage();
    void faultsLeaveTheRestStanding_data();
    void faultsLeaveTheRestStanding();
    void brokenXmlShowsWhatStandsBeforeIt();
    void emptyDescriptionsMakeNoPage_data();
    void emptyDescriptionsMakeNoPage();
};

void tst_builtMask_life::nothingBecomesAWindow()
{
    const QWidgetList before = QApplication::topLevelWidgets();
    ShownWindows shown;
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    tick(mask.find<ZelQtFlag>("on"));
    mask.mMask->calculate();
    tick(mask.find<ZelQtFlag>("on"));
    QVERIFY(focus(mask.find<ZelQtComboBox>("kind")));
    QTest::keyClick(mask.find<ZelQtComboBox>("kind"), Qt::Key_Down);
    tick(mask.find<ZelQtEditButton>("F_edit")->checkBoxWidget());
    QVERIFY(mask.isEntered(L"F"));
    mask.mMask->retranslate();
    mask.mMask->updateUnitSystem();
    QCoreApplication::processEvents();

    QCOMPARE(windowsBeside(before), QWidgetList{mask.mHost.get()});
    QCOMPARE(shown.mNames, QStringList("ZelQtParentWidget"));
    const auto below = mask.mHost->findChildren<QWidget *>();
    for (const QWidget *widget : below)
        QVERIFY2(!isRealWindow(widget), widget->metaObject()->className());
}

void tst_builtMask_life::partsOfTheModelGoInAnyOrder_data()
{
    QTest::addColumn<QVector<int>>("order");
    QTest::newRow("page, mask, module, host") << QVector<int>{Page, Mask, Module, Host};
    QTest::newRow("host, mask, module") << QVector<int>{Host, Mask, Module};
    QTest::newRow("mask, host, module") << QVector<int>{Mask, Host, Module};
    QTest::newRow("module first") << QVector<int>{Module, Mask, Host};
    QTest::newRow("mask, module, page") << QVector<int>{Mask, Module, Page, Host};
}

void tst_builtMask_life::partsOfTheModelGoInAnyOrder()
{
    QFETCH(QVector<int>, order);
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    tick(mask.find<ZelQtFlag>("on")); // a tab and a group are hidden
    const QPointer<QWidget> page = mask.page();
    for (const int victim : order) {
        if (victim == Page)
            delete page.data();
        else if (victim == Host)
            mask.mHost.reset();
        else if (victim == Mask)
            mask.mMask.reset();
        else
            mask.mLoaded.reset();
    }
    QVERIFY(!page);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_builtMask_life::pageGoesWhileAFieldIsEdited_data()
{
    QTest::addColumn<bool>("moduleFirst");
    QTest::addColumn<QString>("field");
    QTest::newRow("number, page first") << false << "n";
    QTest::newRow("number, module first") << true << "n";
    QTest::newRow("component, page first") << false << "d_2";
    QTest::newRow("component, module first") << true << "d_2";
    QTest::newRow("text, page first") << false << "note";
    QTest::newRow("notes, page first") << false << "notes";
    QTest::newRow("notes, module first") << true << "notes";
}

void tst_builtMask_life::pageGoesWhileAFieldIsEdited()
{
    QFETCH(bool, moduleFirst);
    QFETCH(QString, field);
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    auto *widget = mask.find<QWidget>(qPrintable(field));
    QVERIFY(focus(widget));
    QTest::keyClicks(widget, "1");
    if (moduleFirst)
        mask.mLoaded.reset();
    delete mask.page();
    QVERIFY(mask.mHost->findChildren<ZelQtValueEdit *>().isEmpty());
}

// As when Return in a field closes its page.
void tst_builtMask_life::pageGoesInItsOwnConfirmation()
{
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    const QPointer<ZelQtTabPage> page = mask.page();
    connect(page, &ZelQtTabPage::valueConfirmed, page, &QObject::deleteLater);
    QVERIFY(enter(mask.find<ZelQtValueEdit>("d"), "5"));
    QTRY_VERIFY(!page);
    QCOMPARE(mask.real(L"d"), 5.0);
}

void tst_builtMask_life::deletedFieldLeavesTheRestOfItsLine()
{
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    delete mask.find<ZelQtValueEdit>("d_2");
    delete mask.find<ZelQtUnitLabel>("M_unit");
    mask.mMask->refresh();
    QVERIFY(enter(mask.find<ZelQtValueEdit>("d_3"), "5"));
    QCOMPARE(mask.real(L"d", 2), 5.0);
    mask.mMask->updateUnitSystem();
    mask.mMask->retranslate();
}

void tst_builtMask_life::hiddenTabGoesWithItsPage()
{
    BuiltMask mask(everything);
    QVERIFY(mask.show());
    const QPointer<QWidget> hidden = mask.find<QWidget>("X");
    QCOMPARE(mask.find<ZelQtTabPage>("A")->findChild<QTabWidget *>()->count(), 0);
    QVERIFY(mask.page()->isAncestorOf(hidden));
    delete mask.page();
    QVERIFY(!hidden);
}

void tst_builtMask_life::faultsLeaveTheRestStanding_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("standing");
    QTest::addColumn<QStringList>("missing");
    const auto row = [](const char *name, const char *lines, ZelFaultCode code, int line,
                        const QStringList &standing, const QStringList &missing) {
        QTest::newRow(name) << withVariables(lines) << static_cast<int>(code) << line << standing
                            << missing;
    };
    row("unknown variable", R"(<page text="P"><board><column><var name="a"/>
<var name="gone"/><var name="F"/></column></board></page>)",
        ZelFaultCode::UnknownName, 7, {"a", "F"}, {"gone"});
    row("unlike units in a line", R"(<page text="P"><board><column>
<line text="L"><var name="a"/><var name="F"/></line><var name="on"/></column></board></page>)",
        ZelFaultCode::UnlikeUnits, 7, {"a", "on"}, {"F"});
    row("bad condition of a line", R"(<page text="P"><board><column>
<var name="a" visible="on and"/><var name="F"/></column></board></page>)",
        ZelFaultCode::BadCondition, 7, {"a", "F"}, {});
    row("condition with an unknown name", R"(<page text="P"><board><column>
<var name="a" enabled="gone"/><var name="F"/></column></board></page>)",
        ZelFaultCode::BadCondition, 7, {"a", "F"}, {});
    row("bad condition of a tab", R"(<page text="P"><tabs>
<page name="A" text="A" visible="1 +"><board><column><var name="a"/></column></board></page>
<page name="B" text="B"/></tabs></page>)",
        ZelFaultCode::BadCondition, 7, {"A", "B", "a"}, {});
    row("unknown element in a column", R"(<page text="P"><board><column><var name="a"/>
<slider name="F"/><var name="on"/></column></board></page>)",
        ZelFaultCode::UnknownElement, 7, {"a", "on"}, {"F"});
    row("unknown element in a page", R"(<page text="P">
<panel><var name="F"/></panel><board><column><var name="a"/></column></board></page>)",
        ZelFaultCode::UnknownElement, 7, {"a"}, {"F"});
    row("element in the wrong place", R"(<page text="P"><board>
<var name="F"/><column><var name="a"/></column></board></page>)",
        ZelFaultCode::MisplacedElement, 7, {"a"}, {"F"});
    row("unknown attribute", R"(<page text="P"><board><column>
<var name="a" colour="red"/><var name="F"/></column></board></page>)",
        ZelFaultCode::UnknownAttribute, 7, {"a", "F"}, {});
    row("bad value of an attribute", R"(<page text="P"><board row="first"><column>
<var name="a"/></column></board></page>)",
        ZelFaultCode::BadValue, 6, {"a"}, {});
}

void tst_builtMask_life::faultsLeaveTheRestStanding()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, code);
    QFETCH(int, line);
    QFETCH(QStringList, standing);
    QFETCH(QStringList, missing);
    const QWidgetList before = QApplication::topLevelWidgets();
    BuiltMask mask(xml);
    QCOMPARE(mask.mFaults.size(), size_t(1));
    QCOMPARE(static_cast<int>(mask.mFaults.front().mCode), code);
    QCOMPARE(mask.mFaults.front().mLine, line);
    QVERIFY(mask.show());
    for (const QString &name : standing) {
        QVERIFY2(mask.has(qPrintable(name)), qPrintable(name));
        QVERIFY2(mask.find<QWidget>(qPrintable(name))->isEnabled(), qPrintable(name));
        QVERIFY2(!mask.find<QWidget>(qPrintable(name))->isHidden() || name == "B",
                 qPrintable(name));
    }
    for (const QString &name : missing)
        QVERIFY2(!mask.has(qPrintable(name)), qPrintable(name));
    auto *field = mask.find<ZelQtValueEdit>("a");
    QVERIFY(type(field, "4"));
    QTest::keyClick(field, Qt::Key_Return); // it may be the only field
    QCOMPARE(mask.real(L"a"), 4.0);
    QCOMPARE(windowsBeside(before), QWidgetList{mask.mHost.get()});
}

void tst_builtMask_life::brokenXmlShowsWhatStandsBeforeIt()
{
    BuiltMask mask(withVariables(R"(<page text="P"><board><column><var name="a"/>
<var name="F"></column></board></page>)"));
    QVERIFY(!mask.mFaults.empty());
    QCOMPARE(static_cast<int>(mask.mFaults.front().mCode), static_cast<int>(ZelFaultCode::Syntax));
    QVERIFY(mask.show());
    auto *field = mask.find<ZelQtValueEdit>("a");
    QVERIFY(type(field, "4"));
    QTest::keyClick(field, Qt::Key_Return); // it may be the only field
    QCOMPARE(mask.real(L"a"), 4.0);
}

void tst_builtMask_life::emptyDescriptionsMakeNoPage_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("blank") << QByteArray(" ");
    QTest::newRow("no XML") << QByteArray("module");
    QTest::newRow("another root") << QByteArray("<mask><page/></mask>");
    QTest::newRow("module without page") << QByteArray("<module id=\"test\"/>");
}

void tst_builtMask_life::emptyDescriptionsMakeNoPage()
{
    QFETCH(QByteArray, xml);
    BuiltMask mask(xml);
    QVERIFY(mask.mMask->pages().empty());
    mask.mMask->collect();
    mask.mMask->refresh();
    QVERIFY(mask.mMask->calculate().mSucceeded);
}

QTEST_MAIN(tst_builtMask_life)
#include "tst_builtMask_life.moc"
