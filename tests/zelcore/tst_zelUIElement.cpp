#include "mask.h"
#include "zelUIButtonBox.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIFileElement.h"
#include "zelUIFlag.h"
#include "zelUIFlagElement.h"
#include "zelUILSElement.h"
#include "zelUILubElement.h"
#include "zelUIMatElement.h"
#include "zelUINotepad.h"
#include "zelUINotepadElement.h"
#include "zelUIPushButton.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUITable.h"
#include "zelUITableElement.h"
#include "zelUITextEdit.h"
#include "zelUITextElement.h"
#include "zelUITextLabel.h"

#include <QtTest>

namespace {

// Adds the element to a column and tells how many parts its walks visit, first with all parts and
// then after they died.
template <class Element, class Add> QVector<int> visited(Element &element, Add add)
{
    QVector<int> counts;
    std::vector<std::unique_ptr<ZelUIItem>> parts;
    const auto make = [&parts](auto *&part) {
        auto made =
            std::make_unique<std::remove_pointer_t<std::remove_reference_t<decltype(part)>>>();
        part = made.get();
        parts.push_back(std::move(made));
    };
    ZelUIColumn column;
    add(column, element, make);
    counts << static_cast<int>(element.modelItems().size());
    parts.clear();
    counts << static_cast<int>(element.modelItems().size());
    return counts;
}

} // namespace

class tst_zelUIElement : public QObject
{
    Q_OBJECT
private slots:
    void partsPutInByHandAreWalkedAndForgotten();
    void tableElementHandsTheUnitSystemOn();
    void flagElementHandsItsStateToTheBox();
    void tellsItself();
};

void tst_zelUIElement::partsPutInByHandAreWalkedAndForgotten()
{
    ZelUIMatElement mat;
    QCOMPARE(visited(mat,
                     [](ZelUIColumn &column, ZelUIMatElement &e, auto make) {
                         make(e.mLabel1);
                         make(e.mLabel2);
                         make(e.mCombo1);
                         make(e.mButton1);
                         make(e.mCombo2);
                         make(e.mButton2);
                         column.addMatElement(&e);
                     }),
             QVector<int>({6, 0}));
    QVERIFY(!mat.mLabel1 && !mat.mLabel2 && !mat.mCombo1 && !mat.mButton1 && !mat.mCombo2
            && !mat.mButton2);

    ZelUILubElement lub;
    QCOMPARE(visited(lub,
                     [](ZelUIColumn &column, ZelUILubElement &e, auto make) {
                         make(e.mLabel);
                         make(e.mCombo1);
                         make(e.mButton1);
                         make(e.mCombo2);
                         make(e.mButton2);
                         make(e.mButton3);
                         column.addLubElement(&e);
                     }),
             QVector<int>({6, 0}));
    QVERIFY(!lub.mLabel && !lub.mCombo1 && !lub.mButton1 && !lub.mCombo2 && !lub.mButton2
            && !lub.mButton3);

    ZelUILSElement ls;
    QCOMPARE(visited(ls,
                     [](ZelUIColumn &column, ZelUILSElement &e, auto make) {
                         make(e.mLabel1);
                         make(e.mCombo);
                         make(e.mLabel2);
                         make(e.mSpinBox);
                         column.addLSElement(&e);
                     }),
             QVector<int>({4, 0}));
    QVERIFY(!ls.mLabel1 && !ls.mCombo && !ls.mLabel2 && !ls.mSpinBox);
    QVERIFY(!ls.hasAdvancedLayout());

    ZelUIFileElement file;
    QCOMPARE(visited(file,
                     [](ZelUIColumn &column, ZelUIFileElement &e, auto make) {
                         ZelUITextEdit *edit = nullptr;
                         ZelUIPushButton *button = nullptr;
                         make(edit);
                         make(button);
                         e.mInputs = {edit};
                         e.mFileButtons = {button};
                         column.addFileElement(&e);
                     }),
             QVector<int>({2, 0}));
    QVERIFY(file.mInputs.empty() && file.mFileButtons.empty());

    ZelUITableElement table;
    QCOMPARE(visited(table,
                     [](ZelUIColumn &column, ZelUITableElement &e, auto make) {
                         make(e.mTable);
                         make(e.mLeadingButton);
                         make(e.mLeadingFlag);
                         for (auto &list : e.mButtonLists) {
                             list.resize(2);
                             make(list[0]);
                             make(list[1]);
                         }
                         column.addTableElement(&e, true, 6);
                     }),
             QVector<int>({19, 0}));
    QVERIFY(!table.mTable && !table.mLeadingButton && !table.mLeadingFlag);
    for (const auto &list : table.mButtonLists)
        QVERIFY(list.empty());

    ZelUITextElement text;
    QCOMPARE(visited(text,
                     [](ZelUIColumn &column, ZelUITextElement &e, auto make) {
                         make(e.mLabel);
                         e.mValueLabels.resize(2);
                         make(e.mValueLabels[0]);
                         make(e.mValueLabels[1]);
                         column.addTextElement(&e);
                     }),
             QVector<int>({3, 0}));
    QVERIFY(!text.mLabel && text.mValueLabels.empty());

    ZelUIFlagElement flag;
    QCOMPARE(visited(flag,
                     [](ZelUIColumn &column, ZelUIFlagElement &e, auto make) {
                         make(e.mFlag);
                         column.addFlagElement(&e);
                     }),
             QVector<int>({1, 0}));
    QVERIFY(!flag.mFlag);

    ZelUINotepadElement notes;
    QCOMPARE(visited(notes,
                     [](ZelUIColumn &column, ZelUINotepadElement &e, auto make) {
                         make(e.mNotepad);
                         column.addNotepadElement(&e, false, 6);
                     }),
             QVector<int>({1, 0}));
    QVERIFY(!notes.mNotepad);

    ZelUIButtonBox button;
    QCOMPARE(visited(button,
                     [](ZelUIColumn &column, ZelUIButtonBox &e, auto make) {
                         make(e.mButton);
                         column.addButtonElement(&e);
                     }),
             QVector<int>({1, 0}));
    QVERIFY(!button.getSingleButton());
    QVERIFY(button.getAlignment() == ZelUIAlignment::Left);
}

void tst_zelUIElement::tableElementHandsTheUnitSystemOn()
{
    struct Table : ZelUITable
    {
        void updateUnitSystem(bool keepDefault) override { mCalls << keepDefault; }
        QVector<bool> mCalls;
    };
    Table table;
    ZelUITableElement element;
    element.updateUnitSystem(true);
    element.mTable = &table;
    element.modelMakeParts();
    element.updateUnitSystem(true);
    element.resetUnits(false);
    QCOMPARE(table.mCalls, QVector<bool>({true, false}));
}

void tst_zelUIElement::flagElementHandsItsStateToTheBox()
{
    Meta meta;
    auto *on = meta.add<ZelUIVarBool>(L"on");
    on->mVisibleIf = condition(L"on", meta);
    ZelUIFlagElement element;
    ZelUIStdButtonBox box;
    element.mIconBox = &box;
    element.modelAdoptParts();
    AttrMap attributes;
    element.setup(on, attributes);
    element.updateState(&meta, 0);
    QVERIFY(!box.mVisible);
    meta.setBoolean(*on, 0, true, ZelOrigin::User);
    element.updateState(&meta, 0);
    QVERIFY(box.mVisible);
}

void tst_zelUIElement::tellsItself()
{
    ZelUIElement element;
    element.setModelName(L"line");
    element.mVisible = false;
    const std::unique_ptr<ZelUIElementStruct> told(element.toElementStruct());
    QVERIFY(told->mName == L"line");
    QVERIFY((told->mState == ZelUIState{true, false, false}));
}

QTEST_GUILESS_MAIN(tst_zelUIElement)
#include "tst_zelUIElement.moc"
