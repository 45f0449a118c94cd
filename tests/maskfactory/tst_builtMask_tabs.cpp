#include "builtMask.h"

#include "zelQtFlag.h"
#include "zelQtTabContainer.h"
#include "zelQtUiWidget.h"

#include <QTabBar>

// Tabs of masks of descriptions: what conditions hide comes back, and forms fill when they show.

namespace {

const char *const tabs = R"(<module id="test">
 <variables>
  <bool name="b" text="Seite B" initial="true"/><bool name="inner" text="Innen" initial="true"/>
  <real name="in_b" text="Wert B" initial="2"/><real name="in_y" text="Wert Y" initial="3"/>
 </variables>
 <page name="p" text="Seite">
  <board row="0"><column><var name="b"/><var name="inner"/></column></board>
  <tabs row="1" name="outer">
   <page name="A" text="A">
    <tabs name="nested">
     <page name="X" text="X"/>
     <page name="Y" text="Y" visible="inner">
      <board><column><var name="in_y"/></column></board>
     </page>
    </tabs>
   </page>
   <page name="B" text="B" visible="b"><board><column><var name="in_b"/></column></board></page>
   <page name="C" text="C"/>
  </tabs>
 </page>
</module>)";

const char *const forms = R"(<module id="test">
 <variables><real name="a" text="a"/></variables>
 <page name="p" text="Seite">
  <board row="0"><column><var name="a"/></column></board>
  <tabs row="1">
   <page name="first" text="1"/>
   <page name="second" text="2">
    <board><column><text text="Formular"/></column></board>
    <tabs><page name="deep" text="3"><external class="Form"/></page></tabs>
   </page>
  </tabs>
 </page>
</module>)";

QString tabTexts(const QTabWidget *tabs)
{
    QString texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts += tabs->tabText(i);
    return texts;
}

class Form : public ZelQtUiWidget
{
public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;
    using ZelQtUiWidget::ZelQtUiWidget;
    void setData() override { ++mFilled; }
    void getData() override { }

    int mFilled = 0;
};

void makeForms(ZelQtUiFactory &factory)
{
    factory.addForm(L"Form", [](QWidget *parent) { return new Form(parent); });
}

void clickTab(QTabWidget *tabs, int index)
{
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs->tabBar()->tabRect(index).center());
}

} // namespace

class tst_builtMask_tabs : public QObject
{
    Q_OBJECT

private slots:
    void descriptionsOfThisFileHaveNoFaults();
    void tabsFollowTheirConditions();
    void nestedTabsFollowTheirConditions();
    void tabThatIsHiddenWhileItShowsGivesWayToAnother();
    void fieldsOfAHiddenTabKeepTheirValues();
    void formIsFilledWheneverItsTabComesToTheFront();
    void formFollowsItsConditions();
};

void tst_builtMask_tabs::descriptionsOfThisFileHaveNoFaults()
{
    QCOMPARE(BuiltMask(tabs).faults(), QStringList());
    QCOMPARE(BuiltMask(forms).faults(), QStringList());
}

void tst_builtMask_tabs::tabsFollowTheirConditions()
{
    BuiltMask mask(tabs);
    QVERIFY(mask.show());
    const auto *outer = mask.mHost->findChildren<ZelQtTabContainer *>().first();
    QCOMPARE(tabTexts(outer), QString("ABC"));

    tick(mask.find<ZelQtFlag>("b"));
    QCOMPARE(tabTexts(outer), QString("AC"));
    QVERIFY(!mask.find<QWidget>("B")->isVisible());
    QVERIFY(!mask.find<QWidget>("B")->isWindow());

    tick(mask.find<ZelQtFlag>("b"));
    QCOMPARE(tabTexts(outer), QString("ABC"));
}

void tst_builtMask_tabs::nestedTabsFollowTheirConditions()
{
    BuiltMask mask(tabs);
    QVERIFY(mask.show());
    const auto containers = mask.mHost->findChildren<ZelQtTabContainer *>();
    QCOMPARE(containers.size(), 2);
    auto *outer = containers.first();
    const auto *nested = containers.last();
    QVERIFY(outer->isAncestorOf(nested));
    QCOMPARE(tabTexts(nested), QString("XY"));

    // Also while nobody sees it.
    clickTab(outer, 2);
    QVERIFY(!nested->isVisible());
    tick(mask.find<ZelQtFlag>("inner"));
    clickTab(outer, 0);
    QVERIFY(nested->isVisible());
    QCOMPARE(tabTexts(nested), QString("X"));

    tick(mask.find<ZelQtFlag>("inner"));
    QCOMPARE(tabTexts(nested), QString("XY"));
}

void tst_builtMask_tabs::tabThatIsHiddenWhileItShowsGivesWayToAnother()
{
    BuiltMask mask(tabs);
    QVERIFY(mask.show());
    auto *outer = mask.mHost->findChildren<ZelQtTabContainer *>().first();
    clickTab(outer, 1);
    QVERIFY(mask.find<QLineEdit>("in_b")->isVisible());

    tick(mask.find<ZelQtFlag>("b"));

    QVERIFY(!mask.find<QLineEdit>("in_b")->isVisible());
    QVERIFY(outer->currentWidget());
    QVERIFY(outer->currentWidget()->isVisible());

    tick(mask.find<ZelQtFlag>("b"));
    outer->setCurrentWidget(mask.find<QWidget>("B"));
    QVERIFY(mask.find<QLineEdit>("in_b")->isVisible());
}

void tst_builtMask_tabs::fieldsOfAHiddenTabKeepTheirValues()
{
    BuiltMask mask(tabs);
    QVERIFY(mask.show());
    auto *outer = mask.mHost->findChildren<ZelQtTabContainer *>().first();
    clickTab(outer, 1);
    QVERIFY(enter(mask.find<QLineEdit>("in_b"), "7.25"));
    QCOMPARE(mask.real(L"in_b"), 7.25);

    tick(mask.find<ZelQtFlag>("b"));
    QCOMPARE(mask.real(L"in_b"), 7.25);
    tick(mask.find<ZelQtFlag>("b"));
    QCOMPARE(mask.find<QLineEdit>("in_b")->text(), QString("7.2500"));
}

void tst_builtMask_tabs::formIsFilledWheneverItsTabComesToTheFront()
{
    BuiltMask mask(forms, makeForms);
    QVERIFY(mask.show());
    const auto *form = dynamic_cast<Form *>(mask.mHost->findChild<ZelQtUiWidget *>());
    QVERIFY(form);
    QVERIFY(!form->isVisible());
    auto *outer = mask.mHost->findChildren<ZelQtTabContainer *>().first();
    const int atFirst = form->mFilled;

    clickTab(outer, 1);
    QVERIFY(form->isVisible());
    QCOMPARE(form->mFilled, atFirst + 1); // though it lies in tabs of that tab
    clickTab(outer, 0);
    QCOMPARE(form->mFilled, atFirst + 1);
    clickTab(outer, 1);
    QCOMPARE(form->mFilled, atFirst + 2);

    mask.mMask->refresh(); // the walk of the model passes it by
    QCOMPARE(form->mFilled, atFirst + 2);
}

void tst_builtMask_tabs::formFollowsItsConditions()
{
    BuiltMask mask(R"(<module id="test">
 <variables><bool name="on" text="An" initial="true"/>
  <bool name="open" text="Offen" initial="true"/></variables>
 <page name="p" text="Seite">
  <board row="0"><column><var name="on"/><var name="open"/></column></board>
  <external row="1" class="Form" visible="on" enabled="open"/>
 </page>
</module>)",
                   makeForms);
    QCOMPARE(mask.faults(), QStringList());
    QVERIFY(mask.show());
    const auto *form = mask.mHost->findChild<ZelQtUiWidget *>();
    QVERIFY(form->isVisible() && form->isEnabled());
    tick(mask.find<ZelQtFlag>("open"));
    QVERIFY(form->isVisible() && !form->isEnabled());
    tick(mask.find<ZelQtFlag>("on"));
    QVERIFY(!form->isVisible());
    tick(mask.find<ZelQtFlag>("on"));
    tick(mask.find<ZelQtFlag>("open"));
    QVERIFY(form->isVisible() && form->isEnabled());
}

QTEST_MAIN(tst_builtMask_tabs)
#include "tst_builtMask_tabs.moc"
