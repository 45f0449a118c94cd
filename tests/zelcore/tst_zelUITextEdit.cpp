#include "mask.h"
#include "zelUITextEdit.h"

#include <QtTest>

class tst_zelUITextEdit : public QObject
{
    Q_OBJECT
private slots:
    void textGoesThereAndBack();
    void untouchedTextIsNotWritten();
    void disabledTextIsNotWritten();
    void placeholderComesFromTheVariable();
    void functionYieldsTheText();
    void userInput();
};

void tst_zelUITextEdit::textGoesThereAndBack()
{
    Meta meta;
    auto *note = meta.add<ZelUIVarString>(L"note");
    meta.setText(*note, 2, L"Welle", ZelOrigin::Load);
    AttrMap attributes;
    ZelUITextEdit edit;
    edit.setup(note, attributes, 0);
    edit.setData(&meta, 2);
    QCOMPARE(toText(edit.mText), QString("Welle"));
    edit.mText = L"Nabe";
    edit.getData(&meta, 2);
    QCOMPARE(toText(meta.text(*note, 2)), QString("Nabe"));
    edit.setData(nullptr, 2);
    QCOMPARE(toText(edit.mText), QString("Nabe"));
}

void tst_zelUITextEdit::untouchedTextIsNotWritten()
{
    Meta meta;
    auto *note = meta.add<ZelUIVarString>(L"note");
    AttrMap attributes;
    ZelUITextEdit edit;
    edit.setup(note, attributes, 0);
    edit.setData(&meta, 0);
    meta.setText(*note, 0, L"elsewhere", ZelOrigin::User);
    edit.getData(&meta, 0);
    QCOMPARE(toText(meta.text(*note, 0)), QString("elsewhere"));
}

void tst_zelUITextEdit::disabledTextIsNotWritten()
{
    Meta meta;
    auto *note = meta.add<ZelUIVarString>(L"note");
    meta.setText(*note, 0, L"kept", ZelOrigin::Load);
    AttrMap attributes;
    ZelUITextEdit edit;
    edit.setup(note, attributes, 0);
    edit.setData(&meta, 0);
    edit.mEnabled = false;
    edit.mText = L"";
    edit.getData(&meta, 0);
    QCOMPARE(toText(meta.text(*note, 0)), QString("kept"));
    QVERIFY(edit.getRenderedData().empty());
}

void tst_zelUITextEdit::placeholderComesFromTheVariable()
{
    ZelUIVarString note(L"note");
    note.mPlaceholder.setText(L"Zeichnungsnummer");
    AttrMap attributes;
    ZelUITextEdit edit;
    QVERIFY(edit.placeholder().empty());
    edit.setup(&note, attributes, 0);
    QCOMPARE(toText(edit.placeholder()), QString("Zeichnungsnummer"));
}

void tst_zelUITextEdit::functionYieldsTheText()
{
    Meta meta;
    auto *title = meta.add<ZelUIVarFuncText>(L"title");
    title->mFunction = L"Title";
    AttrMap attributes;
    ZelUITextEdit edit;
    edit.setup(title, attributes, 0);
    edit.mText = L"before";
    edit.setData(&meta, 3);
    QVERIFY(edit.mText.empty());
    meta.setFunction(L"Title", [](const zelWString &argument, zelWString &result) {
        result = L"Rad " + std::wstring(argument);
        return true;
    });
    edit.setData(&meta, 3);
    QCOMPARE(toText(edit.mText), QString("Rad 3"));
    edit.updateState(&meta, 3);
    QVERIFY(edit.mReadOnly);
    bool changed = true;
    QVERIFY(!edit.setUserInput(&meta, 3, L"x", changed));
}

void tst_zelUITextEdit::userInput()
{
    Meta meta;
    auto *note = meta.add<ZelUIVarString>(L"note");
    AttrMap attributes;
    ZelUITextEdit edit;
    edit.setup(note, attributes, 0);
    edit.setData(&meta, 0);
    bool changed = false;
    QVERIFY(edit.setUserInput(&meta, 0, L"neu", changed));
    QVERIFY(changed);
    QVERIFY(edit.setUserInput(&meta, 0, L"neu", changed));
    QVERIFY(!changed);
    QCOMPARE(toText(meta.text(*note, 0)), QString("neu"));
    QCOMPARE(toText(edit.getRenderedData()), QString("neu"));
}

QTEST_GUILESS_MAIN(tst_zelUITextEdit)
#include "tst_zelUITextEdit.moc"
