#include "zelQtDialogButtonBox.h"

#include "maskTestSupport.h"
#include "zelQtParentDialog.h"

#include <QMenu>
#include <QVBoxLayout>
#include <QtTest>

using Box = ZelQtDialogButtonBox;

namespace {

QPushButton *buttonWithText(const Box &box, const QString &text)
{
    for (auto *button : box.findChildren<QPushButton *>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

/// Writes down what its button box makes it do.
class CalculatingDialog : public ZelQtParentDialog
{
public:
    explicit CalculatingDialog(Box::Mode mode)
        : mBox(new Box(mode, this))
    {
        (new QVBoxLayout(this))->addWidget(mBox);
        mBox->setupConnections(this);
    }
    void calculate() override { mCalls.append("calculate"); }
    void createProtokoll() override { mCalls.append("createProtokoll"); }
    void accept() override { mCalls.append("accept"); }
    void reject() override { mCalls.append("reject"); }

    Box *mBox;
    QStringList mCalls;
};

} // namespace

class tst_zelQtDialogButtonBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restoreTextStaysThroughALanguageChange();
    void acceptButtonIsTheStandardOkWhereThereIsOne();
    void freshReportBoxForbidsReportAndAccept();
    void reportIsPermittedInReportModesOnly_data();
    void reportIsPermittedInReportModesOnly();
    void visibleReportButtonPermitsNothingInOtherModes();
    void acceptMenuIsEmptyAndWithoutParent();
    void acceptMenuGoesWithTheBox();
    void acceptMenuMayGoFirst();
    void actionButtonSaysThatItWantsAText();
    void connectionsReachTheDialog();
    void changedValueForbidsAcceptUntilItIsPermitted();
    void languageChangeSetsAllCaptionsAnew();
    void deleteKeepsItsShortcutThroughALanguageChange();
    void buttonsGoWithTheBoxInTheirOrder();
    void destructionLeavesNoWidgetBehind();
};

void tst_zelQtDialogButtonBox::restoreTextStaysThroughALanguageChange()
{
    Box box(Box::CLOSE);
    box.setOpenVisible(true);
    QCOMPARE(box.openButton()->objectName(), QString("restore"));
    QCOMPARE(box.openButton()->text(), QString("Wiederherstellen"));

    changeLanguage(&box);
    QCOMPARE(box.openButton()->text(), QString("Wiederherstellen"));

    const ContextTranslator translator("ZelQtDialogButtonBox");
    changeLanguage(&box);
    QCOMPARE(box.openButton()->text(), QString("Wiederherstellen translated"));
}

void tst_zelQtDialogButtonBox::acceptButtonIsTheStandardOkWhereThereIsOne()
{
    Box box;
    QVERIFY(box.acceptButton());
    QCOMPARE(box.acceptButton(), box.button(QDialogButtonBox::Ok));
    box.setMode(Box::CALC_OK_CANCEL);
    QVERIFY(!box.button(QDialogButtonBox::Ok));
    QCOMPARE(box.acceptButton()->text(), QString("Übernehmen"));
}

void tst_zelQtDialogButtonBox::freshReportBoxForbidsReportAndAccept()
{
    const Box box(Box::CALC_REP_OK_CANCEL);
    QVERIFY(box.calcButton()->isEnabled());
    QVERIFY(!box.reportButton()->isEnabled());
    QVERIFY(!box.acceptButton()->isEnabled());
    QVERIFY(box.acceptButton()->isDefault());
    QVERIFY(!box.isReportPermitted());
}

void tst_zelQtDialogButtonBox::reportIsPermittedInReportModesOnly_data()
{
    QTest::addColumn<bool>("hasReport");
    for (int mode = Box::STANDARD; mode <= Box::ACCEPT_CALC_REP_SAVE_CLOSE; ++mode) {
        const bool hasReport = QList<int>({6, 7, 8, 11, 12}).contains(mode);
        QTest::newRow(QByteArray::number(mode)) << hasReport;
    }
}

void tst_zelQtDialogButtonBox::reportIsPermittedInReportModesOnly()
{
    QFETCH(bool, hasReport);
    Box box(static_cast<Box::Mode>(QByteArray(QTest::currentDataTag()).toInt()));
    box.permitAccept();
    QVERIFY(box.reportButton()->isEnabled());
    QCOMPARE(box.isReportPermitted(), hasReport);
    box.forbidAccept();
    QVERIFY(!box.isReportPermitted());
}

void tst_zelQtDialogButtonBox::visibleReportButtonPermitsNothingInOtherModes()
{
    Box box(Box::CALC_OK_CANCEL);
    box.setReportVisible();
    box.setReportEnabled(true);
    QVERIFY(box.reportButton()->isEnabled());
    QVERIFY(!box.isReportPermitted());
}

void tst_zelQtDialogButtonBox::acceptMenuIsEmptyAndWithoutParent()
{
    Box box(Box::CALC_OK_CANCEL);
    QMenu *menu = box.addAcceptMenu();
    QVERIFY(menu->isEmpty());
    QVERIFY(!menu->parent());
    QCOMPARE(box.acceptButton()->menu(), menu);
}

void tst_zelQtDialogButtonBox::acceptMenuGoesWithTheBox()
{
    auto box = std::make_unique<Box>(Box::CALC_OK_CANCEL);
    const QPointer<QMenu> menu = box->addAcceptMenu();
    box.reset();
    QVERIFY(!menu);
}

void tst_zelQtDialogButtonBox::acceptMenuMayGoFirst()
{
    auto box = std::make_unique<Box>(Box::CALC_OK_CANCEL);
    delete box->addAcceptMenu();
    QVERIFY(!box->acceptButton()->menu());
    box.reset();
}

void tst_zelQtDialogButtonBox::actionButtonSaysThatItWantsAText()
{
    Box box(Box::CALC_CLOSE);
    const ContextTranslator translator("ZelQtDialogButtonBox");
    QPushButton *first = box.addActionButton();
    QPushButton *second = box.addActionButton();
    QCOMPARE(first->text(), QString("add text to zelui"));
    QCOMPARE(box.buttonRole(first), QDialogButtonBox::ActionRole);
    QCOMPARE(first->parent(), &box);
    QVERIFY(second != first);
}

void tst_zelQtDialogButtonBox::connectionsReachTheDialog()
{
    CalculatingDialog dialog(Box::CALC_REP_OK_CANCEL);
    dialog.mBox->permitAccept();
    dialog.show();

    QTest::mouseClick(dialog.mBox->calcButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.mBox->reportButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.mBox->acceptButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.mBox->button(QDialogButtonBox::Cancel), Qt::LeftButton);

    QCOMPARE(dialog.mCalls, QStringList({"calculate", "createProtokoll", "accept", "reject"}));
}

void tst_zelQtDialogButtonBox::changedValueForbidsAcceptUntilItIsPermitted()
{
    CalculatingDialog dialog(Box::CALC_REP_OK_CANCEL);
    const Box &box = *dialog.mBox;
    dialog.mBox->permitAccept();
    QVERIFY(box.isReportPermitted());

    dialog.emitValueChanged();
    QVERIFY(!box.acceptButton()->isEnabled());
    QVERIFY(!box.isReportPermitted());
    QVERIFY(box.calcButton()->isEnabled());
    QVERIFY(box.button(QDialogButtonBox::Cancel)->isEnabled());

    dialog.mBox->permitAccept();
    QVERIFY(box.acceptButton()->isEnabled());
    QVERIFY(box.isReportPermitted());
    dialog.emitValueConfirmed(); // a confirmation alone changes no value
    QVERIFY(box.acceptButton()->isEnabled());
}

void tst_zelQtDialogButtonBox::languageChangeSetsAllCaptionsAnew()
{
    QWidget window;
    Box box(Box::ACCEPT_CALC_REP_SAVE_CLOSE, &window);
    Box editBox(Box::EDIT, &window);
    Box showBox(Box::SHOW, &window);
    box.setDeleteVisible();
    const ContextTranslator translator("ZelQtDialogButtonBox");

    changeLanguage(&window);

    QCOMPARE(box.acceptButton()->text(), QString("Übernehmen translated"));
    QCOMPARE(box.deleteButton()->text(), QString("Löschen translated"));
    QCOMPARE(box.graphicsButton()->text(), QString("Grafik translated")); // outside the box
    QCOMPARE(box.reportButton()->text(), QString("Protokoll translated"));
    QCOMPARE(box.calcButton()->text(), QString("Berechnen translated"));
    QCOMPARE(box.saveButton()->text(), QString("Speichern translated"));
    QCOMPARE(box.openButton()->text(), QString("Öffnen translated"));
    QVERIFY(buttonWithText(editBox, "Bearbeiten translated"));
    QVERIFY(buttonWithText(showBox, "Anzeigen translated"));
}

void tst_zelQtDialogButtonBox::deleteKeepsItsShortcutThroughALanguageChange()
{
    Box box(Box::CALC_DEL_OK_CANCEL);
    QCOMPARE(box.deleteButton()->shortcut(), QKeySequence(Qt::Key_Delete));
    const ContextTranslator translator("ZelQtDialogButtonBox");
    changeLanguage(&box);
    QCOMPARE(box.deleteButton()->text(), QString("Löschen translated"));
    QCOMPARE(box.deleteButton()->shortcut(), QKeySequence(Qt::Key_Delete));
}

void tst_zelQtDialogButtonBox::buttonsGoWithTheBoxInTheirOrder()
{
    auto box = std::make_unique<Box>(Box::CALC_OK_CANCEL);
    QStringList gone;
    const auto watch = [&gone](QPushButton *button) {
        const QString text = button->text();
        connect(button, &QObject::destroyed, [&gone, text] { gone.append(text); });
    };
    for (QPushButton *button :
         {box->openButton(), box->saveButton(), box->calcButton(), box->reportButton(),
          box->graphicsButton(), box->deleteButton(), box->acceptButton()})
        watch(button);

    box.reset();

    QCOMPARE(gone,
             QStringList({"Übernehmen", "Löschen", "Grafik", "Protokoll", "Berechnen", "Speichern",
                          "Öffnen"}));
}

void tst_zelQtDialogButtonBox::destructionLeavesNoWidgetBehind()
{
    const int before = QApplication::allWidgets().count();
    {
        Box box(Box::CALC_REP_DEL_OK_CANCEL);
        box.addAcceptMenu();
        box.addActionButton();
        QVERIFY(QApplication::allWidgets().count() > before);
    }
    QCOMPARE(QApplication::allWidgets().count(), before);
}

QTEST_MAIN(tst_zelQtDialogButtonBox)
#include "tst_zelQtDialogButtonBox.moc"
