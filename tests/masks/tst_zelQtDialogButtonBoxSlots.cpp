#include "zelQtDialogButtonBox.h"

#include "window.h"

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

QStringList textsIn(const Box &box)
{
    QStringList texts;
    for (const auto *button : box.findChildren<QPushButton *>())
        texts.append(button->text());
    return texts;
}

} // namespace

class tst_zelQtDialogButtonBoxSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachButtonRaisesItsSignal_data();
    void eachButtonRaisesItsSignal();
    void acceptButtonAccepts();
    void deleteKeyRaisesDeleteClicked();
    void buttonSlotsShowTheirButtonDisabled_data();
    void buttonSlotsShowTheirButtonDisabled();
    void enabledSlotsReachTheirButton_data();
    void enabledSlotsReachTheirButton();
    void permitAndForbidReachFiveButtons();
    void hiddenButtonsAreGreyedForLater();
    void forbidAcceptLeavesTheStandardOkButton();
    void permitAcceptShowsNothingInModeClose();
    void closeInsteadOfOkCancelIsTheDefaultButton();
    void openButtonIsEnabledWhenItIsShown();
    void calcVisibleTurnsAPlainBoxIntoACalculatingOne();
    void calcVisibleCanSkipTheAcceptButton();
    void calcVisibleMayRunInAClickOnOk();
};

void tst_zelQtDialogButtonBoxSlots::eachButtonRaisesItsSignal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("delete") << "Löschen" << QByteArray(SIGNAL(deleteClicked()));
    QTest::newRow("graphic") << "Grafik" << QByteArray(SIGNAL(graphicClicked()));
    QTest::newRow("report") << "Protokoll" << QByteArray(SIGNAL(reportClicked()));
    QTest::newRow("calc") << "Berechnen" << QByteArray(SIGNAL(calculateClicked()));
    QTest::newRow("edit") << "Bearbeiten" << QByteArray(SIGNAL(editClicked()));
    QTest::newRow("show") << "Anzeigen" << QByteArray(SIGNAL(showClicked()));
    QTest::newRow("save") << "Speichern" << QByteArray(SIGNAL(saveClicked()));
    QTest::newRow("open") << "Öffnen" << QByteArray(SIGNAL(openClicked()));
}

void tst_zelQtDialogButtonBoxSlots::eachButtonRaisesItsSignal()
{
    QFETCH(QString, text);
    Box box(text == "Bearbeiten" ? Box::EDIT : text == "Anzeigen" ? Box::SHOW : Box::CALC_CLOSE);
    box.setDeleteVisible();
    box.setGraphicVisible();
    box.setReportVisible();
    box.setSaveVisible();
    box.setOpenVisible();
    box.permitAccept();
    box.show();
    // Nothing but the one signal of this button, and the box's own clicked().
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const char *signal :
         {SIGNAL(deleteClicked()), SIGNAL(graphicClicked()), SIGNAL(reportClicked()),
          SIGNAL(calculateClicked()), SIGNAL(editClicked()), SIGNAL(showClicked()),
          SIGNAL(saveClicked()), SIGNAL(openClicked()), SIGNAL(accepted()), SIGNAL(rejected())})
        spies.push_back(std::make_unique<QSignalSpy>(&box, signal));

    QPushButton *button = buttonWithText(box, text);
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);

    QByteArray raised;
    for (const auto &spy : spies) {
        if (!spy->isEmpty()) {
            QCOMPARE(spy->count(), 1);
            raised += '2' + spy->signal();
        }
    }
    QTEST(raised, "signal");
}

void tst_zelQtDialogButtonBoxSlots::acceptButtonAccepts()
{
    Box box(Box::CALC_OK_CANCEL);
    box.permitAccept();
    box.show();
    QSignalSpy spy(&box, &QDialogButtonBox::accepted);
    QTest::mouseClick(box.acceptButton(), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
}

void tst_zelQtDialogButtonBoxSlots::deleteKeyRaisesDeleteClicked()
{
    Box box(Box::CALC_DEL_OK_CANCEL);
    QVERIFY(showAndActivate(&box));
    QSignalSpy spy(&box, &Box::deleteClicked);
    QTest::keyClick(&box, Qt::Key_Delete);
    QCOMPARE(spy.count(), 0);

    box.setDeleteEnabled(true);
    QTest::keyClick(&box, Qt::Key_Delete);

    QTRY_COMPARE(spy.count(), 1);
}

void tst_zelQtDialogButtonBoxSlots::buttonSlotsShowTheirButtonDisabled_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("setDeleteVisible") << "Löschen";
    QTest::newRow("setGraphicVisible") << "Grafik";
    QTest::newRow("setReportVisible") << "Protokoll";
    QTest::newRow("setSaveVisible") << "Speichern";
}

void tst_zelQtDialogButtonBoxSlots::buttonSlotsShowTheirButtonDisabled()
{
    QFETCH(QString, text);
    Box box(Box::CLOSE);
    box.permitAccept();
    box.show();
    QVERIFY(!buttonWithText(box, text));

    QVERIFY(QMetaObject::invokeMethod(&box, QTest::currentDataTag()));

    QPushButton *button = buttonWithText(box, text);
    QVERIFY(button);
    QVERIFY(button->isVisible());
    QVERIFY(!button->isEnabled());
    QCOMPARE(box.buttonRole(button), QDialogButtonBox::ActionRole);
}

void tst_zelQtDialogButtonBoxSlots::enabledSlotsReachTheirButton_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    QTest::newRow("setAcceptEnabled") << int(Box::CALC_OK_CANCEL) << "Übernehmen";
    QTest::newRow("setDeleteEnabled") << int(Box::CALC_REP_DEL_OK_CANCEL) << "Löschen";
    QTest::newRow("setReportEnabled") << int(Box::CALC_REP_CLOSE) << "Protokoll";
    QTest::newRow("setEditEnabled") << int(Box::EDIT) << "Bearbeiten";
    QTest::newRow("setShowEnabled") << int(Box::SHOW) << "Anzeigen";
    QTest::newRow("setSaveEnabled") << int(Box::CALC_REP_SAVE_CLOSE) << "Speichern";
    QTest::newRow("setCalcEnabled") << int(Box::CALC_CLOSE) << "Berechnen";
    QTest::newRow("setGraphicEnabled") << int(Box::CALC_CLOSE) << "Grafik";
}

void tst_zelQtDialogButtonBoxSlots::enabledSlotsReachTheirButton()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    Box box(static_cast<Box::Mode>(mode));
    if (text == "Grafik")
        box.setGraphicVisible();
    QPushButton *button = buttonWithText(box, text);
    QVERIFY(button);
    for (const bool enabled : {true, false, true}) {
        QVERIFY(QMetaObject::invokeMethod(&box, QTest::currentDataTag(), Q_ARG(bool, enabled)));
        QCOMPARE(button->isEnabled(), enabled);
    }
}

void tst_zelQtDialogButtonBoxSlots::permitAndForbidReachFiveButtons()
{
    Box box(Box::ACCEPT_CALC_REP_SAVE_CLOSE);
    box.setDeleteVisible();
    box.setGraphicVisible();
    box.setOpenVisible();
    const auto enabled = [&box] {
        QStringList texts;
        for (const auto *button : box.findChildren<QPushButton *>()) {
            if (button->isEnabled() && box.button(QDialogButtonBox::Close) != button)
                texts.append(button->text());
        }
        texts.sort();
        return texts;
    };
    const QStringList always = {"Berechnen", "Öffnen"};
    QCOMPARE(enabled(), always);

    box.permitAccept();
    QCOMPARE(enabled(),
             QStringList({"Berechnen", "Grafik", "Löschen", "Protokoll", "Speichern", "Öffnen",
                          "Übernehmen"}));
    box.forbidAccept();
    QCOMPARE(enabled(), always);
}

void tst_zelQtDialogButtonBoxSlots::hiddenButtonsAreGreyedForLater()
{
    Box box(Box::CALC_CLOSE);
    QVERIFY(box.saveButton()->isEnabled());

    box.forbidAccept();

    QVERIFY(!box.saveButton()->isEnabled());
    QVERIFY(!box.saveButton()->isVisible());
}

void tst_zelQtDialogButtonBoxSlots::forbidAcceptLeavesTheStandardOkButton()
{
    Box box;
    box.forbidAccept();
    QVERIFY(box.acceptButton()->isEnabled());
    box.setAcceptEnabled(false);
    QVERIFY(box.acceptButton()->isEnabled());
}

void tst_zelQtDialogButtonBoxSlots::permitAcceptShowsNothingInModeClose()
{
    Box box(Box::CLOSE);
    box.show();
    const QStringList texts = textsIn(box);

    box.permitAccept();

    QCOMPARE(textsIn(box), texts);
    for (const QPushButton *button : {box.acceptButton(), box.deleteButton(), box.graphicsButton(),
                                      box.reportButton(), box.saveButton()})
        QVERIFY(!button->isVisible());
}

void tst_zelQtDialogButtonBoxSlots::closeInsteadOfOkCancelIsTheDefaultButton()
{
    Box box;
    box.useCloseInsteadOfOKCancel();
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
    QVERIFY(box.button(QDialogButtonBox::Close)->isDefault());
    QCOMPARE(box.mode(), Box::OK_CANCEL);
}

void tst_zelQtDialogButtonBoxSlots::openButtonIsEnabledWhenItIsShown()
{
    Box box(Box::CLOSE);
    box.openButton()->setEnabled(false);
    box.show();

    box.setOpenVisible();

    QVERIFY(box.openButton()->isVisible());
    QVERIFY(box.openButton()->isEnabled());
    QCOMPARE(box.openButton()->text(), QString("Öffnen"));
    QCOMPARE(box.buttonRole(box.openButton()), QDialogButtonBox::ActionRole);
    QVERIFY(box.openButton()->objectName() != "restore");
}

void tst_zelQtDialogButtonBoxSlots::calcVisibleTurnsAPlainBoxIntoACalculatingOne()
{
    Box box;
    const QPointer<QPushButton> ok = box.button(QDialogButtonBox::Ok);
    box.show();

    box.setCalcVisible();

    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Cancel));
    QVERIFY(box.calcButton()->isVisible());
    QVERIFY(box.calcButton()->isEnabled());
    QCOMPARE(box.buttonRole(box.calcButton()), QDialogButtonBox::ActionRole);
    QCOMPARE(box.acceptButton()->text(), QString("Übernehmen"));
    QCOMPARE(box.buttonRole(box.acceptButton()), QDialogButtonBox::AcceptRole);
    QVERIFY(box.acceptButton()->isVisible());
    QVERIFY(!box.acceptButton()->isEnabled());
    QVERIFY(box.acceptButton()->isDefault());
    QVERIFY(!ok || !ok->isVisible());
    QTRY_VERIFY(!ok);
}

void tst_zelQtDialogButtonBoxSlots::calcVisibleCanSkipTheAcceptButton()
{
    Box box;
    box.show();
    box.setCalcVisible(true);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Cancel));
    QVERIFY(box.calcButton()->isVisible());
    QVERIFY(!box.acceptButton()->isVisible());
    QCOMPARE(box.findChildren<QPushButton *>().count(), 2);
}

void tst_zelQtDialogButtonBoxSlots::calcVisibleMayRunInAClickOnOk()
{
    Box box;
    connect(&box, &QDialogButtonBox::accepted, &box, [&box] { box.setCalcVisible(); });
    box.show();
    QTest::mouseClick(box.button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(!box.button(QDialogButtonBox::Ok));
    QVERIFY(box.calcButton()->isVisible());
}

QTEST_MAIN(tst_zelQtDialogButtonBoxSlots)
#include "tst_zelQtDialogButtonBoxSlots.moc"
