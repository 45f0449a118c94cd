#include "zelQtTabPage.h"

#include "maskParts.h"
#include "zelDomNode.h"
#include "zelQtBoardLayout.h"
#include "zelQtColumnLayout.h"
#include "zelQtGroupBox.h"
#include "zelQtTabContainer.h"
#include "zelQtTopLayout.h"
#include "zelQtUiWidget.h"

#include <QtTest>

#include <QGraphicsView>
#include <QTabWidget>

namespace {

class Form : public ZelQtUiWidget
{
public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;
    void setData() override { ++mFilled; }
    void getData() override { }

    int mFilled = 0;
};

/// A page with its items.
struct Mask
{
    PartOwner mParts;
    ZelQtTabPage mPage;

    template <class Item> Item *add(Item *item, int row, int column = 0)
    {
        item->setModelPlace(row, column);
        mPage.addLayoutItem(item);
        return item;
    }
    ZelQtTopLayout *grid() const { return qobject_cast<ZelQtTopLayout *>(mPage.layout()); }
};

void addViewTo(ZelUIBoard *board)
{
    auto *column = new ZelQtColumnLayout;
    column->addWidget(new QGraphicsView, 0, 0);
    board->mColumns.push_back(column);
    board->modelAdoptColumns();
}

} // namespace

class tst_zelQtTabPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageHasNoIcon();
    void setupNamesThePage();
    void pageWithoutItemsHasNoLayout();
    void itemsStandWhereTheyAskFor();
    void lastRowTakesTheRest();
    void formAloneTakesTheWholePage();
    void formBesideAnotherItemLeavesTheStretchRow();
    void itemsThatAreNeitherWidgetNorLayoutAreSkipped();
    void boardWithAViewTakesTheHeightWhileItShows();
    void tabContainerKeepsItsStretchAsMeant();
    void setDataOfAPageWithoutLayoutIsHarmless();
    void stateHidesNoPage();
    void retranslateSetsTheTitle();
    void tabWidgetIsTheDirectParentOnly();
    void updateUiWidgetsFillsFormsAtAnyDepth();
};

void tst_zelQtTabPage::pageHasNoIcon()
{
    QWidget window;
    window.setWindowIcon(QIcon(QPixmap(16, 16)));
    const ZelQtTabPage page(&window);
    QCOMPARE(page.parentWidget(), &window);
    QVERIFY(!page.testAttribute(Qt::WA_SetWindowIcon));
}

void tst_zelQtTabPage::setupNamesThePage()
{
    ZelDomNode node(L"page");
    node.setAttribute(L"name", L"input");
    node.setAttribute(L"help", L"1201");
    ZelQtTabPage page;
    page.setup(&node);
    QCOMPARE(page.objectName(), QString("input"));
    QCOMPARE(page.authorItCode(), 1201);
}

void tst_zelQtTabPage::pageWithoutItemsHasNoLayout()
{
    ZelQtTabPage page;
    page.makeLayout();
    QVERIFY(!page.layout());
}

void tst_zelQtTabPage::itemsStandWhereTheyAskFor()
{
    Mask mask;
    auto *group = mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0, 1);
    group->setModelPlace(0, 1, 2, 1);
    mask.add(new ZelQtBoardLayout, 3);
    mask.add(mask.mParts.make<ZelQtTabContainer>("tabs"), 4);
    mask.add(mask.mParts.make<Form>("form"), 5);

    mask.mPage.makeLayout();

    QVERIFY(mask.grid());
    QCOMPARE(describeGrid(mask.grid()),
             QStringList({"0,1 2x1 group", "3,0 []", "4,0 tabs", "5,0 form"}));
    QCOMPARE(group->parentWidget(), &mask.mPage);
}

void tst_zelQtTabPage::lastRowTakesTheRest()
{
    Mask mask;
    mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0);
    mask.mPage.makeLayout();
    QCOMPARE(mask.grid()->rowStretch(0), 0);
    QCOMPARE(mask.grid()->rowStretch(1), 1);
}

void tst_zelQtTabPage::formAloneTakesTheWholePage()
{
    Mask mask;
    mask.add(mask.mParts.make<Form>("form"), 0);
    mask.mPage.makeLayout();
    QCOMPARE(describeGrid(mask.grid()), QStringList("0,0 form"));
    QCOMPARE(mask.grid()->rowCount(), 1);
}

void tst_zelQtTabPage::formBesideAnotherItemLeavesTheStretchRow()
{
    Mask mask;
    mask.add(mask.mParts.make<Form>("form"), 0);
    mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 1);
    mask.mPage.makeLayout();
    QCOMPARE(mask.grid()->rowStretch(2), 1);
}

void tst_zelQtTabPage::itemsThatAreNeitherWidgetNorLayoutAreSkipped()
{
    ZelUIBoard plain;
    Mask mask;
    mask.add(&plain, 0);
    mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 1);
    mask.mPage.makeLayout();
    QCOMPARE(describeGrid(mask.grid()), QStringList("1,0 group"));
}

void tst_zelQtTabPage::boardWithAViewTakesTheHeightWhileItShows()
{
    Mask mask;
    auto *group = mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0);
    addViewTo(group);
    mask.add(mask.mParts.make<ZelQtGroupBox>("plain"), 1);
    mask.mPage.makeLayout();

    mask.mPage.setData(nullptr, 0);
    QCOMPARE(mask.grid()->rowStretch(0), 100);
    QCOMPARE(mask.grid()->rowStretch(1), 0);
    group->mVisible = false;
    mask.mPage.setData(nullptr, 0);
    QCOMPARE(mask.grid()->rowStretch(0), 0);
}

// Unlike in the top layout.
void tst_zelQtTabPage::tabContainerKeepsItsStretchAsMeant()
{
    Mask mask;
    mask.add(mask.mParts.make<ZelQtTabContainer>("tabs"), 0);
    mask.mPage.makeLayout();
    mask.mPage.setData(nullptr, 0);
    QCOMPARE(mask.grid()->rowStretch(0), 0);
    mask.grid()->setRowStretch(0, 7);
    mask.mPage.setData(nullptr, 0);
    QCOMPARE(mask.grid()->rowStretch(0), 7);
}

void tst_zelQtTabPage::setDataOfAPageWithoutLayoutIsHarmless()
{
    ZelQtTabPage page;
    page.setData(nullptr, 0);
    QVERIFY(!page.layout());
}

void tst_zelQtTabPage::stateHidesNoPage()
{
    QWidget window;
    ZelQtTabPage page(&window);
    window.show();
    page.mVisible = false;
    page.mEnabled = false;
    page.updateState(nullptr, 0);
    QVERIFY(page.isVisible());
    QVERIFY(page.isEnabled());
}

void tst_zelQtTabPage::retranslateSetsTheTitle()
{
    Mask mask;
    auto *group = mask.add(mask.mParts.make<ZelQtGroupBox>("group"), 0);
    group->mTitle.setText(L"Lager");
    mask.mPage.mTitle.setText(L"Eingabe");
    mask.mPage.retranslate();
    QCOMPARE(mask.mPage.windowTitle(), QString("Eingabe"));
    QCOMPARE(group->title(), QString("Lager"));
}

void tst_zelQtTabPage::tabWidgetIsTheDirectParentOnly()
{
    QTabWidget tabs;
    auto *page = new ZelQtTabPage(&tabs);
    QCOMPARE(page->tabWidget(), &tabs);
    tabs.addTab(page, "page"); // Qt puts it into a stack of its own
    QVERIFY(!page->tabWidget());
    QVERIFY(!ZelQtTabPage().tabWidget());
}

void tst_zelQtTabPage::updateUiWidgetsFillsFormsAtAnyDepth()
{
    ZelQtTabPage page;
    auto *group = new QGroupBox(&page);
    auto *near = new Form;
    near->setParent(&page);
    auto *deep = new Form;
    deep->setParent(group);
    Form elsewhere;

    page.updateUiWidgets();

    QCOMPARE(near->mFilled, 1);
    QCOMPARE(deep->mFilled, 1);
    QCOMPARE(elsewhere.mFilled, 0);
}

QTEST_MAIN(tst_zelQtTabPage)
#include "tst_zelQtTabPage.moc"
