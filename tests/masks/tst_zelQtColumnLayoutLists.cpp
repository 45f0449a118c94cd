#include "zelQtColumnLayout.h"

#include "maskParts.h"
#include "zelQtLayoutLine.h"
#include "zelUIComboBox.h"
#include "zelUIFlag.h"
#include "zelUILSElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUIPushButton.h"
#include "zelUISpinBox.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextLabel.h"

#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

namespace {

using Label = Part<QLabel, ZelUITextLabel>;
using Combo = Part<QComboBox, ZelUIComboBox>;
using Button = Part<QPushButton, ZelUIPushButton>;
using SpinBox = Part<QSpinBox, ZelUISpinBox>;
using Flag = Part<QCheckBox, ZelUIFlag>;
using Table = Part<QTableView, ZelUITable>;

struct Mask
{
    PartOwner mParts;
    QWidget mWindow;
    ZelQtColumnLayout *mColumn = new ZelQtColumnLayout(&mWindow);

    QStringList grid() const { return describeGrid(mColumn); }
    template <class Kind, class Target>
    void make(const QStringList &recipe, const QString &name, Target *&part)
    {
        if (recipe.contains(name))
            part = mParts.make<Kind>(name);
    }
};

} // namespace

class tst_zelQtColumnLayoutLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void materialElement_data();
    void materialElement();
    void oneLineMaterialLabelKeepsItsNaturalWidth();
    void lubricantElement_data();
    void lubricantElement();
    void lubricantLabelKeepsItsNaturalWidth();
    void listWithNumber_data();
    void listWithNumber();
    void spinBoxWidthComesFromItsHeightAsMeant();
    void tableButtons_data();
    void tableButtons();
    void tableSpansWhatTheModelSays();
    void separatorCarriesTheNameOfTheElement();
    void leadingPartsTakeTheStretchOfTheLine();
    void expandingTableStretchesTheColumnBehindTheGrid();
    void elementAfterATableStandsBelowItsButtons();
    void lubricantElementsStandBelowEachOther();
    void endsWithButtonLooksAtTheLastItem();
};

void tst_zelQtColumnLayoutLists::materialElement_data()
{
    QTest::addColumn<QString>("parts");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("two lines") << "label1 label2 combo1 button1 combo2 button2"
                               << QStringList({"0,0 [label1/label2]", "0,2 [combo1/combo2]",
                                               "0,5 [button1/button2]"});
    QTest::newRow("two lines without the rest")
        << "label2 combo1 button1"
        << QStringList({"0,0 [label2]", "0,2 [combo1]", "0,5 [button1]"});
    QTest::newRow("one line with the type")
        << "label1 combo1 button1 combo2 button2"
        << QStringList({"0,0 label1", "0,2 combo1", "0,3 button1", "0,4 combo2", "0,5 button2"});
    QTest::newRow("one line without the type")
        << "label1 combo2 button2" << QStringList({"0,0 label1", "0,2 combo2", "0,5 button2"});
    QTest::newRow("type without its button is left out")
        << "label1 label2 combo1 combo2" << QStringList({"0,0 label1", "0,2 combo2"});
    QTest::newRow("button of a type that is missing is left out")
        << "label1 label2 button1 combo2" << QStringList({"0,0 label1", "0,2 combo2"});
    QTest::newRow("type alone") << "combo1 button1" << QStringList({"0,2 combo1", "0,3 button1"});
    QTest::newRow("nothing") << "" << QStringList();
}

void tst_zelQtColumnLayoutLists::materialElement()
{
    QFETCH(QString, parts);
    const QStringList recipe = parts.split(' ');
    Mask mask;
    ZelUIMatElement element;
    mask.make<Label>(recipe, "label1", element.mLabel1);
    mask.make<Label>(recipe, "label2", element.mLabel2);
    mask.make<Combo>(recipe, "combo1", element.mCombo1);
    mask.make<Button>(recipe, "button1", element.mButton1);
    mask.make<Combo>(recipe, "combo2", element.mCombo2);
    mask.make<Button>(recipe, "button2", element.mButton2);
    mask.mColumn->addMatElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLists::oneLineMaterialLabelKeepsItsNaturalWidth()
{
    Mask mask;
    ZelUIMatElement element;
    auto *label = mask.mParts.make<Label>("label1");
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    element.mLabel1 = label;
    mask.mColumn->addMatElement(&element);
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_zelQtColumnLayoutLists::lubricantElement_data()
{
    QTest::addColumn<QString>("parts");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("all") << "label combo1 button1 combo2 button2 button3"
                         << QStringList({"0,0 label", "0,2 combo1", "0,3 button1", "0,4 combo2",
                                         "0,5 [button2 button3]"});
    QTest::newRow("without the first list")
        << "label button1 combo2 button2"
        << QStringList({"0,0 label", "0,2 combo2", "0,5 [button2]"});
    QTest::newRow("first list without its button")
        << "combo1 combo2 button3" << QStringList({"0,2 combo1", "0,4 combo2", "0,5 [button3]"});
    QTest::newRow("empty line of buttons")
        << "label combo2" << QStringList({"0,0 label", "0,2 combo2", "0,5 []"});
}

void tst_zelQtColumnLayoutLists::lubricantElement()
{
    QFETCH(QString, parts);
    const QStringList recipe = parts.split(' ');
    Mask mask;
    ZelUILubElement element;
    mask.make<Label>(recipe, "label", element.mLabel);
    mask.make<Combo>(recipe, "combo1", element.mCombo1);
    mask.make<Button>(recipe, "button1", element.mButton1);
    mask.make<Combo>(recipe, "combo2", element.mCombo2);
    mask.make<Button>(recipe, "button2", element.mButton2);
    mask.make<Button>(recipe, "button3", element.mButton3);
    mask.mColumn->addLubElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLists::lubricantLabelKeepsItsNaturalWidth()
{
    Mask mask;
    ZelUILubElement element;
    auto *label = mask.mParts.make<Label>("label");
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    element.mLabel = label;
    mask.mColumn->addLubElement(&element);
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_zelQtColumnLayoutLists::listWithNumber_data()
{
    QTest::addColumn<QString>("parts");
    QTest::addColumn<bool>("advanced");
    QTest::addColumn<QStringList>("grid");
    QTest::newRow("plain") << "label1 combo label2 spin" << false
                           << QStringList({"0,0 label1", "0,2 [combo label2 spin]"});
    QTest::newRow("plain without first label")
        << "combo label2 spin" << false << QStringList("0,0 1x3 [combo label2 spin]");
    QTest::newRow("advanced") << "label1 combo label2 spin" << true
                              << QStringList({"0,0 label1", "0,2 combo", "0,5 [label2 spin]"});
    QTest::newRow("advanced without first label")
        << "combo label2 spin" << true << QStringList({"0,2 combo", "0,5 [label2 spin]"});
    QTest::newRow("without list") << "label1 label2 spin" << false << QStringList("0,0 label1");
    QTest::newRow("without second label")
        << "label1 combo spin" << false << QStringList("0,0 label1");
    QTest::newRow("without number") << "label1 combo label2" << true << QStringList("0,0 label1");
}

void tst_zelQtColumnLayoutLists::listWithNumber()
{
    QFETCH(QString, parts);
    QFETCH(bool, advanced);
    const QStringList recipe = parts.split(' ');
    Mask mask;
    ZelUILSElement element;
    element.mAdvancedLayout = advanced;
    mask.make<Label>(recipe, "label1", element.mLabel1);
    mask.make<Combo>(recipe, "combo", element.mCombo);
    mask.make<Label>(recipe, "label2", element.mLabel2);
    mask.make<SpinBox>(recipe, "spin", element.mSpinBox);
    mask.mColumn->addLSElement(&element);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLists::spinBoxWidthComesFromItsHeightAsMeant()
{
    Mask mask;
    ZelUILSElement element;
    auto *label = mask.mParts.make<Label>("label2");
    auto *spinBox = mask.mParts.make<SpinBox>("spin");
    spinBox->QSpinBox::setRange(0, 1000000); // a wide hint must not count
    element.mCombo = mask.mParts.make<Combo>("combo");
    element.mLabel2 = label;
    element.mSpinBox = spinBox;

    mask.mColumn->addLSElement(&element);

    const int width = spinBox->sizeHint().height() + 6 * spinBox->fontMetrics().averageCharWidth();
    QCOMPARE(spinBox->minimumWidth(), width);
    QCOMPARE(spinBox->maximumWidth(), width);
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_zelQtColumnLayoutLists::tableButtons_data()
{
    QTest::addColumn<QString>("leading");
    QTest::addColumn<QString>("lists"); // one letter for each button, a list by its digit
    QTest::addColumn<QStringList>("grid");
    const QString table = "0,0 1x6 table";
    QTest::newRow("no button: no row below") << ""
                                             << "" << QStringList(table);
    QTest::newRow("leading button alone: no separator")
        << "button"
        << "" << QStringList({table, "1,0 1x6 [button *] right"});
    QTest::newRow("leading button and flag")
        << "button flag"
        << "" << QStringList({table, "1,0 1x6 [button flag *] right"});
    QTest::newRow("leading flag needs the leading button, as meant") << "flag"
                                                                     << "" << QStringList(table);
    QTest::newRow("one list") << ""
                              << "1a 1b" << QStringList({table, "1,0 1x6 [1a 1b] right"});
    QTest::newRow("two lists: one separator")
        << ""
        << "1a 2a 2b" << QStringList({table, "1,0 1x6 [1a load 2a 2b] right"});
    QTest::newRow("empty lists between them: still one separator")
        << ""
        << "1a 8a" << QStringList({table, "1,0 1x6 [1a load 8a] right"});
    QTest::newRow("first list empty: none at the start")
        << ""
        << "3a 4a" << QStringList({table, "1,0 1x6 [3a load 4a] right"});
    QTest::newRow("no separator behind the leading button")
        << "button flag"
        << "2a 3a" << QStringList({table, "1,0 1x6 [button flag * 2a load 3a] right"});
    QTest::newRow("all lists") << ""
                               << "1a 2a 3a 4a 5a 6a 7a 8a"
                               << QStringList({table,
                                               "1,0 1x6 [1a load 2a load 3a load 4a load 5a "
                                               "load 6a load 7a load 8a] right"});
}

void tst_zelQtColumnLayoutLists::tableButtons()
{
    QFETCH(QString, leading);
    QFETCH(QString, lists);
    Mask mask;
    ZelUITableElement element;
    element.setModelName(L"load");
    element.mTable = mask.mParts.make<Table>("table");
    mask.make<Button>(leading.split(' '), "button", element.mLeadingButton);
    mask.make<Flag>(leading.split(' '), "flag", element.mLeadingFlag);
    for (const QString &name : lists.split(' ', Qt::SkipEmptyParts)) {
        const auto list = static_cast<size_t>(name.at(0).digitValue() - 1);
        element.mButtonLists.at(list).push_back(mask.mParts.make<Button>(name));
    }
    mask.mColumn->addTableElement(&element, false, 6);
    QTEST(mask.grid(), "grid");
}

void tst_zelQtColumnLayoutLists::tableSpansWhatTheModelSays()
{
    Mask mask;
    ZelUITableElement element;
    element.mTable = mask.mParts.make<Table>("table");
    element.mButtonLists[0].push_back(mask.mParts.make<Button>("button"));
    mask.mColumn->addTableElement(&element, false, 7);
    QCOMPARE(mask.grid(), QStringList({"0,0 1x7 table", "1,0 1x7 [button] right"}));
    QCOMPARE(mask.mColumn->columnStretch(6), 0);
}

void tst_zelQtColumnLayoutLists::separatorCarriesTheNameOfTheElement()
{
    Mask mask;
    ZelUITableElement element;
    element.setModelName(L"load");
    element.mButtonLists[0].push_back(mask.mParts.make<Button>("first"));
    element.mButtonLists[1].push_back(mask.mParts.make<Button>("second"));
    mask.mColumn->addTableElement(&element, false, 6);
    const auto lines = mask.mWindow.findChildren<ZelQtLayoutLine *>();
    QCOMPARE(lines.count(), 1);
    QCOMPARE(lines.first()->objectName(), QString("load"));
}

void tst_zelQtColumnLayoutLists::leadingPartsTakeTheStretchOfTheLine()
{
    Mask mask;
    ZelUITableElement element;
    element.mLeadingButton = mask.mParts.make<Button>("button");
    element.mLeadingFlag = mask.mParts.make<Flag>("flag");
    element.mButtonLists[0].push_back(mask.mParts.make<Button>("first"));
    mask.mColumn->addTableElement(&element, false, 6);

    auto *line = qobject_cast<QHBoxLayout *>(mask.mColumn->itemAt(0)->layout());
    QVERIFY(line);
    QCOMPARE(line->count(), 4);
    QCOMPARE(line->stretch(0), 1);
    QCOMPARE(line->stretch(1), 1);
    QSpacerItem *spacer = line->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(line->stretch(3), 0);
}

void tst_zelQtColumnLayoutLists::expandingTableStretchesTheColumnBehindTheGrid()
{
    Mask mask;
    ZelUITableElement element;
    element.mTable = mask.mParts.make<Table>("table");
    mask.mColumn->addTableElement(&element, true, 6);
    QCOMPARE(mask.mColumn->columnStretch(6), 10);
}

void tst_zelQtColumnLayoutLists::elementAfterATableStandsBelowItsButtons()
{
    Mask mask;
    ZelUITableElement table;
    table.mTable = mask.mParts.make<Table>("table");
    table.mButtonLists[0].push_back(mask.mParts.make<Button>("button"));
    ZelUIMatElement material;
    material.mCombo2 = mask.mParts.make<Combo>("combo2");

    mask.mColumn->addTableElement(&table, false, 6);
    mask.mColumn->addMatElement(&material);

    QCOMPARE(mask.grid(), QStringList({"0,0 1x6 table", "1,0 1x6 [button] right", "2,2 combo2"}));
}

void tst_zelQtColumnLayoutLists::lubricantElementsStandBelowEachOther()
{
    Mask mask;
    ZelUILubElement elements[2];
    for (ZelUILubElement &element : elements) {
        element.mCombo2 = mask.mParts.make<Combo>("combo2");
        mask.mColumn->addLubElement(&element);
    }
    QCOMPARE(mask.grid(), QStringList({"0,2 combo2", "0,5 []", "1,2 combo2", "1,5 []"}));
}

void tst_zelQtColumnLayoutLists::endsWithButtonLooksAtTheLastItem()
{
    struct Column : ZelQtColumnLayout
    {
        using ZelQtColumnLayout::endsWithButton;
    };
    PartOwner parts;
    QHBoxLayout line;
    QVERIFY(!Column::endsWithButton(nullptr));
    QVERIFY(!Column::endsWithButton(&line));
    line.addWidget(parts.make<Button>("button"));
    QVERIFY(Column::endsWithButton(&line));
    line.addWidget(parts.make<Flag>("flag"));
    QVERIFY(!Column::endsWithButton(&line));
    line.addWidget(parts.make<Button>("second"));
    line.addStretch();
    QVERIFY(!Column::endsWithButton(&line));
}

QTEST_MAIN(tst_zelQtColumnLayoutLists)
#include "tst_zelQtColumnLayoutLists.moc"
