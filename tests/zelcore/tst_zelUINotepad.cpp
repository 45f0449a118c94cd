#include "mask.h"
#include "zelUINotepad.h"

#include <QtTest>

class tst_zelUINotepad : public QObject
{
    Q_OBJECT
private slots:
    void linesGoThereAndBack();
    void untouchedNotesAreNotWritten();
    void readOnlyNotesAreNotWritten();
    void resultIsReadOnly();
};

void tst_zelUINotepad::linesGoThereAndBack()
{
    Meta meta;
    auto *notes = meta.add<ZelUIVarMultilineString>(L"notes");
    meta.setText(*notes, 0, L"eins\nzwei", ZelOrigin::Load);
    AttrMap attributes;
    ZelUINotepad notepad;
    notepad.setup(notes, attributes);
    notepad.setData(&meta, 0);
    QCOMPARE(toText(notepad.mText), QString("eins\nzwei"));
    notepad.mText = L"drei";
    notepad.getData(&meta, 0);
    QCOMPARE(toText(meta.text(*notes, 0)), QString("drei"));
}

void tst_zelUINotepad::untouchedNotesAreNotWritten()
{
    Meta meta;
    auto *notes = meta.add<ZelUIVarMultilineString>(L"notes");
    AttrMap attributes;
    ZelUINotepad notepad;
    notepad.setup(notes, attributes);
    notepad.setData(&meta, 0);
    meta.setText(*notes, 0, L"elsewhere", ZelOrigin::User);
    notepad.getData(&meta, 0);
    QCOMPARE(toText(meta.text(*notes, 0)), QString("elsewhere"));
    notepad.setData(nullptr, 0);
    QCOMPARE(toText(notepad.mText), QString());
}

void tst_zelUINotepad::readOnlyNotesAreNotWritten()
{
    Meta meta;
    auto *notes = meta.add<ZelUIVarMultilineString>(L"notes");
    AttrMap attributes;
    ZelUINotepad notepad;
    notepad.setup(notes, attributes);
    notepad.setData(&meta, 0);
    notepad.mReadOnly = true;
    notepad.mText = L"x";
    notepad.getData(&meta, 0);
    QVERIFY(meta.text(*notes, 0).empty());
}

void tst_zelUINotepad::resultIsReadOnly()
{
    Meta meta;
    auto *notes = meta.add<ZelUIVarMultilineString>(L"notes");
    notes->mResult = true;
    AttrMap attributes;
    ZelUINotepad notepad;
    notepad.setup(notes, attributes);
    notepad.updateState(&meta, 0);
    QVERIFY(notepad.mReadOnly);
}

QTEST_GUILESS_MAIN(tst_zelUINotepad)
#include "tst_zelUINotepad.moc"
