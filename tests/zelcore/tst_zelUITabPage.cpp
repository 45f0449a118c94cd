#include "mask.h"
#include "zelUIColumn.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIExternalItem.h"
#include "zelUIGroup.h"
#include "zelUIMultiVar.h"
#include "zelUIPushButton.h"
#include "zelUITabContainer.h"
#include "zelUITextLabel.h"
#include "zelUIValueEdit.h"

#include <QtTest>

namespace {

QStringList calls;

struct Board : ZelUIBoard
{
    using ZelUIBoard::makeLayout;
    void makeLayout(bool pack) override { calls << QString("board %1").arg(pack); }
};
struct Group : ZelUIGroup
{
    using ZelUIGroup::makeLayout;
    void makeLayout(bool pack) override { calls << QString("group %1").arg(pack); }
    void retranslate() override { calls << "group " + toText(getTitle()); }
};
struct Page : ZelUITabPage
{
    void makeLayout() override
    {
        ZelUITabPage::makeLayout();
        calls << "page " + toText(getTitle());
    }
    void retranslate() override
    {
        calls << "page " + toText(getTitle());
        ZelUITabPage::retranslate();
    }
};
struct Label : ZelUITextLabel
{
    void retranslate() override { calls << "label " + toText(getText()); }
};
struct Button : ZelUIPushButton
{
    using ZelUIPushButton::ZelUIPushButton;
    void retranslate() override { calls << "button " + toText(buttonText()) + toText(tooltip()); }
};

class Factory : public ZelUiPlainFactory
{
public:
    ZelUITabPage *makeTabPage() override { return make<Page>(); }
    ZelUIBoard *makeBoard() override { return make<Board>(); }
    ZelUIGroup *makeGroup() override { return make<Group>(); }
    ZelUITextLabel *makeTextLabel(ZelUIAlignment) override { return make<Label>(); }
    ZelUIPushButton *makeIconButton(ZelUIPushButtonType type) override
    {
        return make<Button>(type);
    }
    ZelUIPushButton *makePushButton() override { return make<Button>(); }
    ZelUIExternalItem *makeExternalItem(const zelWString &name) override
    {
        calls << "external " + toText(name);
        return ZelUiPlainFactory::makeExternalItem(name);
    }

private:
    template <class Object, class... Args> Object *make(Args... args)
    {
        auto object = std::make_unique<Object>(args...);
        Object *plain = object.get();
        mObjects.push_back(std::move(object));
        return plain;
    }
    std::vector<std::unique_ptr<ZelUIObject>> mObjects;
};

QString place(const ZelUILayoutItem &item)
{
    return QString("%1,%2 %3x%4")
        .arg(item.row())
        .arg(item.column())
        .arg(item.rowSpan())
        .arg(item.columnSpan());
}

} // namespace

class tst_zelUITabPage : public QObject
{
    Q_OBJECT
private slots:
    void init() { calls.clear(); }

    void itemsStandWhereTheDescriptionSays();
    void itemsWithoutRowGoBelow();
    void framesAreGroups();
    void headColumnsAndFoot();
    void footAloneIsAColumn();
    void makeLayoutReachesAllBoardsAndPages();
    void makeLayoutOfANode();
    void retranslateVisitsEachOnce();
    void retranslateReachesIconButtonsToo();
    void dataAndStateGoThroughThePages();
    void conditionsOfPagesAndBoards();
    void conditionOfTheTabsIsCompiled();
    void externalFormsByClass();
    void buttonsOfADialog();
    void boardForgetsItsColumns();
    void containersForgetTheirParts();
    void sameItemIsTakenOnce();
    void tellThemselves();
};

void tst_zelUITabPage::itemsStandWhereTheDescriptionSays()
{
    Mask mask;
    mask.build("<page name='input' text='Eingabe' help='1201'>"
               "<board row='2' column='1' rowspan='2' colspan='3'/>"
               "<tabs row='5'/><external row='6' class='A'/></page>");
    QCOMPARE(toText(mask.mPage->getTitle()), QString("Eingabe"));
    QCOMPARE(toText(mask.mPage->getName()), QString("input"));
    QCOMPARE(mask.mPage->getAuthorItCode(), 1201);
    QStringList places;
    for (const ZelUILayoutItem *item : mask.mPage->mItems)
        places << place(*item);
    QCOMPARE(places, QStringList({"2,1 2x3", "5,0 1x1", "6,0 1x1"}));
    QVERIFY(dynamic_cast<ZelUIBoard *>(mask.mPage->mItems[0]));
    QVERIFY(dynamic_cast<ZelUITabContainer *>(mask.mPage->mItems[1]));
    QVERIFY(dynamic_cast<ZelUIExternalItem *>(mask.mPage->mItems[2]));
}

void tst_zelUITabPage::itemsWithoutRowGoBelow()
{
    Mask mask;
    mask.build("<page><board/><board rowspan='2' column='1'/><board/><board row='1'/>"
               "<board/></page>");
    QStringList places;
    for (const ZelUILayoutItem *item : mask.mPage->mItems)
        places << place(*item);
    QCOMPARE(places, QStringList({"0,0 1x1", "1,1 2x1", "3,0 1x1", "1,0 1x1", "4,0 1x1"}));
}

void tst_zelUITabPage::framesAreGroups()
{
    Mask mask;
    mask.build("<page><board frame='true' flat='true' text='Lager'/><board text='x'/></page>");
    const auto *group = dynamic_cast<ZelUIGroup *>(mask.mPage->mItems[0]);
    QVERIFY(group);
    QVERIFY(group->mFlat);
    QCOMPARE(toText(group->getTitle()), QString("Lager"));
    QVERIFY(!dynamic_cast<ZelUIGroup *>(mask.mPage->mItems[1]));
}

void tst_zelUITabPage::headColumnsAndFoot()
{
    Mask mask;
    mask.build("<page><board pack='true'><column name='a'/><foot name='f'/><column name='b'/>"
               "<head name='h'/></board></page>");
    const auto *board = dynamic_cast<ZelUIBoard *>(mask.mPage->mItems[0]);
    QVERIFY(board && board->modelPack());
    QCOMPARE(toText(board->mHead->getName()), QString("h"));
    QCOMPARE(toText(board->mFoot->getName()), QString("f"));
    QCOMPARE(board->mColumns.size(), size_t(2));
    QCOMPARE(toText(board->mColumns[1]->getName()), QString("b"));
    QCOMPARE(board->modelContainers().size(), size_t(4));
}

void tst_zelUITabPage::footAloneIsAColumn()
{
    Mask mask;
    mask.build("<page><board><foot name='f'/></board></page>");
    const auto *board = dynamic_cast<ZelUIBoard *>(mask.mPage->mItems[0]);
    QVERIFY(!board->mFoot);
    QCOMPARE(board->mColumns.size(), size_t(1));
}

void tst_zelUITabPage::makeLayoutReachesAllBoardsAndPages()
{
    Mask mask;
    Factory factory;
    mask.mDocument = ZelDomDocument::fromText(
        "<page text='top'><board/><tabs><page text='a'><board pack='true'/></page>"
        "<page text='b'/></tabs><board frame='true' pack='true'/></page>",
        "", mask.mFaults);
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    ZelUITabPage *page = factory.makeTabPage();
    page->setup(mask.mDocument.root());
    page->makeLayout();
    QCOMPARE(calls, QStringList({"board 0", "board 1", "page a", "page b", "group 1", "page top"}));
}

void tst_zelUITabPage::makeLayoutOfANode()
{
    ZelDomNode node(L"board");
    node.setAttribute(L"pack", L"true");
    Board board;
    board.makeLayout(&node);
    QVERIFY(board.modelPack());
    board.makeLayout(static_cast<const ZelDomNode *>(nullptr));
    QCOMPARE(calls, QStringList({"board 1", "board 1"}));
}

void tst_zelUITabPage::retranslateVisitsEachOnce()
{
    Mask mask;
    Factory factory;
    mask.mDocument = ZelDomDocument::fromText(
        "<page text='top'><board frame='true' text='g'><column><text>eins</text>"
        "<text>zwei</text></column></board>"
        "<tabs><page text='a'><board><column><text>drei</text></column></board></page></tabs>"
        "</page>",
        "", mask.mFaults);
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    ZelUITabPage *page = factory.makeTabPage();
    page->setup(mask.mDocument.root());
    page->retranslate();
    QCOMPARE(
        calls,
        QStringList({"page top", "group g", "label eins", "label zwei", "page a", "label drei"}));
}

// Icon buttons without texts of their own are no exception: the model knows the tips of their kind.
void tst_zelUITabPage::retranslateReachesIconButtonsToo()
{
    Mask mask;
    Factory factory;
    mask.mMeta.add<ZelUIMultiVar>(L"d")->mText.setText(L"d");
    mask.mMeta.add<ZelUIVarTextButton>(L"go")->mText.setText(L"Los");
    mask.mDocument = ZelDomDocument::fromText(
        "<page><board><column><var name='d' buttons='size'/><var name='go'/></column></board>"
        "</page>",
        "", mask.mFaults);
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    ZelUITabPage *page = factory.makeTabPage();
    page->setup(mask.mDocument.root());
    page->retranslate();
    QCOMPARE(calls, QStringList({"page ", "label d", "button d auslegen", "button Los"}));
}

void tst_zelUITabPage::dataAndStateGoThroughThePages()
{
    Mask mask;
    auto *d = mask.mMeta.add<ZelUIMultiVar>(L"d");
    d->mVisibleIf = condition(L"d > 0", mask.mMeta);
    mask.build("<page><tabs><page><board><foot/><head><var name='d'/></head></board></page></tabs>"
               "</page>");
    auto *edit = mask.find<ZelUIValueEdit>(L"d");
    QVERIFY(edit);
    mask.refresh(4);
    QVERIFY(!edit->mVisible);
    mask.mMeta.setReal(*d, 4, 0, 2, ZelOrigin::Load);
    mask.refresh(4);
    QVERIFY(edit->mVisible);
    QCOMPARE(edit->mValue, 2.0);
    edit->mValue = 3;
    mask.mPage->getData(&mask.mMeta, 4);
    QCOMPARE(mask.mMeta.real(*d, 4), 3.0);
}

void tst_zelUITabPage::conditionsOfPagesAndBoards()
{
    Mask mask;
    auto *on = mask.mMeta.add<ZelUIVarBool>(L"on");
    mask.mMeta.add<ZelUIMultiVar>(L"d");
    mask.mMeta.add<ZelUIMultiVar>(L"e");
    mask.build("<page><board enabled='on'><column><var name='d'/></column></board>"
               "<board><column readonly='not on'><var name='e'/></column></board></page>");
    auto *d = mask.find<ZelUIValueEdit>(L"d");
    auto *e = mask.find<ZelUIValueEdit>(L"e");
    mask.refresh();
    QVERIFY(!d->mEnabled && !d->mReadOnly);
    QVERIFY(e->mEnabled && e->mReadOnly);
    mask.mMeta.setBoolean(*on, 0, true, ZelOrigin::User);
    mask.refresh();
    QVERIFY(d->mEnabled && !e->mReadOnly);
}

void tst_zelUITabPage::conditionOfTheTabsIsCompiled()
{
    Mask mask;
    mask.mMeta.add<ZelUIVarBool>(L"on");
    mask.build("<page><tabs visible='on'><page visible='nix'/></tabs></page>");
    mask.refresh();
    QVERIFY(!mask.mPage->mItems[0]->mVisible);
    QCOMPARE(mask.faultPlaces(),
             QStringList(QString("%1 at 1:41").arg(int(ZelFaultCode::BadCondition))));
}

void tst_zelUITabPage::externalFormsByClass()
{
    Mask mask;
    Factory factory;
    mask.mDocument = ZelDomDocument::fromText("<page><external class='CatalogueForm'/></page>", "",
                                              mask.mFaults);
    ZelUiBuild build(mask.mMeta, factory, mask.mFaults, "");
    ZelUITabPage *page = factory.makeTabPage();
    page->setup(mask.mDocument.root());
    QCOMPARE(calls, QStringList("external CatalogueForm"));
    QCOMPARE(page->mItems.size(), size_t(1));
}

void tst_zelUITabPage::buttonsOfADialog()
{
    Mask mask;
    mask.build("<page><board/><buttons><button text='Ok' role='accept'/>"
               "<button text='Nein' role='reject'/><button text='Zu' role='close'/>"
               "<button text='Tu'/></buttons></page>");
    ZelUIDialogButtonBox *box = mask.mPage->modelButtonBox();
    QVERIFY(box);
    QCOMPARE(mask.mPage->mItems.size(), size_t(1));
    QCOMPARE(box->modelItems().size(), size_t(4));
    box->updateCalcState(false);
    QVector<bool> enabled;
    for (const ZelUIItem *button : box->modelItems())
        enabled << button->mEnabled;
    QCOMPARE(enabled, QVector<bool>({false, true, true, true}));
    mask.refresh();
    QVERIFY(!box->modelItems()[0]->mEnabled);
    box->updateCalcState(true);
    QVERIFY(box->modelItems()[0]->mEnabled);
    {
        ZelUIPushButton button;
        QCOMPARE(box->addPushButton(&button, ZelUIDialogButtonBox::Accept), 4);
    }
    QCOMPARE(box->addPushButton(nullptr, ZelUIDialogButtonBox::Accept), -1);
    box->updateCalcState(false);
    QVERIFY(!box->modelItems()[0]->mEnabled);
}

void tst_zelUITabPage::boardForgetsItsColumns()
{
    ZelUIBoard board;
    {
        ZelUIColumn head;
        ZelUIColumn middle;
        ZelUIColumn foot;
        board.mHead = &head;
        board.mColumns = {&middle};
        board.mFoot = &foot;
        board.modelAdoptColumns();
        QCOMPARE(board.modelContainers().size(), size_t(3));
        ZelUITabPage view;
        ZelUIElement element;
        QVERIFY(!board.containsExpandingViews(false));
    }
    QVERIFY(!board.mHead && board.mColumns.empty() && !board.mFoot);
    QVERIFY(board.modelContainers().empty());
    QVERIFY(!board.containsExpandingViews(true));
}

void tst_zelUITabPage::containersForgetTheirParts()
{
    ZelUITabPage page;
    ZelUITabContainer tabs;
    page.addLayoutItem(&tabs);
    {
        ZelUIBoard board;
        ZelUITabPage inner;
        page.addLayoutItem(&board);
        tabs.addTab(&inner);
        QCOMPARE(page.mItems.size(), size_t(2));
        QCOMPARE(tabs.mPages.size(), size_t(1));
    }
    QCOMPARE(page.mItems.size(), size_t(1));
    QVERIFY(tabs.mPages.empty() && tabs.modelContainers().empty());
}

void tst_zelUITabPage::sameItemIsTakenOnce()
{
    ZelUITabPage page;
    ZelUIBoard board;
    page.addLayoutItem(&board);
    page.addLayoutItem(&board);
    page.addLayoutItem(nullptr);
    QCOMPARE(page.mItems.size(), size_t(1));
    QCOMPARE(page.modelContainers().size(), size_t(1));
}

void tst_zelUITabPage::tellThemselves()
{
    Mask mask;
    mask.build("<page name='p' text='Titel'><board name='b' row='3'/></page>");
    const std::unique_ptr<ZelUITabStruct> tab(mask.mPage->toTabStruct());
    QVERIFY(tab->mName == L"p" && tab->mTitle == L"Titel");
    const std::unique_ptr<ZelUILayoutStruct> layout(mask.mPage->toLayoutStruct());
    QVERIFY(layout->mName == L"p" && layout->mItemCount == 1);
    const std::unique_ptr<ZelUILayoutItemStruct> item(mask.mPage->mItems[0]->toLayoutItemStruct());
    QVERIFY(item->mName == L"b" && item->mRow == 3 && item->mColumnSpan == 1);
}

QTEST_GUILESS_MAIN(tst_zelUITabPage)
#include "tst_zelUITabPage.moc"
