#include "zelQtParentDialog.h"

#include "recorder.h"
#include "window.h"
#include "zelQtDialogButtonBox.h"
#include "zelQtLineEdit.h"
#include "zelQtNotepad.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

/// A dialog with room below its children; what the module would do stands in the recorder.
class CalculatingDialog : public RecordedDialog
{
    Q_OBJECT
public:
    CalculatingDialog()
    {
        resize(400, 300);
        mRecorder.recordArguments(this, &QDialog::finished, QStringLiteral("finished"));
    }

    void calculate() override { mRecorder.add(QStringLiteral("calculate")); }
    void createProtokoll() override { mRecorder.add(QStringLiteral("report")); }

    /// A press on the free surface.
    void clickSurface() { QTest::mouseClick(this, Qt::LeftButton, {}, QPoint(390, 290)); }
};

using Box = ZelQtDialogButtonBox;
using Mode = ZelQtDialogButtonBox::Mode;
Q_DECLARE_METATYPE(Mode)

class tst_zelQtParentDialog : public QObject
{
    Q_OBJECT

private slots:
    // keys
    void keyRunsTheOperation_data();
    void keyRunsTheOperation();
    void modifiersLeaveTheKeysToQt_data();
    void modifiersLeaveTheKeysToQt();
    void keysReachTheBaseClass_data();
    void keysReachTheBaseClass();
    void escapeStillCloses();
    void reportNeedsAPermission_data();
    void reportNeedsAPermission();
    void calculationNeedsNoPermissionOnPurpose();

    // button box
    void boxIsWired();
    void boxIsFoundAtAnyDepth();
    void dialogWithoutBoxIsWiredToNothing();
    void changeForbidsToAccept();

    // pending edits
    void clickOnTheSurfaceConfirmsTheField();
    void clickOnTheSurfaceConfirmsOnce();
    void fieldMayGoWithAClickOnTheSurface();
    void clickOnTheSurfaceConfirmsTheNotepad();
    void clickOnTheSurfaceLeavesACleanFieldAlone();
    void clickOnTheSurfaceConfirmsAgainstDisabledConfirmation();
    void clickOnAPageInsideConfirmsToo();
    void pageAloneConfirmsNothing();
};

void tst_zelQtParentDialog::keyRunsTheOperation_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("F1") << int(Qt::Key_F1)
                        << QStringList(QStringLiteral("host helpChanged(17.htm)"));
    QTest::newRow("F5") << int(Qt::Key_F5) << QStringList(QStringLiteral("calculate"));
    QTest::newRow("F6") << int(Qt::Key_F6) << QStringList(QStringLiteral("report"));
    QTest::newRow("F7") << int(Qt::Key_F7) << QStringList();
}

void tst_zelQtParentDialog::keyRunsTheOperation()
{
    QFETCH(int, key);
    QFETCH(QStringList, events);
    CalculatingDialog dialog;
    dialog.setAuthorItCode(17);
    Box box(Box::CALC_REP_CLOSE, &dialog);
    box.permitAccept();
    ZelQtLineEdit field(&dialog);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    // From the field, as the user does it.
    QTest::keyClick(&field, Qt::Key(key));
    QCOMPARE(dialog.take(), events);
}

void tst_zelQtParentDialog::modifiersLeaveTheKeysToQt_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    for (const int key : {Qt::Key_F1, Qt::Key_F5, Qt::Key_F6}) {
        const QByteArray name = QKeySequence(key).toString().toLatin1();
        QTest::addRow("Shift+%s", name.constData()) << key << int(Qt::ShiftModifier);
        QTest::addRow("Ctrl+%s", name.constData()) << key << int(Qt::ControlModifier);
        QTest::addRow("Alt+%s", name.constData()) << key << int(Qt::AltModifier);
    }
}

void tst_zelQtParentDialog::modifiersLeaveTheKeysToQt()
{
    QFETCH(int, key);
    QFETCH(int, modifier);
    CalculatingDialog dialog;
    Box box(Box::CALC_REP_CLOSE, &dialog);
    box.permitAccept();
    QVERIFY(showAndActivate(&dialog));
    QTest::keyClick(&dialog, Qt::Key(key), Qt::KeyboardModifiers(modifier));
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtParentDialog::keysReachTheBaseClass_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("F1") << int(Qt::Key_F1);
    QTest::newRow("F5") << int(Qt::Key_F5);
    QTest::newRow("F6 without box") << int(Qt::Key_F6);
}

void tst_zelQtParentDialog::keysReachTheBaseClass()
{
    QFETCH(int, key);
    CalculatingDialog dialog;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &event);
    // That is what QDialog does with keys that it doesn't know.
    QVERIFY(!event.isAccepted());
    QVERIFY(!dialog.take().contains(QStringLiteral("report")));
}

void tst_zelQtParentDialog::escapeStillCloses()
{
    CalculatingDialog dialog;
    QVERIFY(showAndActivate(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("finished(0)")));
}

void tst_zelQtParentDialog::reportNeedsAPermission_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<bool>("permitted");
    QTest::addColumn<QStringList>("events");
    const QStringList report(QStringLiteral("report"));
    QTest::newRow("fresh") << Box::CALC_REP_OK_CANCEL << false << QStringList();
    QTest::newRow("permitted") << Box::CALC_REP_OK_CANCEL << true << report;
    QTest::newRow("mode without report") << Box::CALC_OK_CANCEL << true << QStringList();
}

void tst_zelQtParentDialog::reportNeedsAPermission()
{
    QFETCH(Mode, mode);
    QFETCH(bool, permitted);
    QFETCH(QStringList, events);
    CalculatingDialog dialog;
    Box box(mode, &dialog);
    if (permitted)
        box.permitAccept();
    QVERIFY(showAndActivate(&dialog));
    QTest::keyClick(&dialog, Qt::Key_F6);
    QCOMPARE(dialog.take(), events);
}

void tst_zelQtParentDialog::calculationNeedsNoPermissionOnPurpose()
{
    CalculatingDialog dialog;
    Box box(Box::CALC_REP_OK_CANCEL, &dialog);
    box.setCalcEnabled(false);
    QVERIFY(showAndActivate(&dialog));
    QTest::keyClick(&dialog, Qt::Key_F5);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("calculate")));
}

void tst_zelQtParentDialog::boxIsWired()
{
    CalculatingDialog dialog;
    Box box(Box::CALC_REP_OK_CANCEL, &dialog);
    dialog.setupDialogButtonBox();
    dialog.show();
    box.calcButton()->click();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("calculate")));
    box.permitAccept();
    box.reportButton()->click();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("report")));
    box.acceptButton()->click();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("finished(1)")));
    dialog.show();
    box.button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("finished(0)")));
}

void tst_zelQtParentDialog::boxIsFoundAtAnyDepth()
{
    CalculatingDialog dialog;
    QWidget outer(&dialog);
    QWidget inner(&outer);
    Box box(Box::CALC_REP_CLOSE, &inner);
    box.setObjectName(QStringLiteral("any name"));
    dialog.setupDialogButtonBox();
    QVERIFY(showAndActivate(&dialog));
    box.calcButton()->click();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("calculate")));
    box.permitAccept();
    QTest::keyClick(&dialog, Qt::Key_F6);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("report")));
}

void tst_zelQtParentDialog::dialogWithoutBoxIsWiredToNothing()
{
    CalculatingDialog dialog;
    dialog.setupDialogButtonBox();
    dialog.emitValueChanged();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("host valueChanged")));
}

void tst_zelQtParentDialog::changeForbidsToAccept()
{
    CalculatingDialog dialog;
    Box box(Box::CALC_REP_OK_CANCEL, &dialog);
    ZelQtLineEdit field(&dialog);
    dialog.setupDialogButtonBox();
    box.permitAccept();
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    QVERIFY(!box.acceptButton()->isEnabled());
    QVERIFY(!box.reportButton()->isEnabled());
    QVERIFY(box.calcButton()->isEnabled());
}

void tst_zelQtParentDialog::clickOnTheSurfaceConfirmsTheField()
{
    CalculatingDialog dialog;
    ZelQtLineEdit field(&dialog);
    dialog.mRecorder.recordProtocol(&field, QStringLiteral("field"));
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    dialog.take();
    dialog.clickSurface();
    QVERIFY(field.hasFocus());
    QCOMPARE(dialog.take(),
             QStringList(
                 {QStringLiteral("host valueConfirmed"), QStringLiteral("field valueConfirmed")}));
}

void tst_zelQtParentDialog::clickOnTheSurfaceConfirmsOnce()
{
    CalculatingDialog dialog;
    ZelQtLineEdit field(&dialog);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    dialog.clickSurface();
    dialog.take();
    dialog.clickSurface();
    QTest::keyClick(&field, Qt::Key_Tab);
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtParentDialog::fieldMayGoWithAClickOnTheSurface()
{
    CalculatingDialog dialog;
    const QPointer<ZelQtLineEdit> field(new ZelQtLineEdit(&dialog));
    dialog.mRecorder.recordProtocol(field.data(), QStringLiteral("field"));
    QVERIFY(showAndActivate(&dialog) && focus(field));
    QTest::keyClick(field, Qt::Key_A);
    dialog.take();
    connect(&dialog, &ZelQtParentDialog::valueConfirmed, this, [&field] { delete field.data(); });
    dialog.clickSurface();
    QVERIFY(!field);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("host valueConfirmed")));
}

void tst_zelQtParentDialog::clickOnTheSurfaceConfirmsTheNotepad()
{
    CalculatingDialog dialog;
    ZelQtNotepad notepad(&dialog);
    notepad.resize(100, 100);
    dialog.mRecorder.recordProtocol(&notepad, QStringLiteral("notepad"));
    QVERIFY(showAndActivate(&dialog) && focus(&notepad));
    QTest::keyClick(&notepad, Qt::Key_A);
    dialog.take();
    dialog.clickSurface();
    QVERIFY(notepad.hasFocus());
    QCOMPARE(dialog.take(),
             QStringList({QStringLiteral("host valueConfirmed"),
                          QStringLiteral("notepad valueConfirmed")}));
    dialog.clickSurface();
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtParentDialog::clickOnTheSurfaceLeavesACleanFieldAlone()
{
    CalculatingDialog dialog;
    ZelQtLineEdit field(&dialog);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    dialog.clickSurface();
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtParentDialog::clickOnTheSurfaceConfirmsAgainstDisabledConfirmation()
{
    CalculatingDialog dialog;
    ZelQtLineEdit field(&dialog);
    field.disableValueConfirmed();
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    dialog.take();
    dialog.clickSurface();
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("host valueConfirmed")));
}

void tst_zelQtParentDialog::clickOnAPageInsideConfirmsToo()
{
    CalculatingDialog dialog;
    RecordedPage page(&dialog);
    page.resize(200, 200);
    ZelQtLineEdit field(&page);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    page.take();
    QTest::mouseClick(&page, Qt::LeftButton, {}, QPoint(190, 190));
    QCOMPARE(page.take(), QStringList(QStringLiteral("host valueConfirmed")));
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtParentDialog::pageAloneConfirmsNothing()
{
    RecordedPage page;
    page.resize(200, 200);
    ZelQtLineEdit field(&page);
    QVERIFY(showAndActivate(&page) && focus(&field));
    QTest::keyClick(&field, Qt::Key_A);
    page.take();
    QTest::mouseClick(&page, Qt::LeftButton, {}, QPoint(190, 190));
    QCOMPARE(page.take(), QStringList());
}

QTEST_MAIN(tst_zelQtParentDialog)
#include "tst_zelQtParentDialog.moc"
