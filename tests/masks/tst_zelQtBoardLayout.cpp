#include "zelQtBoardLayout.h"

#include "maskParts.h"
#include "zelDomNode.h"
#include "zelQtColumnLayout.h"

#include <QtTest>

namespace {

/// A board in a window, with named columns.
struct Mask
{
    explicit Mask(int columns)
    {
        for (int i = 1; i <= columns; ++i) {
            auto *column = new ZelQtColumnLayout;
            column->setObjectName(QString("column%1").arg(i));
            mBoard->mColumns.push_back(column);
        }
        mBoard->modelAdoptColumns();
    }

    QWidget mWindow;
    ZelQtBoardLayout *mBoard = new ZelQtBoardLayout(&mWindow);
};

} // namespace

class tst_zelQtBoardLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsStandSideBySide_data();
    void columnsStandSideBySide();
    void spacersHaveTheSharedSizes();
    void columnsHaveNoStretch();
    void flagComesFromTheNode_data();
    void flagComesFromTheNode();
    void columnsGrowToTheLeftOnly();
};

void tst_zelQtBoardLayout::columnsStandSideBySide_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("rightSpacer");
    QTest::addColumn<QString>("content");
    QTest::newRow("none") << 0 << false << "[]";
    QTest::newRow("none, with right spacer") << 0 << true << "[]";
    QTest::newRow("one") << 1 << false << "[column1]";
    QTest::newRow("one, with right spacer") << 1 << true << "[column1 *]";
    QTest::newRow("three") << 3 << false << "[column1 * column2 * column3]";
    QTest::newRow("three, with right spacer") << 3 << true << "[column1 * column2 * column3 *]";
}

void tst_zelQtBoardLayout::columnsStandSideBySide()
{
    QFETCH(int, columns);
    QFETCH(bool, rightSpacer);
    Mask mask(columns);
    mask.mBoard->makeLayout(rightSpacer);
    QTEST(describeBox(mask.mBoard), "content");
}

void tst_zelQtBoardLayout::spacersHaveTheSharedSizes()
{
    Mask mask(2);
    mask.mBoard->makeLayout(true);
    const QSpacerItem *middle = mask.mBoard->itemAt(1)->spacerItem();
    QCOMPARE(middle->sizeHint(), QSize(80, 0));
    QCOMPARE(middle->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(middle->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    const QSpacerItem *right = mask.mBoard->itemAt(3)->spacerItem();
    QCOMPARE(right->sizeHint(), QSize(0, 0));
    QCOMPARE(right->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(right->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_zelQtBoardLayout::columnsHaveNoStretch()
{
    Mask mask(2);
    mask.mBoard->makeLayout(true);
    for (int i = 0; i < mask.mBoard->count(); ++i)
        QCOMPARE(mask.mBoard->stretch(i), 0);
}

void tst_zelQtBoardLayout::flagComesFromTheNode_data()
{
    QTest::addColumn<QString>("pack");
    QTest::addColumn<QString>("content");
    QTest::newRow("pack") << "true"
                          << "[column1 *]";
    QTest::newRow("no pack") << "false"
                             << "[column1]";
}

void tst_zelQtBoardLayout::flagComesFromTheNode()
{
    QFETCH(QString, pack);
    Mask mask(1);
    ZelDomNode node(L"board");
    node.setAttribute(L"pack", pack.toStdWString());
    mask.mBoard->makeLayout(&node);
    QTEST(describeBox(mask.mBoard), "content");
}

// What the right spacer is for: the columns keep their natural width.
void tst_zelQtBoardLayout::columnsGrowToTheLeftOnly()
{
    Mask packed(1);
    Mask wide(1);
    QWidget *fields[2] = {};
    int i = 0;
    for (Mask *mask : {&packed, &wide}) {
        auto *field = new QWidget;
        field->setMinimumSize(40, 10);
        dynamic_cast<QGridLayout *>(mask->mBoard->mColumns.front())->addWidget(field, 0, 0);
        mask->mBoard->makeLayout(mask == &packed);
        mask->mWindow.resize(600, 100);
        mask->mWindow.show();
        fields[i++] = field;
    }
    QVERIFY(fields[0]->width() < fields[1]->width());
}

QTEST_MAIN(tst_zelQtBoardLayout)
#include "tst_zelQtBoardLayout.moc"
