#include "zelQtElementBox.h"

#include "maskParts.h"
#include "maskTestSupport.h"
#include "zelQtGroupBox.h"
#include "zelQtToolBar.h"

#include <QtTest>

#include <QToolBox>

using Style = ZelQtElementBox::Style;

namespace {

QBoxLayout *layoutOf(const QWidget &widget)
{
    return qobject_cast<QBoxLayout *>(widget.layout());
}

QSpacerItem *lastSpacer(const ZelQtElementBox &box)
{
    return layoutOf(box)->itemAt(layoutOf(box)->count() - 1)->spacerItem();
}

} // namespace

class tst_zelQtElementBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZelQtElementBox::mStyle = ZelQtElementBox::GroupBoxes; }

    void stylesHaveTheirNumbers();
    void groupBoxStyleStacksFlatGroups();
    void groupBoxStyleEnablesAsGiven();
    void severalBarsShareOneGroup();
    void severalBarsActWithGroupBoxesOnlyAsMeant_data();
    void severalBarsActWithGroupBoxesOnlyAsMeant();
    void noBarsMakeNoGroup();
    void toolBoxStyleMakesAPageOfEachGroup();
    void toolBarStyleSeparatesAllButTheFirst();
    void finishLayoutClosesTheBox_data();
    void finishLayoutClosesTheBox();
    void titlesFollowTheBarsAtRetranslation_data();
    void titlesFollowTheBarsAtRetranslation();
    void groupOfSeveralBarsTakesTheTitleOfTheFirst();
    void boxKeepsTheStyleItWasBuiltWith();
    void toolBarStaysWhereItIs();
};

void tst_zelQtElementBox::stylesHaveTheirNumbers()
{
    QCOMPARE(int(ZelQtElementBox::mStyle), 0); // nobody set it yet
    QCOMPARE(int(ZelQtElementBox::GroupBoxes), 0);
    QCOMPARE(int(ZelQtElementBox::ToolBox), 1);
    QCOMPARE(int(ZelQtElementBox::ToolBars), 2);
}

void tst_zelQtElementBox::groupBoxStyleStacksFlatGroups()
{
    ZelQtElementBox box;
    ZelQtToolBar *first = box.createElementGroup(true);
    ZelQtToolBar *second = box.createElementGroup(true);

    QVERIFY(qobject_cast<QVBoxLayout *>(box.layout()));
    QCOMPARE(box.layout()->count(), 2);
    QVERIFY(!box.findChild<QToolBox *>());
    int index = 0;
    for (const ZelQtToolBar *bar : {first, second}) {
        auto *group = qobject_cast<ZelQtGroupBox *>(box.layout()->itemAt(index++)->widget());
        QVERIFY(group);
        QCOMPARE(bar->parentWidget(), group);
        QVERIFY(group->isFlat());
        auto *content = qobject_cast<QHBoxLayout *>(group->layout());
        QVERIFY(content);
        QCOMPARE(content->count(), 1);
        QCOMPARE(content->spacing(), 0);
        QCOMPARE(content->contentsMargins(), QMargins(0, 0, 0, 0));
        QVERIFY(bar->actions().isEmpty());
    }
}

void tst_zelQtElementBox::groupBoxStyleEnablesAsGiven()
{
    ZelQtElementBox box;
    QVERIFY(box.createElementGroup(true)->parentWidget()->isEnabled());
    QVERIFY(!box.createElementGroup(false)->parentWidget()->isEnabled());
    QVERIFY(box.isEnabled());
}

void tst_zelQtElementBox::severalBarsShareOneGroup()
{
    ZelQtElementBox box;
    auto *first = new ZelQtToolBar(&box);
    auto *second = new ZelQtToolBar(&box);
    first->setObjectName("first");
    second->setObjectName("second");

    box.createElementGroup({first, second}, false);

    QCOMPARE(box.layout()->count(), 1);
    auto *group = qobject_cast<ZelQtGroupBox *>(box.layout()->itemAt(0)->widget());
    QVERIFY(group);
    QVERIFY(group->isFlat());
    QVERIFY(!group->isEnabled());
    QVERIFY(layoutOf(*group));
    QCOMPARE(describeBox(layoutOf(*group)), QString("[first/second]"));
    QCOMPARE(group->layout()->spacing(), 0);
    QCOMPARE(group->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_zelQtElementBox::severalBarsActWithGroupBoxesOnlyAsMeant_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("tool box") << 1;
    QTest::newRow("tool bars") << 2;
}

void tst_zelQtElementBox::severalBarsActWithGroupBoxesOnlyAsMeant()
{
    QFETCH(int, style);
    ZelQtElementBox::mStyle = static_cast<Style>(style);
    ZelQtElementBox box;
    const int before = box.layout()->count();
    ZelQtToolBar bar;
    box.createElementGroup({&bar}, true);
    QCOMPARE(box.layout()->count(), before);
    QVERIFY(!bar.parent());
    QVERIFY(!box.findChild<ZelQtGroupBox *>());
}

void tst_zelQtElementBox::noBarsMakeNoGroup()
{
    ZelQtElementBox box;
    box.createElementGroup(QVector<ZelQtToolBar *>(), true);
    QCOMPARE(box.layout()->count(), 0);
}

void tst_zelQtElementBox::toolBoxStyleMakesAPageOfEachGroup()
{
    ZelQtElementBox::mStyle = ZelQtElementBox::ToolBox;
    ZelQtElementBox box;
    QVERIFY(qobject_cast<QVBoxLayout *>(box.layout()));
    auto *toolBox = qobject_cast<QToolBox *>(box.layout()->itemAt(0)->widget());
    QVERIFY(toolBox);

    ZelQtToolBar *first = box.createElementGroup(false);
    ZelQtToolBar *second = box.createElementGroup(true);

    QCOMPARE(toolBox->indexOf(first), 0);
    QCOMPARE(toolBox->indexOf(second), 1);
    QCOMPARE(toolBox->itemText(1), QString());
    QVERIFY(toolBox->isItemEnabled(0)); // the flag has no effect here
    QVERIFY(first->isEnabled());
    QCOMPARE(box.layout()->count(), 1);
}

void tst_zelQtElementBox::toolBarStyleSeparatesAllButTheFirst()
{
    ZelQtElementBox::mStyle = ZelQtElementBox::ToolBars;
    ZelQtElementBox box;
    QVERIFY(qobject_cast<QHBoxLayout *>(box.layout()));
    ZelQtToolBar *first = box.createElementGroup(false);
    ZelQtToolBar *second = box.createElementGroup(true);
    first->setObjectName("first");
    second->setObjectName("second");

    QCOMPARE(describeBox(layoutOf(box)), QString("[first second]"));
    QCOMPARE(box.layout()->spacing(), 0);
    QCOMPARE(box.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QVERIFY(first->actions().isEmpty());
    QVERIFY(first->isEnabled()); // the flag has no effect here
    QCOMPARE(second->actions().count(), 1);
    QVERIFY(second->actions().first()->isSeparator());
}

void tst_zelQtElementBox::finishLayoutClosesTheBox_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    const int minimum = QSizePolicy::Minimum;
    const int expanding = QSizePolicy::Expanding;
    QTest::newRow("group boxes") << 0 << minimum << expanding;
    QTest::newRow("tool box") << 1 << minimum << expanding;
    QTest::newRow("tool bars") << 2 << expanding << minimum;
}

void tst_zelQtElementBox::finishLayoutClosesTheBox()
{
    QFETCH(int, style);
    ZelQtElementBox::mStyle = static_cast<Style>(style);
    ZelQtElementBox box;
    box.createElementGroup(true);
    box.finishLayout();
    const QSpacerItem *spacer = lastSpacer(box);
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(20, 20));
    QTEST(int(spacer->sizePolicy().horizontalPolicy()), "horizontal");
    QTEST(int(spacer->sizePolicy().verticalPolicy()), "vertical");
}

void tst_zelQtElementBox::titlesFollowTheBarsAtRetranslation_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("group boxes") << 0;
    QTest::newRow("tool box") << 1;
}

void tst_zelQtElementBox::titlesFollowTheBarsAtRetranslation()
{
    QFETCH(int, style);
    ZelQtElementBox::mStyle = static_cast<Style>(style);
    ZelQtElementBox box;
    box.createElementGroup(true)->setWindowTitle("Wellen");
    box.createElementGroup(true)->setWindowTitle("Lager");
    const auto titles = [&box] {
        QStringList texts;
        if (auto *toolBox = box.findChild<QToolBox *>()) {
            for (int i = 0; i < toolBox->count(); ++i)
                texts.append(toolBox->itemText(i));
        }
        for (const auto *group : box.findChildren<ZelQtGroupBox *>())
            texts.append(group->title());
        return texts;
    };
    QCOMPARE(titles(), QStringList({"", ""}));

    changeLanguage(&box);

    QCOMPARE(titles(), QStringList({"Wellen", "Lager"}));
}

void tst_zelQtElementBox::groupOfSeveralBarsTakesTheTitleOfTheFirst()
{
    ZelQtElementBox box;
    auto *first = new ZelQtToolBar(&box);
    auto *second = new ZelQtToolBar(&box);
    first->setWindowTitle("Wellen");
    second->setWindowTitle("Lager");
    box.createElementGroup({first, second}, true);
    changeLanguage(&box);
    QCOMPARE(box.findChild<ZelQtGroupBox *>()->title(), QString("Wellen"));
}

void tst_zelQtElementBox::boxKeepsTheStyleItWasBuiltWith()
{
    ZelQtElementBox box;
    ZelQtElementBox::mStyle = ZelQtElementBox::ToolBox;
    QVERIFY(qobject_cast<ZelQtGroupBox *>(box.createElementGroup(true)->parentWidget()));
}

void tst_zelQtElementBox::toolBarStaysWhereItIs()
{
    QWidget parent;
    const ZelQtToolBar bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(!bar.isMovable());
    QCOMPARE(bar.allowedAreas(), Qt::ToolBarAreas(Qt::TopToolBarArea));
}

QTEST_MAIN(tst_zelQtElementBox)
#include "tst_zelQtElementBox.moc"
