#include "zelQtDialog.h"

#include "recorder.h"
#include "window.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCustomButtons.h"
#include "zelQtSingleCalcVarInput.h"
#include "zelQtValueEdit.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

using Button = QDialogButtonBox::StandardButton;
Q_DECLARE_METATYPE(Button)

class tst_zelQtDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void overrideCursorsAreGone();
    void windowHasTitleMenuAndCloseButtonOnly_data();
    void windowHasTitleMenuAndCloseButtonOnly();
    void titleIsSet();
    void freshDialogHasOkAndCancel();
    void okIsAutoDefault();
    void buttonEndsTheDialog_data();
    void buttonEndsTheDialog();
    void widgetsStandInTheOrderOfAddingAboveTheButtons();
    void singleButton_data();
    void singleButton();
    void buttonsAreCentred();

    void resultButtonClosesWithItsNumber();
    void senderOfAnotherKindChangesNothing();
    void plainCallChangesNothing();
    void closeButtonOfTheWindowLeavesTheResult();

    void showAlignsTheLines();
    void unsizedDialogIsWideEnoughForItsPrompts();
    void sizeOfTheProgramStays();
    void maximizedDialogStaysSo();
    void dialogIsNoHostOnPurpose();
};

static QDialogButtonBox *boxOf(const ZelQtDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>();
}

void tst_zelQtDialog::cleanup()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void tst_zelQtDialog::overrideCursorsAreGone()
{
    for (int i = 0; i < 3; ++i)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const ZelQtDialog dialog;
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_zelQtDialog::windowHasTitleMenuAndCloseButtonOnly_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("alone") << false;
    QTest::newRow("with a parent") << true;
}

void tst_zelQtDialog::windowHasTitleMenuAndCloseButtonOnly()
{
    QFETCH(bool, withParent);
    QWidget parent;
    const ZelQtDialog dialog(withParent ? &parent : nullptr);
    QCOMPARE(dialog.windowFlags(),
             Qt::WindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                             | Qt::WindowCloseButtonHint));
    QCOMPARE(dialog.parentWidget(), withParent ? &parent : nullptr);
}

void tst_zelQtDialog::titleIsSet()
{
    const ZelQtDialog dialog(QStringLiteral("Frage"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Frage"));
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
}

void tst_zelQtDialog::freshDialogHasOkAndCancel()
{
    const ZelQtDialog dialog;
    QCOMPARE(boxOf(dialog)->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(dialog.layout()->count(), 1);
    QCOMPARE(dialog.tarvexResult(), -1);
}

void tst_zelQtDialog::okIsAutoDefault()
{
    const ZelQtDialog dialog;
    QVERIFY(boxOf(dialog)->button(QDialogButtonBox::Ok)->autoDefault());
}

void tst_zelQtDialog::buttonEndsTheDialog_data()
{
    QTest::addColumn<Button>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("Ok") << QDialogButtonBox::Ok << int(QDialog::Accepted);
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << int(QDialog::Rejected);
}

void tst_zelQtDialog::buttonEndsTheDialog()
{
    QFETCH(Button, button);
    QFETCH(int, result);
    ZelQtDialog dialog;
    const QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QTest::mouseClick(boxOf(dialog)->button(button), Qt::LeftButton);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), result);
    QCOMPARE(dialog.tarvexResult(), -1);
}

void tst_zelQtDialog::widgetsStandInTheOrderOfAddingAboveTheButtons()
{
    ZelQtDialog dialog;
    auto *first = new QLabel(QStringLiteral("first"));
    auto *second = new QLabel(QStringLiteral("second"));
    dialog.add(first);
    dialog.add(second);
    QCOMPARE(first->parentWidget(), &dialog);
    dialog.show();
    QVERIFY(first->geometry().bottom() < second->geometry().top());
    QVERIFY(second->geometry().bottom() < boxOf(dialog)->geometry().top());
}

void tst_zelQtDialog::singleButton_data()
{
    QTest::addColumn<Button>("button");
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel;
    QTest::newRow("Abort") << QDialogButtonBox::Abort;
}

void tst_zelQtDialog::singleButton()
{
    QFETCH(Button, button);
    ZelQtDialog dialog;
    if (button == QDialogButtonBox::Cancel)
        dialog.useCancelButtonOnly();
    else
        dialog.useAbortButtonOnly();
    QCOMPARE(boxOf(dialog)->standardButtons(), QDialogButtonBox::StandardButtons(button));
    QVERIFY(boxOf(dialog)->button(button)->autoDefault());
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::mouseClick(boxOf(dialog)->button(button), Qt::LeftButton);
    QCOMPARE(rejected.size(), 1);
}

void tst_zelQtDialog::buttonsAreCentred()
{
    ZelQtDialog dialog;
    QVERIFY(!boxOf(dialog)->centerButtons());
    dialog.setCenterButtons(true);
    QVERIFY(boxOf(dialog)->centerButtons());
    dialog.setCenterButtons(false);
    QVERIFY(!boxOf(dialog)->centerButtons());
}

void tst_zelQtDialog::resultButtonClosesWithItsNumber()
{
    ZelQtDialog dialog;
    auto *button = new ZelQtTarvexResultButton(7, QStringLiteral("seven"));
    dialog.add(button);
    connect(button, &QPushButton::clicked, &dialog, &ZelQtDialog::acceptTarvexResultButton);
    // The result is there when the dialog tells that it was accepted.
    int atAccepted = -1;
    connect(&dialog, &QDialog::accepted, this, [&] { atAccepted = dialog.tarvexResult(); });
    dialog.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.tarvexResult(), 7);
    QCOMPARE(atAccepted, 7);
}

void tst_zelQtDialog::senderOfAnotherKindChangesNothing()
{
    ZelQtDialog dialog;
    auto *button = new QPushButton(QStringLiteral("plain"));
    dialog.add(button);
    connect(button, &QPushButton::clicked, &dialog, &ZelQtDialog::acceptTarvexResultButton);
    dialog.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.tarvexResult(), -1);
}

void tst_zelQtDialog::plainCallChangesNothing()
{
    ZelQtDialog dialog;
    dialog.show();
    dialog.acceptTarvexResultButton();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.tarvexResult(), -1);
}

void tst_zelQtDialog::closeButtonOfTheWindowLeavesTheResult()
{
    ZelQtDialog dialog;
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    // What the window system sends for its button.
    QCloseEvent event;
    QCoreApplication::sendEvent(&dialog, &event);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.tarvexResult(), -1);
}

static int startOfField(const ZelQtCalcVarInput *line)
{
    return line->findChild<ZelQtValueEdit *>()->x();
}

void tst_zelQtDialog::showAlignsTheLines()
{
    ZelQtDialog dialog;
    auto *first = new ZelQtSingleCalcVarInput;
    auto *second = new ZelQtSingleCalcVarInput;
    second->showSizeButton(true);
    dialog.add(first);
    dialog.add(second);
    dialog.resize(600, 200);
    dialog.show();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(startOfField(first), startOfField(second));
}

void tst_zelQtDialog::unsizedDialogIsWideEnoughForItsPrompts()
{
    ZelQtDialog dialog;
    auto *first = new ZelQtSingleCalcVarInput;
    auto *second = new ZelQtSingleCalcVarInput;
    first->setPrompt(QStringLiteral("A longer prompt"));
    second->setFormula(QStringLiteral("F<sub>max, total</sub>"));
    dialog.add(first);
    dialog.add(second);
    dialog.show();
    QCoreApplication::sendPostedEvents();
    const auto *prompt = first->findChild<ZelQtAdvancedLabel *>();
    QVERIFY(prompt->width() >= prompt->sizeHint().width());
    QVERIFY(!dialog.testAttribute(Qt::WA_Resized));
}

void tst_zelQtDialog::sizeOfTheProgramStays()
{
    ZelQtDialog dialog;
    dialog.add(new ZelQtSingleCalcVarInput);
    dialog.resize(900, 333);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(900, 333));
}

void tst_zelQtDialog::maximizedDialogStaysSo()
{
    ZelQtDialog dialog;
    auto *first = new ZelQtSingleCalcVarInput;
    auto *second = new ZelQtSingleCalcVarInput;
    first->setPrompt(QStringLiteral("A longer prompt"));
    second->setFormula(QStringLiteral("F<sub>max, total</sub>"));
    dialog.add(first);
    dialog.add(second);
    dialog.showMaximized();
    // At once, and not only when the window system has answered.
    QVERIFY(dialog.isMaximized());
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.isMaximized());
    QVERIFY(dialog.width() > dialog.sizeHint().width());
}

void tst_zelQtDialog::dialogIsNoHostOnPurpose()
{
    // Edits go past it to the page that opened it; F1 ends at the window and asks for nothing.
    RecordedPage page;
    ZelQtDialog dialog(&page);
    QVERIFY(!dynamic_cast<ZelQtAuthorItInterface *>(static_cast<QWidget *>(&dialog)));
    auto *field = new ZelQtLineEdit;
    dialog.add(field);
    QVERIFY(showAndActivate(&dialog) && focus(field));
    QTest::keyClick(field, Qt::Key_F1);
    QTest::keyClick(field, Qt::Key_A);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host valueChanged")));
}

QTEST_MAIN(tst_zelQtDialog)
#include "tst_zelQtDialog.moc"
