#include "zelQtTabContainer.h"

#include "zelQtTabPage.h"
#include "zelQtUiWidget.h"
#include "zelUITabPage.h"

#include <QtTest>

#include <QTabBar>
#include <QVBoxLayout>

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

/// A container with pages called A, B, C and so on.
class Tabs : public ZelQtTabContainer
{
public:
    using ZelQtTabContainer::reinsertTab;

    explicit Tabs(int count)
    {
        for (int i = 0; i < count; ++i) {
            auto *page = new ZelQtTabPage(this);
            page->mTitle.setText(std::wstring(1, static_cast<wchar_t>(L'A' + i)));
            addTab(page);
        }
    }
    ZelQtTabPage *page(int index) const
    {
        return dynamic_cast<ZelQtTabPage *>(mPages[static_cast<size_t>(index)]);
    }
    // The texts in the tab bar, each of which must stand over its own page.
    QString shown() const
    {
        QString texts;
        for (int i = 0; i < count(); ++i) {
            auto *page = qobject_cast<ZelQtTabPage *>(widget(i));
            texts +=
                page && QString::fromStdWString(page->getTitle()) == tabText(i) ? tabText(i) : "?";
        }
        return texts;
    }
    // Sets the visible pages by their letters and refreshes.
    void show(const QString &letters)
    {
        for (size_t i = 0; i < mPages.size(); ++i)
            mPages[i]->mVisible = letters.contains(QChar('A' + static_cast<int>(i)));
        setData(nullptr, 0);
    }
};

} // namespace

class tst_zelQtTabContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesBecomeTabsWithTheirTitles();
    void pageThatIsNoWidgetIsKeptByTheModelOnly();
    void pagesOfTheApplicationCanStandBesideThem();
    void hiddenPagesLeaveAndComeBackAtTheirPlace_data();
    void hiddenPagesLeaveAndComeBackAtTheirPlace();
    void hiddenPageStaysAlive();
    void reinsertTabRefusesWrongAndShownPages();
    void tabTextFollowsTheTitleOfThePage();
    void titleOfAHiddenPageTouchesNoTab();
    void switchingToATabRefillsItsForms();
    void firstTabFillsItsFormsWhileTheMaskIsBuilt();
    void otherWidgetsInFrontAreLeftAlone();
    void containerFollowsVisibleOnly();
};

void tst_zelQtTabContainer::pagesBecomeTabsWithTheirTitles()
{
    Tabs tabs(3);
    QCOMPARE(tabs.shown(), QString("ABC"));
    QCOMPARE(tabs.mPages.size(), size_t(3));
    QVERIFY(tabs.tabIcon(0).isNull());
}

void tst_zelQtTabContainer::pageThatIsNoWidgetIsKeptByTheModelOnly()
{
    ZelUITabPage plain;
    Tabs tabs(1);
    tabs.addTab(&plain);
    tabs.setData(nullptr, 0);
    QCOMPARE(tabs.shown(), QString("A"));
    QCOMPARE(tabs.mPages.size(), size_t(2));
}

void tst_zelQtTabContainer::pagesOfTheApplicationCanStandBesideThem()
{
    Tabs tabs(1);
    tabs.addTab(new QWidget, "more");
    tabs.setData(nullptr, 0);
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.tabText(1), QString("more"));
}

// A step is what the model wants to show, then "=", then what shows: a page from the middle comes
// back only in front of a later page that is shown, and waits for the next refresh without one.
void tst_zelQtTabContainer::hiddenPagesLeaveAndComeBackAtTheirPlace_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("middle one between the others") << 3 << QStringList({"AC=AC", "ABC=ABC"});
    QTest::newRow("first one") << 3 << QStringList({"BC=BC", "ABC=ABC"});
    QTest::newRow("last one") << 3 << QStringList({"AB=AB", "ABC=ABC"});
    QTest::newRow("the middle waits for the last, as meant")
        << 3 << QStringList({"A=A", "AB=A", "ABC=AC", "ABC=ABC"});
    QTest::newRow("both at once: the middle still waits a round")
        << 3 << QStringList({"A=A", "ABC=AC", "ABC=ABC"});
    QTest::newRow("all, one after the other") << 3 << QStringList({"=", "C=C", "BC=BC", "ABC=ABC"});
    QTest::newRow("all at once") << 3 << QStringList({"=", "ABC=AC", "ABC=ABC"});
    QTest::newRow("in front of the next one that is shown")
        << 5 << QStringList({"AE=AE", "ADE=ADE", "ABDE=ABDE", "ABCDE=ABCDE"});
    QTest::newRow("two neighbours at once") << 4 << QStringList({"AD=AD", "ABCD=ABCD"});
    QTest::newRow("only page") << 1 << QStringList({"=", "A=A"});
    QTest::newRow("two pages") << 2 << QStringList({"=", "AB=AB", "A=A", "AB=AB"});
}

void tst_zelQtTabContainer::hiddenPagesLeaveAndComeBackAtTheirPlace()
{
    QFETCH(int, pages);
    QFETCH(QStringList, steps);
    Tabs tabs(pages);
    for (const QString &step : steps) {
        const QStringList sides = step.split('=');
        tabs.show(sides.first());
        QCOMPARE(sides.first() + '=' + tabs.shown(), step);
    }
}

void tst_zelQtTabContainer::hiddenPageStaysAlive()
{
    Tabs tabs(2);
    QPointer<ZelQtTabPage> page = tabs.page(1);
    tabs.QWidget::show();
    tabs.setCurrentIndex(1);
    QVERIFY(page->isVisible());

    tabs.show("A");

    QVERIFY(page);
    QVERIFY(!page->isVisible());
    QVERIFY(page->window() == &tabs); // still a child, and no window of its own
}

void tst_zelQtTabContainer::reinsertTabRefusesWrongAndShownPages()
{
    Tabs tabs(3);
    tabs.show("AC");
    for (const int index : {-1, 3, 0, 2}) {
        tabs.reinsertTab(index);
        QCOMPARE(tabs.shown(), QString("AC"));
    }
    tabs.reinsertTab(1);
    QCOMPARE(tabs.shown(), QString("ABC"));
}

void tst_zelQtTabContainer::tabTextFollowsTheTitleOfThePage()
{
    Tabs tabs(2);
    tabs.page(1)->mTitle.setText(L"Ergebnis");
    tabs.page(1)->retranslate();
    QCOMPARE(tabs.tabText(1), QString("Ergebnis"));
    QCOMPARE(tabs.tabText(0), QString("A"));
}

void tst_zelQtTabContainer::titleOfAHiddenPageTouchesNoTab()
{
    Tabs tabs(2);
    tabs.show("A");
    tabs.page(1)->mTitle.setText(L"Ergebnis");
    tabs.page(1)->retranslate();
    QCOMPARE(tabs.shown(), QString("A"));

    tabs.show("AB");
    QCOMPARE(tabs.tabText(1), QString("Ergebnis"));
}

void tst_zelQtTabContainer::switchingToATabRefillsItsForms()
{
    Tabs tabs(2);
    auto *form = new Form;
    auto *inner = new Tabs(1);
    auto *innerForm = new Form;
    innerForm->setParent(inner->page(0));
    auto *layout = new QVBoxLayout(tabs.page(1));
    layout->addWidget(form);
    layout->addWidget(inner);
    QCOMPARE(form->mFilled, 0);

    tabs.QWidget::show();
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs.tabBar()->tabRect(1).center());
    QCOMPARE(tabs.currentIndex(), 1);
    QCOMPARE(form->mFilled, 1);
    QCOMPARE(innerForm->mFilled, 1);

    tabs.setCurrentIndex(0);
    QCOMPARE(form->mFilled, 1);
    tabs.setCurrentIndex(1);
    QCOMPARE(form->mFilled, 2);
}

void tst_zelQtTabContainer::firstTabFillsItsFormsWhileTheMaskIsBuilt()
{
    ZelQtTabContainer tabs;
    auto *page = new ZelQtTabPage;
    auto *form = new Form;
    form->setParent(page);
    tabs.addTab(page);
    QCOMPARE(form->mFilled, 1);
}

void tst_zelQtTabContainer::otherWidgetsInFrontAreLeftAlone()
{
    Tabs tabs(1);
    auto *plain = new QWidget;
    auto *form = new Form;
    form->setParent(plain);
    tabs.addTab(plain, "more");
    tabs.setCurrentIndex(1);
    QCOMPARE(form->mFilled, 0);
}

void tst_zelQtTabContainer::containerFollowsVisibleOnly()
{
    QWidget window;
    ZelQtTabContainer tabs(&window);
    window.show();
    tabs.mEnabled = false;
    tabs.mReadOnly = true;
    tabs.updateState(nullptr, 0);
    QVERIFY(tabs.isVisible());
    QVERIFY(tabs.isEnabled());

    tabs.mVisible = false;
    tabs.updateState(nullptr, 0);
    QVERIFY(!tabs.isVisible());
}

QTEST_MAIN(tst_zelQtTabContainer)
#include "tst_zelQtTabContainer.moc"
