#include "mask.h"
#include "zelUIImageElement.h"
#include "zelUIOutputElement.h"
#include "zelUITable.h"

#include <QtTest>

class tst_zelUIViewElement : public QObject
{
    Q_OBJECT
private slots:
    void expandsWhenTheNodeSaysSo();
    void pathOfAVariable();
    void pathOfAFunction();
    void pathOfAFile();
    void htmlOfAFunction();
    void tableWithoutCoreDoesNothing();
    void tableFillsThroughItsModel();
};

void tst_zelUIViewElement::expandsWhenTheNodeSaysSo()
{
    ZelDomNode node(L"output");
    ZelUIViewElement view;
    view.setup(&node);
    QVERIFY(!view.isExpanding());
    node.setAttribute(L"expand", L"true");
    view.setup(&node);
    QVERIFY(view.isExpanding());
}

void tst_zelUIViewElement::pathOfAVariable()
{
    Meta meta;
    auto *picture = meta.add<ZelUIVarImage>(L"picture");
    meta.setText(*picture, 0, L"a.png", ZelOrigin::Module);
    AttrMap attributes;
    ZelUIImageElement image;
    image.setup(picture, attributes);
    image.setData(&meta, 0);
    QCOMPARE(toText(image.mImagePath), QString("a.png"));
    image.setData(&meta, 1);
    QVERIFY(image.mImagePath.empty());
    image.mImagePath = L"kept";
    image.setData(nullptr, 0);
    QCOMPARE(toText(image.mImagePath), QString("kept"));
}

void tst_zelUIViewElement::pathOfAFunction()
{
    Meta meta;
    meta.setFunction(L"Picture", [](const zelWString &argument, zelWString &result) {
        result = L"p" + std::wstring(argument);
        return true;
    });
    AttrMap attributes{{L"function", L"Picture"}};
    ZelUIImageElement image;
    image.setup(static_cast<ZelUIVarImage *>(nullptr), attributes);
    image.setData(&meta, 7);
    QCOMPARE(toText(image.mImagePath), QString("p7"));
}

void tst_zelUIViewElement::pathOfAFile()
{
    Meta meta;
    AttrMap attributes{{L"file", L"b.png"}};
    ZelUIImageElement image;
    image.setup(static_cast<ZelUIVarImage *>(nullptr), attributes);
    image.setData(&meta, 0);
    QCOMPARE(toText(image.mImagePath), QString("b.png"));
}

void tst_zelUIViewElement::htmlOfAFunction()
{
    Meta meta;
    ZelDomNode node(L"output");
    node.setAttribute(L"name", L"page");
    node.setAttribute(L"function", L"Page");
    ZelUIOutputElement output;
    output.setup(&node);
    QCOMPARE(toText(output.getName()), QString("page"));
    output.setData(&meta, 0);
    QVERIFY(output.mHtml.empty());
    meta.setFunction(L"Page", [](const zelWString &, zelWString &result) {
        result = L"<p>a</p>";
        return true;
    });
    output.setData(&meta, 0);
    QCOMPARE(toText(output.mHtml), QString("<p>a</p>"));
}

void tst_zelUIViewElement::tableWithoutCoreDoesNothing()
{
    Meta meta;
    ZelUIVarTable variable(L"loads");
    AttrMap attributes;
    ZelUITable table;
    QCOMPARE(int(table.mTableType), int(ZelUITable::NoTable));
    QCOMPARE(table.mSelectedRow, -1);
    table.setup(&meta, &variable, attributes);
    QVERIFY(!table.addRow() && !table.deleteRows() && !table.resetRows());
    QVERIFY(!table.addColumn() && !table.deleteColumns() && !table.resetColumns());
    table.updateState(ZelUIState{false, true, true});
    const ZelUITableStruct told = table.toTableStruct();
    QVERIFY(told.mName == L"loads" && told.mSelectedRow == -1 && told.mState.mReadOnly);
}

void tst_zelUIViewElement::tableFillsThroughItsModel()
{
    struct Table : ZelUITable
    {
        void setItemModelData(Meta *, int64_t id) override { mIds << id; }
        QVector<qlonglong> mIds;
    };
    Meta meta;
    Table table;
    table.setData(&meta, 5);
    QCOMPARE(table.mIds, QVector<qlonglong>({5}));
}

QTEST_GUILESS_MAIN(tst_zelUIViewElement)
#include "tst_zelUIViewElement.moc"
