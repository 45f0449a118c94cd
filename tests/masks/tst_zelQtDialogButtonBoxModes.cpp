#include "zelQtDialogButtonBox.h"

#include "window.h"

#include <QDialog>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPushButton>
#include <QVBoxLayout>

using Box = ZelQtDialogButtonBox;

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButtons)

namespace {

QString standardName(QDialogButtonBox::StandardButton button)
{
    return QString::fromLatin1(
        QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().valueToKey(button));
}

bool isOwn(const Box &box, QPushButton *button)
{
    return box.standardButton(button) == QDialogButtonBox::NoButton;
}

// Captions of the own buttons in the box in the order of adding, which the list of children keeps;
// with their role and a minus before those that are greyed out.
QStringList ownButtons(const Box &box)
{
    QStringList texts;
    for (QObject *child : box.children()) {
        auto *button = qobject_cast<QPushButton *>(child);
        if (!button || !isOwn(box, button) || button->isHidden())
            continue;
        const QString accept = box.buttonRole(button) == QDialogButtonBox::AcceptRole ? "!" : "";
        texts.append((button->isEnabled() ? QString() : QStringLiteral("-")) + accept
                     + button->text());
    }
    return texts;
}

// Everything in the box that is marked as default.
QStringList defaultButtons(const Box &box)
{
    QStringList texts;
    for (auto *button : box.findChildren<QPushButton *>()) {
        if (button->isDefault())
            texts.append(isOwn(box, button) ? button->text()
                                            : standardName(box.standardButton(button)));
    }
    return texts;
}

} // namespace

class tst_zelQtDialogButtonBoxModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachModeShowsItsButtons_data();
    void eachModeShowsItsButtons();
    void eachModeShowsItsButtonsAfterEveryOtherMode_data() { eachModeShowsItsButtons_data(); }
    void eachModeShowsItsButtonsAfterEveryOtherMode();
    void shownDialogKeepsTheDefaultButtonOfTheMode_data() { eachModeShowsItsButtons_data(); }
    void shownDialogKeepsTheDefaultButtonOfTheMode();
    void namesAndNumbersOfModesAreFixed_data();
    void namesAndNumbersOfModesAreFixed();
    void unknownNamesGiveStandard_data();
    void unknownNamesGiveStandard();
    void modeIsAPropertyThatFormsSetByName();
    void withoutModeTheBoxHasOkAndCancel();
    void standardLeavesTheStandardButtonsAsTheyAre();
    void numberOutsideTheTableChangesNoStandardButton_data();
    void numberOutsideTheTableChangesNoStandardButton();
    void editAndShowTakeTheStandardButtonsGiven();
    void otherModesIgnoreTheStandardButtonsGiven();
    void changeOfModeKeepsNoEnabledState();
    void ownButtonsOutsideTheModeAreHiddenAndWithoutParent();
};

void tst_zelQtDialogButtonBoxModes::eachModeShowsItsButtons_data()
{
    QTest::addColumn<Box::Mode>("mode");
    QTest::addColumn<QDialogButtonBox::StandardButtons>("standard");
    QTest::addColumn<QStringList>("own");
    QTest::addColumn<QString>("defaultButton");

    using Buttons = QDialogButtonBox::StandardButtons;
    const Buttons okCancel = QDialogButtonBox::Ok | QDialogButtonBox::Cancel;
    const Buttons close = QDialogButtonBox::Close;
    const Buttons cancel = QDialogButtonBox::Cancel;
    const auto row = [](const char *name, Box::Mode mode, Buttons standard, const QStringList &own,
                        const char *defaultButton) {
        QTest::newRow(name) << mode << standard << own << QString::fromUtf8(defaultButton);
    };
    row("OK_CANCEL", Box::OK_CANCEL, okCancel, {}, "Ok");
    row("CLOSE", Box::CLOSE, close, {}, "Close");
    row("CALC_OK_CANCEL", Box::CALC_OK_CANCEL, cancel, {"Berechnen", "-!Übernehmen"}, "Übernehmen");
    row("CALC_CLOSE", Box::CALC_CLOSE, close, {"Berechnen"}, "Close");
    row("CALC_DEL_OK_CANCEL", Box::CALC_DEL_OK_CANCEL, cancel,
        {"-Löschen", "Berechnen", "-!Übernehmen"}, "Übernehmen");
    row("CALC_REP_DEL_OK_CANCEL", Box::CALC_REP_DEL_OK_CANCEL, cancel,
        {"-Löschen", "-Protokoll", "Berechnen", "-!Übernehmen"}, "Übernehmen");
    row("CALC_REP_OK_CANCEL", Box::CALC_REP_OK_CANCEL, cancel,
        {"Berechnen", "-Protokoll", "-!Übernehmen"}, "Übernehmen");
    row("CALC_REP_CLOSE", Box::CALC_REP_CLOSE, close, {"-Protokoll", "Berechnen"}, "Close");
    row("EDIT", Box::EDIT, okCancel, {"Bearbeiten"}, "Bearbeiten");
    row("SHOW", Box::SHOW, close, {"Anzeigen"}, "Anzeigen");
    row("CALC_REP_SAVE_CLOSE", Box::CALC_REP_SAVE_CLOSE, close,
        {"-Speichern", "-Protokoll", "Berechnen"}, "Close");
    row("ACCEPT_CALC_REP_SAVE_CLOSE", Box::ACCEPT_CALC_REP_SAVE_CLOSE, close,
        {"-!Übernehmen", "-Speichern", "-Protokoll", "Berechnen"}, "Close");
}

void tst_zelQtDialogButtonBoxModes::eachModeShowsItsButtons()
{
    QFETCH(Box::Mode, mode);
    QFETCH(QStringList, own);
    QFETCH(QString, defaultButton);

    const Box box(mode);

    QCOMPARE(box.mode(), mode);
    QTEST(box.standardButtons(), "standard");
    QCOMPARE(ownButtons(box), own);
    QCOMPARE(defaultButtons(box), QStringList(defaultButton));
}

void tst_zelQtDialogButtonBoxModes::eachModeShowsItsButtonsAfterEveryOtherMode()
{
    QFETCH(Box::Mode, mode);
    QFETCH(QStringList, own);
    QFETCH(QString, defaultButton);

    for (int former = Box::STANDARD; former <= Box::ACCEPT_CALC_REP_SAVE_CLOSE; ++former) {
        Box box(static_cast<Box::Mode>(former));
        box.setMode(mode);
        QTEST(box.standardButtons(), "standard");
        QCOMPARE(ownButtons(box), own);
        QCOMPARE(defaultButtons(box), QStringList(defaultButton));
    }
}

// Qt looks for a default button when a dialog shows, and must find that of the mode.
void tst_zelQtDialogButtonBoxModes::shownDialogKeepsTheDefaultButtonOfTheMode()
{
    QFETCH(Box::Mode, mode);
    QFETCH(QString, defaultButton);
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *field = new QLineEdit; // takes the focus, which would make a button the default one
    auto *box = new Box(mode);
    layout->addWidget(field);
    layout->addWidget(box);

    QVERIFY(showAndActivate(&dialog));
    QVERIFY(focus(field));

    QCOMPARE(defaultButtons(*box), QStringList(defaultButton));
}

void tst_zelQtDialogButtonBoxModes::namesAndNumbersOfModesAreFixed_data()
{
    QTest::addColumn<int>("number");
    const char *const names[] = {"STANDARD",
                                 "OK_CANCEL",
                                 "CLOSE",
                                 "CALC_OK_CANCEL",
                                 "CALC_CLOSE",
                                 "CALC_DEL_OK_CANCEL",
                                 "CALC_REP_DEL_OK_CANCEL",
                                 "CALC_REP_OK_CANCEL",
                                 "CALC_REP_CLOSE",
                                 "EDIT",
                                 "SHOW",
                                 "CALC_REP_SAVE_CLOSE",
                                 "ACCEPT_CALC_REP_SAVE_CLOSE"};
    int number = 0;
    for (const char *name : names)
        QTest::newRow(name) << number++;
}

void tst_zelQtDialogButtonBoxModes::namesAndNumbersOfModesAreFixed()
{
    QFETCH(int, number);
    QCOMPARE(static_cast<int>(Box::mode(QString::fromLatin1(QTest::currentDataTag()))), number);
}

void tst_zelQtDialogButtonBoxModes::unknownNamesGiveStandard_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("small letters") << "calc_close";
    QTest::newRow("with its scope") << "ZelQtDialogButtonBox::CALC_CLOSE";
    QTest::newRow("with a space") << "CALC_CLOSE ";
    QTest::newRow("a number") << "4";
}

void tst_zelQtDialogButtonBoxModes::unknownNamesGiveStandard()
{
    QFETCH(QString, name);
    QCOMPARE(Box::mode(name), Box::STANDARD);
}

void tst_zelQtDialogButtonBoxModes::modeIsAPropertyThatFormsSetByName()
{
    Box box;
    const QMetaObject *meta = box.metaObject();
    QVERIFY(meta->property(meta->indexOfProperty("mode")).isEnumType());

    QVERIFY(box.setProperty("mode", "CALC_CLOSE"));

    QCOMPARE(box.mode(), Box::CALC_CLOSE);
    QCOMPARE(box.property("mode").toInt(), 4);
    QCOMPARE(ownButtons(box), QStringList("Berechnen"));
}

void tst_zelQtDialogButtonBoxModes::withoutModeTheBoxHasOkAndCancel()
{
    QWidget parent;
    const Box box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QCOMPARE(box.mode(), Box::OK_CANCEL);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_zelQtDialogButtonBoxModes::standardLeavesTheStandardButtonsAsTheyAre()
{
    const Box fresh(Box::STANDARD);
    QCOMPARE(fresh.standardButtons(), QDialogButtonBox::StandardButtons());
    QCOMPARE(ownButtons(fresh), QStringList());
    QCOMPARE(defaultButtons(fresh), QStringList());

    Box box(Box::CALC_REP_CLOSE);
    QPushButton *close = box.button(QDialogButtonBox::Close);
    box.setMode(Box::STANDARD);

    QCOMPARE(box.mode(), Box::STANDARD);
    QCOMPARE(box.button(QDialogButtonBox::Close), close);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
    QCOMPARE(ownButtons(box), QStringList());
}

void tst_zelQtDialogButtonBoxModes::numberOutsideTheTableChangesNoStandardButton_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("behind the last") << 13;
    QTest::newRow("far away") << 4711;
    QTest::newRow("negative") << -1;
}

void tst_zelQtDialogButtonBoxModes::numberOutsideTheTableChangesNoStandardButton()
{
    QFETCH(int, number);
    Box box(Box::CALC_CLOSE);
    box.setMode(static_cast<Box::Mode>(number));
    QCOMPARE(static_cast<int>(box.mode()), number);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
    QCOMPARE(ownButtons(box), QStringList());
    QVERIFY(!box.isReportPermitted());
}

void tst_zelQtDialogButtonBoxModes::editAndShowTakeTheStandardButtonsGiven()
{
    Box box;
    box.setMode(Box::EDIT, QDialogButtonBox::Close);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
    QCOMPARE(defaultButtons(box), QStringList("Bearbeiten"));
    box.setMode(Box::SHOW, QDialogButtonBox::Yes | QDialogButtonBox::No);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::Yes | QDialogButtonBox::No);
    QCOMPARE(defaultButtons(box), QStringList("Anzeigen"));
}

void tst_zelQtDialogButtonBoxModes::otherModesIgnoreTheStandardButtonsGiven()
{
    Box box;
    box.setMode(Box::CALC_CLOSE, QDialogButtonBox::Yes | QDialogButtonBox::No);
    QCOMPARE(box.standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Close));
}

void tst_zelQtDialogButtonBoxModes::changeOfModeKeepsNoEnabledState()
{
    Box box(Box::CALC_REP_OK_CANCEL);
    box.permitAccept();
    box.setCalcEnabled(false);
    QCOMPARE(ownButtons(box), QStringList({"-Berechnen", "Protokoll", "!Übernehmen"}));

    box.setMode(Box::CALC_REP_OK_CANCEL);

    QCOMPARE(ownButtons(box), QStringList({"Berechnen", "-Protokoll", "-!Übernehmen"}));
}

void tst_zelQtDialogButtonBoxModes::ownButtonsOutsideTheModeAreHiddenAndWithoutParent()
{
    QWidget window;
    const Box box(Box::CALC_CLOSE, &window);
    window.show();
    for (const QPushButton *button : {box.acceptButton(), box.deleteButton(), box.graphicsButton(),
                                      box.reportButton(), box.saveButton(), box.openButton()}) {
        QVERIFY(!button->parent());
        QVERIFY(!button->isVisible());
    }
    QVERIFY(box.calcButton()->isVisible());
}

QTEST_MAIN(tst_zelQtDialogButtonBoxModes)
#include "tst_zelQtDialogButtonBoxModes.moc"
