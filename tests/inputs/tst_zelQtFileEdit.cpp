#include "zelQtFileEdit.h"

#include "fieldOnPage.h"
#include "zelQtCompleter.h"

#include <QAbstractItemView>
#include <QAction>
#include <QTemporaryDir>
#include <QtTest>

class tst_zelQtFileEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    // typing
    void forbiddenCharactersAreNotTyped_data();
    void forbiddenCharactersAreNotTyped();
    void otherCharactersAreTyped();
    void undoKeyWorksInThisFieldOnPurpose();
    void undoKeyDoesNotReachTheApplication();
    void isAsWideAsTheMaximumWidth();

    // files from elsewhere
    void setFileIsAWholeEdit();
    void setFileSpeaksAfterDisableValueChangedOnPurpose();

    // list of files
    void listsTheFilesOfTheDirectories_data();
    void listsTheFilesOfTheDirectories();
    void listHoldsFilesOfAllDirectoriesWithDuplicates();
    void listLeavesOutDirectoriesAndIsSortedByName();
    void newListReplacesTheCompleter();

    // completion
    void typingProposesFilesThatContainTheText();
    void noMatchShowsNoPopup();
    void anyKeyOpensTheCompletionOnPurpose_data();
    void anyKeyOpensTheCompletionOnPurpose();
    void controlEOpensTheCompletionAndTypesNothing();
    void altClosesTheCompletion();
    void acceptedCompletionIsSelectedAndConfirmedWhenTheFieldIsLeft();
    void escapeClosesThePopupAndKeepsTheText();
    void popupKeysAreIgnoredByTheFieldWhileThePopupIsOpen_data();
    void popupKeysAreIgnoredByTheFieldWhileThePopupIsOpen();
    void withoutCompleterKeysJustType();

    // completer
    void formerCompleterIsDisconnected();
    void completerCanBeTakenAway();
    void fieldDeletesItsCompleter();
    void completerSearchesInTheMiddleOfWords_data();
    void completerSearchesInTheMiddleOfWords();

private:
    void makeFile(const QString &name);
    /// Alpha.txt and beta.txt.
    void listTexts(ZelQtFileEdit &field);

    QScopedPointer<QTemporaryDir> mDir;
};

class OpenFileEdit : public ZelQtFileEdit
{
public:
    using ZelQtFileEdit::completer;
    using ZelQtFileEdit::keyPressEvent;
    using ZelQtFileEdit::setCompleter;
    using ZelQtFileEdit::ZelQtFileEdit;

    QStringList proposals() const
    {
        QStringList texts;
        const QAbstractItemModel *model = completer()->completionModel();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data().toString());
        return texts;
    }
    bool popupVisible() const { return completer()->popup()->isVisible(); }
    /// All files of the list.
    QStringList files()
    {
        completer()->update(QString());
        completer()->popup()->hide();
        return proposals();
    }
};

using Fixture = FieldOnPage<OpenFileEdit>;

void tst_zelQtFileEdit::initTestCase()
{
    QLocale::setDefault(QLocale::c());
    mDir.reset(new QTemporaryDir);
    QVERIFY(mDir->isValid());
    QVERIFY(QDir(mDir->path()).mkpath(QStringLiteral("one")));
    QVERIFY(QDir(mDir->path()).mkpath(QStringLiteral("two/sub.txt")));
    for (const char *name : {"one/beta.txt", "one/Alpha.txt", "one/gear.dat", "two/alpha2.txt",
                             "two/beta.txt", "two/notes.tx"})
        makeFile(QString::fromLatin1(name));
}

void tst_zelQtFileEdit::cleanup()
{
    // A popup that is left open would swallow the keys of the next test.
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

void tst_zelQtFileEdit::makeFile(const QString &name)
{
    QFile file(mDir->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void tst_zelQtFileEdit::listTexts(ZelQtFileEdit &field)
{
    field.setFileList({mDir->filePath(QStringLiteral("one"))},
                      {QStringLiteral("Text files (*.txt)")});
}

void tst_zelQtFileEdit::forbiddenCharactersAreNotTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("quote") << "a\"b";
    QTest::newRow("star") << "a*b";
    QTest::newRow("comma") << "a,b";
    QTest::newRow("less") << "a<b";
    QTest::newRow("greater") << "a>b";
    QTest::newRow("question mark") << "a?b";
}

void tst_zelQtFileEdit::forbiddenCharactersAreNotTyped()
{
    QFETCH(QString, typed);
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, typed);
    QCOMPARE(fixture.mField.text(), QStringLiteral("ab"));
    QCOMPARE(fixture.take(), changedEvents + changedEvents);
}

void tst_zelQtFileEdit::otherCharactersAreTyped()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("a|b:c/d.x"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("a|b:c/d.x"));
}

void tst_zelQtFileEdit::undoKeyWorksInThisFieldOnPurpose()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QTest::keyClick(&fixture.mField, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.mField.text(), QString());
}

void tst_zelQtFileEdit::undoKeyDoesNotReachTheApplication()
{
    Fixture fixture;
    QAction undo;
    undo.setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Z));
    fixture.mPage.addAction(&undo);
    int triggered = 0;
    connect(&undo, &QAction::triggered, this, [&triggered] { ++triggered; });
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QTest::keyClick(&fixture.mField, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(triggered, 0);
}

void tst_zelQtFileEdit::isAsWideAsTheMaximumWidth()
{
    const ZelQtFileEdit field(QStringLiteral("a.txt"));
    QCOMPARE(field.text(), QStringLiteral("a.txt"));
    QCOMPARE(field.sizeHint().width(), 50 * field.fontMetrics().averageCharWidth());
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
}

void tst_zelQtFileEdit::setFileIsAWholeEdit()
{
    Fixture fixture;
    fixture.mField.setFile(QStringLiteral("a.txt"));
    QCOMPARE(fixture.mField.text(), QStringLiteral("a.txt"));
    QCOMPARE(fixture.take(), changedEvents + confirmedEvents);
}

void tst_zelQtFileEdit::setFileSpeaksAfterDisableValueChangedOnPurpose()
{
    Fixture fixture;
    fixture.mField.disableValueChanged();
    fixture.mField.disableValueConfirmed();
    fixture.mField.setFile(QStringLiteral("a.txt"));
    QCOMPARE(fixture.take(), changedEvents + confirmedEvents);
}

void tst_zelQtFileEdit::listsTheFilesOfTheDirectories_data()
{
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QStringList>("files");
    const QStringList texts{QStringLiteral("alpha2.txt"), QStringLiteral("beta.txt")};
    QTest::newRow("form of file dialogs") << QStringList{"Text files (*.txt)"} << texts;
    QTest::newRow("name before the pattern is free") << QStringList{"x.y (z) (*.txt)"} << texts;
    QTest::newRow("two filters") << QStringList{"a (*.txt)", "b (*.tx)"}
                                 << texts + QStringList{"notes.tx"};
    QTest::newRow("a bare pattern loses its last character, which is meant")
        << QStringList{"*.txt"} << QStringList{"notes.tx"};
    QTest::newRow("two patterns in a filter match nothing")
        << QStringList{"a (*.txt *.tx)"} << QStringList{};
}

void tst_zelQtFileEdit::listsTheFilesOfTheDirectories()
{
    QFETCH(QStringList, filters);
    QFETCH(QStringList, files);
    OpenFileEdit field;
    field.setFileList({mDir->filePath(QStringLiteral("two"))}, filters);
    QCOMPARE(field.files(), files);
}

void tst_zelQtFileEdit::listHoldsFilesOfAllDirectoriesWithDuplicates()
{
    OpenFileEdit field;
    field.setFileList({mDir->filePath(QStringLiteral("one")),
                       mDir->filePath(QStringLiteral("missing")),
                       mDir->filePath(QStringLiteral("two"))},
                      {QStringLiteral("Text files (*.txt)")});
    QCOMPARE(field.files(),
             QStringList({QStringLiteral("Alpha.txt"), QStringLiteral("beta.txt"),
                          QStringLiteral("alpha2.txt"), QStringLiteral("beta.txt")}));
}

void tst_zelQtFileEdit::listLeavesOutDirectoriesAndIsSortedByName()
{
    OpenFileEdit field;
    field.setFileList({mDir->filePath(QStringLiteral("two"))}, {QStringLiteral("all (*)")});
    QCOMPARE(field.files(),
             QStringList({QStringLiteral("alpha2.txt"), QStringLiteral("beta.txt"),
                          QStringLiteral("notes.tx")}));
}

void tst_zelQtFileEdit::newListReplacesTheCompleter()
{
    OpenFileEdit field;
    QVERIFY(!field.completer());
    listTexts(field);
    const QPointer<ZelQtCompleter> first = field.completer();
    QVERIFY(first);
    QCOMPARE(first->caseSensitivity(), Qt::CaseInsensitive);
    QCOMPARE(first->widget(), &field);
    listTexts(field);
    QVERIFY(!first);
    QVERIFY(field.completer());
    QCOMPARE(field.files().size(), 2);
}

void tst_zelQtFileEdit::typingProposesFilesThatContainTheText()
{
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("A"));
    QVERIFY(fixture.mField.popupVisible());
    QCOMPARE(fixture.mField.proposals(),
             QStringList({QStringLiteral("Alpha.txt"), QStringLiteral("beta.txt")}));
    QCOMPARE(fixture.mField.completer()->word(), QStringLiteral("A"));
    QTest::keyClicks(&fixture.mField, QStringLiteral("l"));
    QCOMPARE(fixture.mField.proposals(), QStringList(QStringLiteral("Alpha.txt")));
    QCOMPARE(fixture.mField.completer()->popup()->currentIndex().data().toString(),
             QStringLiteral("Alpha.txt"));
}

void tst_zelQtFileEdit::noMatchShowsNoPopup()
{
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_X);
    QVERIFY(fixture.mField.popupVisible());
    QTest::keyClick(&fixture.mField, Qt::Key_Y);
    QCOMPARE(fixture.mField.proposals(), QStringList());
    QVERIFY(!fixture.mField.popupVisible());
}

void tst_zelQtFileEdit::anyKeyOpensTheCompletionOnPurpose_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("arrow") << int(Qt::Key_Left) << int(Qt::NoModifier);
    QTest::newRow("copy") << int(Qt::Key_C) << int(Qt::ControlModifier);
    QTest::newRow("help") << int(Qt::Key_F1) << int(Qt::NoModifier);
    QTest::newRow("selecting") << int(Qt::Key_Right) << int(Qt::ShiftModifier);
    QTest::newRow("keypad") << int(Qt::Key_Left) << int(Qt::KeypadModifier);
}

void tst_zelQtFileEdit::anyKeyOpensTheCompletionOnPurpose()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QVERIFY(!fixture.mField.popupVisible());
    QTest::keyClick(&fixture.mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(fixture.mField.popupVisible());
}

void tst_zelQtFileEdit::controlEOpensTheCompletionAndTypesNothing()
{
    // Without the exception the line edit would move its cursor to the end.
    Fixture fixture;
    listTexts(fixture.mField);
    fixture.mField.setText(QStringLiteral("be"));
    QVERIFY(fixture.enter());
    fixture.mField.setCursorPosition(1);
    QTest::keyClick(&fixture.mField, Qt::Key_E, Qt::ControlModifier);
    QVERIFY(fixture.mField.popupVisible());
    QCOMPARE(fixture.mField.text(), QStringLiteral("be"));
    QCOMPARE(fixture.mField.cursorPosition(), 1);
    QCOMPARE(fixture.mField.proposals(), QStringList(QStringLiteral("beta.txt")));
}

void tst_zelQtFileEdit::altClosesTheCompletion()
{
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QVERIFY(fixture.mField.popupVisible());
    QTest::keyClick(&fixture.mField, Qt::Key_F2, Qt::AltModifier);
    QVERIFY(!fixture.mField.popupVisible());
}

void tst_zelQtFileEdit::acceptedCompletionIsSelectedAndConfirmedWhenTheFieldIsLeft()
{
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("b"));
    QCOMPARE(fixture.take(), changedEvents);
    QTest::keyClick(fixture.mField.completer()->popup(), Qt::Key_Return);
    QVERIFY(!fixture.mField.popupVisible());
    QCOMPARE(fixture.mField.text(), QStringLiteral("beta.txt"));
    QCOMPARE(fixture.mField.selectedText(), QStringLiteral("beta.txt"));
    QCOMPARE(fixture.take(), QStringList());
    QVERIFY(fixture.leave());
    QCOMPARE(fixture.take(), confirmedEvents);
}

void tst_zelQtFileEdit::escapeClosesThePopupAndKeepsTheText()
{
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("b"));
    fixture.take();
    QTest::keyClick(fixture.mField.completer()->popup(), Qt::Key_Escape);
    QVERIFY(!fixture.mField.popupVisible());
    QCOMPARE(fixture.mField.text(), QStringLiteral("b"));
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtFileEdit::popupKeysAreIgnoredByTheFieldWhileThePopupIsOpen_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Backtab") << int(Qt::Key_Backtab);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
}

void tst_zelQtFileEdit::popupKeysAreIgnoredByTheFieldWhileThePopupIsOpen()
{
    QFETCH(int, key);
    Fixture fixture;
    listTexts(fixture.mField);
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("b"));
    fixture.take();
    QVERIFY(fixture.mField.popupVisible());
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    fixture.mField.keyPressEvent(&event);
    QVERIFY(!event.isAccepted());
    QVERIFY(fixture.mField.popupVisible());
    QCOMPARE(fixture.take(), QStringList());
}

void tst_zelQtFileEdit::withoutCompleterKeysJustType()
{
    Fixture fixture;
    QVERIFY(fixture.enter());
    QTest::keyClicks(&fixture.mField, QStringLiteral("ab"));
    QTest::keyClick(&fixture.mField, Qt::Key_E, Qt::ControlModifier);
    QTest::keyClick(&fixture.mField, Qt::Key_Return);
    QCOMPARE(fixture.mField.text(), QStringLiteral("ab"));
    QCOMPARE(fixture.take(), changedEvents + changedEvents + confirmedEvents);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_zelQtFileEdit::formerCompleterIsDisconnected()
{
    OpenFileEdit field;
    listTexts(field);
    const QScopedPointer<ZelQtCompleter> former(field.completer());
    auto *next = new ZelQtCompleter({QStringLiteral("x")}, &field);
    field.setCompleter(next);
    QCOMPARE(field.completer(), next);
    QCOMPARE(next->widget(), &field);
    Q_EMIT former->activated(QStringLiteral("former"));
    QCOMPARE(field.text(), QString());
    Q_EMIT next->activated(QStringLiteral("next"));
    QCOMPARE(field.text(), QStringLiteral("next"));
}

void tst_zelQtFileEdit::completerCanBeTakenAway()
{
    Fixture fixture;
    listTexts(fixture.mField);
    const QScopedPointer<ZelQtCompleter> former(fixture.mField.completer());
    fixture.mField.setCompleter(nullptr);
    QVERIFY(!fixture.mField.completer());
    QVERIFY(fixture.enter());
    QTest::keyClick(&fixture.mField, Qt::Key_A);
    QVERIFY(!former->popup()->isVisible());
    QCOMPARE(fixture.mField.text(), QStringLiteral("a"));
}

void tst_zelQtFileEdit::fieldDeletesItsCompleter()
{
    QScopedPointer<OpenFileEdit> field(new OpenFileEdit);
    const QPointer<ZelQtCompleter> completer = new ZelQtCompleter({QStringLiteral("x")}, nullptr);
    field->setCompleter(completer);
    field.reset();
    QVERIFY(!completer);
}

void tst_zelQtFileEdit::completerSearchesInTheMiddleOfWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("sensitivity");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("middle") << "et" << int(Qt::CaseSensitive) << QStringList{"beta"};
    QTest::newRow("all") << "" << int(Qt::CaseSensitive) << QStringList{"Alpha", "beta"};
    QTest::newRow("case counts") << "al" << int(Qt::CaseSensitive) << QStringList{};
    QTest::newRow("case does not count")
        << "al" << int(Qt::CaseInsensitive) << QStringList{"Alpha"};
    QTest::newRow("no pattern") << "b.t" << int(Qt::CaseSensitive) << QStringList{};
}

void tst_zelQtFileEdit::completerSearchesInTheMiddleOfWords()
{
    QFETCH(QString, word);
    QFETCH(int, sensitivity);
    QFETCH(QStringList, found);
    Fixture fixture;
    auto *completer =
        new ZelQtCompleter({QStringLiteral("Alpha"), QStringLiteral("beta")}, nullptr);
    completer->setCaseSensitivity(Qt::CaseSensitivity(sensitivity));
    fixture.mField.setCompleter(completer);
    QVERIFY(fixture.enter());
    QCOMPARE(completer->word(), QString());
    completer->update(word);
    QCOMPARE(completer->word(), word);
    QCOMPARE(fixture.mField.proposals(), found);
    QCOMPARE(fixture.mField.popupVisible(), !found.isEmpty());
}

QTEST_MAIN(tst_zelQtFileEdit)
#include "tst_zelQtFileEdit.moc"
