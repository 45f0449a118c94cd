#include "zelQtSpacer.h"

#include "window.h"
#include "zelQtLayoutLine.h"
#include "zelQtSpacerItems.h"

#include <QSpacerItem>

class tst_zelQtSpacer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spacerKeepsItsWidth();
    void spacerFollowsVisibleAlone();
    void spacerItemsHaveTheirSizes_data();
    void spacerItemsHaveTheirSizes();
    void eachCallMakesANewSpacerItem();
    void layoutLineIsASunkenUprightLine();
};

void tst_zelQtSpacer::spacerKeepsItsWidth()
{
    const ZelQtSpacer spacer;
    QCOMPARE(spacer.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(spacer.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(spacer.text(), QString());
}

void tst_zelQtSpacer::spacerFollowsVisibleAlone()
{
    QWidget window;
    ZelQtSpacer spacer(&window);
    window.show();
    ZelUISpacer &model = spacer;

    model.updateState(ZelUIState{true, false, false});
    QVERIFY(!spacer.isVisible());
    QVERIFY(!model.mVisible);

    model.updateState(ZelUIState{false, true, true});
    QVERIFY(spacer.isVisible());
    QVERIFY(spacer.isEnabled());
    QCOMPARE(model.state(), (ZelUIState{false, true, true}));
}

void tst_zelQtSpacer::spacerItemsHaveTheirSizes_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    QTest::newRow("vSpacerItem") << 0 << QSize(0, 20) << int(QSizePolicy::Minimum)
                                 << int(QSizePolicy::Expanding);
    QTest::newRow("hMidSpacerItem")
        << 1 << QSize(80, 0) << int(QSizePolicy::Maximum) << int(QSizePolicy::Minimum);
    QTest::newRow("hRightSpacerItem")
        << 2 << QSize(0, 0) << int(QSizePolicy::Expanding) << int(QSizePolicy::Minimum);
}

void tst_zelQtSpacer::spacerItemsHaveTheirSizes()
{
    QFETCH(int, which);
    const std::unique_ptr<QSpacerItem> item(which == 0       ? vSpacerItem()
                                                : which == 1 ? hMidSpacerItem()
                                                             : hRightSpacerItem());
    QTEST(item->sizeHint(), "size");
    QTEST(int(item->sizePolicy().horizontalPolicy()), "horizontal");
    QTEST(int(item->sizePolicy().verticalPolicy()), "vertical");
}

void tst_zelQtSpacer::eachCallMakesANewSpacerItem()
{
    const std::unique_ptr<QSpacerItem> first(vSpacerItem());
    const std::unique_ptr<QSpacerItem> second(vSpacerItem());
    QVERIFY(first.get() != second.get());
}

void tst_zelQtSpacer::layoutLineIsASunkenUprightLine()
{
    QWidget parent;
    const ZelQtLayoutLine line(&parent);
    QCOMPARE(line.parentWidget(), &parent);
    QCOMPARE(line.frameShape(), QFrame::VLine);
    QCOMPARE(line.frameShadow(), QFrame::Sunken);
}

QTEST_MAIN(tst_zelQtSpacer)
#include "tst_zelQtSpacer.moc"
