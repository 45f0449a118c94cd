#include "zelQtCustomButtons.h"

#include "recorder.h"
#include "zelQtTabPage.h"

#include <QtTest>

namespace {

void recordInfo(EventRecorder &recorder, ZelQtInfoButton *button)
{
    recorder.recordArguments(button, qOverload<int>(&ZelQtInfoButton::infoChanged),
                             QStringLiteral("button id"));
    recorder.recordArguments(button, qOverload<QString>(&ZelQtInfoButton::infoChanged),
                             QStringLiteral("button file"));
    recorder.record(button, &ZelQtInfoButton::infoRequested, QStringLiteral("infoRequested"));
}

void click(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

class tst_zelQtInfoButton : public QObject
{
    Q_OBJECT

private slots:
    void infoButtonWithoutHostTellsItself_data();
    void infoButtonWithoutHostTellsItself();
    void infoButtonTellsTheHostAndNobodyElse();
    void infoButtonInADialogTellsTheDialog();
    void infoButtonPassesOverTheTabPage();
    void infoButtonInATabPageAloneTellsItself();
    void infoIndexPicksAnId();
    void infoIndexPicksAFile();
    void idsHavePriorityOverFiles();
    void filesHavePriorityOverTheSingleFile();
    void infoIndexIsNotCheckedOnPurpose();
    void infoRequestedNeverComesOnPurpose();
    void infoProperties();
};

void tst_zelQtInfoButton::infoButtonWithoutHostTellsItself_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("event");
    QTest::newRow("nothing given") << 0 << "button file()";
    QTest::newRow("id") << 1 << "button id(10)";
    QTest::newRow("file") << 2 << "button file(a.htm)";
    QTest::newRow("ids") << 3 << "button id(10)";
    QTest::newRow("files") << 4 << "button file(a.htm)";
}

void tst_zelQtInfoButton::infoButtonWithoutHostTellsItself()
{
    QFETCH(int, form);
    QWidget window;
    const QString file = QStringLiteral("a.htm");
    ZelQtInfoButton *button = nullptr;
    if (form == 0)
        button = new ZelQtInfoButton(&window);
    else if (form == 1)
        button = new ZelQtInfoButton(10, &window);
    else if (form == 2)
        button = new ZelQtInfoButton(file, &window);
    else if (form == 3)
        button = new ZelQtInfoButton(QList<int>({10, 20}), &window);
    else
        button = new ZelQtInfoButton(QList<QString>({file, QStringLiteral("b.htm")}), &window);
    EventRecorder recorder;
    recordInfo(recorder, button);
    window.show();
    click(button);
    QFETCH(QString, event);
    QCOMPARE(recorder.take(), QStringList({event}));
}

void tst_zelQtInfoButton::infoButtonTellsTheHostAndNobodyElse()
{
    RecordedPage outer;
    auto *inner = new RecordedPage(&outer);
    auto *byId = new ZelQtInfoButton(10, inner);
    auto *byFile = new ZelQtInfoButton(QStringLiteral("a.htm"), inner);
    recordInfo(inner->mRecorder, byId);
    recordInfo(inner->mRecorder, byFile);
    outer.show();
    click(byId);
    QCOMPARE(inner->take(), QStringList({QStringLiteral("host infoChanged(10)")}));
    click(byFile);
    QCOMPARE(inner->take(), QStringList({QStringLiteral("host infoChanged(a.htm)")}));
    QCOMPARE(outer.take(), QStringList());
}

void tst_zelQtInfoButton::infoButtonInADialogTellsTheDialog()
{
    RecordedDialog dialog;
    auto *button = new ZelQtInfoButton(10, &dialog);
    recordInfo(dialog.mRecorder, button);
    dialog.show();
    click(button);
    QCOMPARE(dialog.take(), QStringList({QStringLiteral("host infoChanged(10)")}));
}

void tst_zelQtInfoButton::infoButtonPassesOverTheTabPage()
{
    RecordedPage host;
    auto *page = new ZelQtTabPage(&host);
    auto *byId = new ZelQtInfoButton(10, page);
    auto *byFile = new ZelQtInfoButton(QStringLiteral("a.htm"), page);
    host.mRecorder.recordArguments(page, qOverload<int>(&ZelQtParentWidget::infoChanged),
                                   QStringLiteral("page"));
    host.mRecorder.recordArguments(page, qOverload<QString>(&ZelQtParentWidget::infoChanged),
                                   QStringLiteral("page"));
    host.show();
    click(byId);
    click(byFile);
    QCOMPARE(host.take(),
             QStringList({QStringLiteral("host infoChanged(10)"),
                          QStringLiteral("host infoChanged(a.htm)")}));
}

void tst_zelQtInfoButton::infoButtonInATabPageAloneTellsItself()
{
    ZelQtTabPage page;
    auto *button = new ZelQtInfoButton(10, &page);
    EventRecorder recorder;
    recordInfo(recorder, button);
    page.show();
    click(button);
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("button id(10)")}));
}

void tst_zelQtInfoButton::infoIndexPicksAnId()
{
    ZelQtInfoButton button(QList<int>({10, 20}));
    EventRecorder recorder;
    recordInfo(recorder, &button);
    button.setCurrentIndex(1);
    button.show();
    click(&button);
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("button id(20)")}));
}

void tst_zelQtInfoButton::infoIndexPicksAFile()
{
    ZelQtInfoButton button(QList<QString>({QStringLiteral("a.htm"), QStringLiteral("b.htm")}));
    EventRecorder recorder;
    recordInfo(recorder, &button);
    button.setCurrentIndex(1);
    button.show();
    click(&button);
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("button file(b.htm)")}));
}

void tst_zelQtInfoButton::idsHavePriorityOverFiles()
{
    ZelQtInfoButton button(QList<QString>({QStringLiteral("a.htm")}));
    button.setInfoIds({10});
    EventRecorder recorder;
    recordInfo(recorder, &button);
    button.show();
    click(&button);
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("button id(10)")}));
}

void tst_zelQtInfoButton::filesHavePriorityOverTheSingleFile()
{
    ZelQtInfoButton button(QStringLiteral("single.htm"));
    EventRecorder recorder;
    recordInfo(recorder, &button);
    button.show();
    click(&button);
    button.setInfoFiles({L"a.htm"});
    click(&button);
    QCOMPARE(recorder.take(),
             QStringList({QStringLiteral("button file(single.htm)"),
                          QStringLiteral("button file(a.htm)")}));
}

void tst_zelQtInfoButton::infoIndexIsNotCheckedOnPurpose()
{
    // Taken before there is a list, and not reset by one.
    ZelQtInfoButton button;
    button.setCurrentIndex(2);
    QCOMPARE(button.mInfoIndex, 2);
    button.setInfoIds({10, 20, 30});
    EventRecorder recorder;
    recordInfo(recorder, &button);
    button.show();
    click(&button);
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("button id(30)")}));
}

void tst_zelQtInfoButton::infoRequestedNeverComesOnPurpose()
{
    RecordedPage host;
    auto *button = new ZelQtInfoButton(10, &host);
    QSignalSpy requested(button, &ZelQtInfoButton::infoRequested);
    host.show();
    click(button);
    QCOMPARE(host.take().size(), 1);
    QCOMPARE(requested.count(), 0);
}

void tst_zelQtInfoButton::infoProperties()
{
    ZelQtInfoButton button(QList<int>({10, 20}));
    button.setCurrentIndex(1);
    QCOMPARE(button.property("infoId").toInt(), 20);
    const QMetaObject *meta = button.metaObject();
    QVERIFY(!meta->property(meta->indexOfProperty("infoId")).isWritable());
    QVERIFY(button.setProperty("infoFile", QStringLiteral("größe.htm")));
    QCOMPARE(button.property("infoFile").toString(), QStringLiteral("größe.htm"));
    QVERIFY(button.mInfoFile == L"größe.htm");
    button.setInfoFile(zelWString(L"b.htm"));
    QCOMPARE(button.currentInfoFile(), QStringLiteral("b.htm"));
}

QTEST_MAIN(tst_zelQtInfoButton)
#include "tst_zelQtInfoButton.moc"
