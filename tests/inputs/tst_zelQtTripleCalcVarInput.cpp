#include "zelQtTripleCalcVarInput.h"

#include "lineOnPage.h"
#include "zelQtCheckBox.h"
#include "zelQtEditButton.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>
#include <QtTest>

using Line = OpenLine<ZelQtTripleCalcVarInput>;
using Page = LineOnPage<ZelQtTripleCalcVarInput>;
using Flags = QVector<bool>;

/// Reaches the slots of a line the way a form does.
class Trigger : public QObject
{
    Q_OBJECT
signals:
    void editable(bool editable);
    void react(bool first, bool second, bool third);
};

class tst_zelQtTripleCalcVarInput : public QObject
{
    Q_OBJECT

private slots:
    // construction
    void fieldsStandInFrontOfTheUnit();
    void tabGoesFirstThirdSecondOnPurpose();

    // values and units
    void threeNumbersInOneUnit();
    void thirdNumberAlone();
    void wholeNumbersTruncate();
    void defaultUnitIsThatOfAllFields();
    void currentUnitRedrawsAllFields();
    void unitOfTheMenuReachesAllFields();
    void integerAndDecimalsAreThoseOfAllFields();

    // protocol
    void eachFieldSpeaksForTheLine_data();
    void eachFieldSpeaksForTheLine();
    void disabledChangeLeavesTheThirdFieldOnPurpose();
    void disabledConfirmationLeavesTheThirdFieldOnPurpose();

    // state
    void setEditableOpensAllFields();
    void fieldsOpenOneByOne_data();
    void fieldsOpenOneByOne();
    void fieldThatReactsTellsEditable_data();
    void fieldThatReactsTellsEditable();
    void editButtonDrivesTheFieldsThatReact_data();
    void editButtonDrivesTheFieldsThatReact();
    void activeFieldByField();
    void thirdMessageStateGoesToTheSecondFieldOnPurpose();

    // misuse
    void misuseThrowsAndChangesNothing_data();
    void misuseThrowsAndChangesNothing();
    void misuseBySignalIsReportedAndChangesNothing_data();
    void misuseBySignalIsReportedAndChangesNothing();
    void narrowTestLetsOtherFlagsPassOnPurpose_data();
    void narrowTestLetsOtherFlagsPassOnPurpose();

    // alignment
    void inputWidthIsTheSumOfTheFields();
    void lineKeepsTheWidthOfItsFields();
};

void tst_zelQtTripleCalcVarInput::fieldsStandInFrontOfTheUnit()
{
    const Line line;
    QCOMPARE(line.fields().size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(line.mLayout->indexOf(line.fields().at(i)), 2 + i);
    QCOMPARE(line.mLayout->indexOf(line.mUnit), 5);
    QCOMPARE(line.mLayout->indexOf(line.mEditButton), 6);
}

void tst_zelQtTripleCalcVarInput::tabGoesFirstThirdSecondOnPurpose()
{
    Page page;
    QVERIFY(page.enter(0));
    QTest::keyClick(&page.mPage, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page.field(2));
    QTest::keyClick(&page.mPage, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page.field(1));
    QTest::keyClick(&page.mPage, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page.mNeighbour);
    QTest::keyClick(&page.mPage, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), page.field(1));
}

void tst_zelQtTripleCalcVarInput::threeNumbersInOneUnit()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1, 2, 3, QStringLiteral("cm"));
    double first = 0;
    double second = 0;
    double third = 0;
    line.getWert(first, second, third, QString());
    QCOMPARE(first, 10.0);
    QCOMPARE(second, 20.0);
    QCOMPARE(third, 30.0);
    line.getWert(first, second, third, QStringLiteral("cm"));
    QCOMPARE(third, 3.0);
    QCOMPARE(texts(line.fields()), QStringList({"10.0000", "20.0000", "30.0000"}));
}

void tst_zelQtTripleCalcVarInput::thirdNumberAlone()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert3(0.5, QStringLiteral("m"));
    double third = 0;
    line.getWert3(third, QString());
    QCOMPARE(third, 500.0);
    // The forms for fewer fields leave the others alone.
    line.setWert(1, 2, QString());
    line.setWert(9, QString());
    QCOMPARE(texts(line.fields()), QStringList({"9.0000", "2.0000", "500.0000"}));
}

void tst_zelQtTripleCalcVarInput::wholeNumbersTruncate()
{
    Line line;
    line.setWert(1.9, 2.9, -3.9, QString());
    short first = 0;
    short second = 0;
    short third = 0;
    line.getWert(first, second, third, QString());
    QCOMPARE(int(first), 1);
    QCOMPARE(int(second), 2);
    QCOMPARE(int(third), -3);
    third = 0;
    line.getWert3(third, QString());
    QCOMPARE(int(third), -3);
}

void tst_zelQtTripleCalcVarInput::defaultUnitIsThatOfAllFields()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    for (const ZelQtValueEdit *field : line.fields()) {
        QCOMPARE(field->defaultUnitString(), QStringLiteral("mm"));
        QCOMPARE(field->currentUnitString(), QStringLiteral("mm"));
    }
    QCOMPARE(line.mUnit->text(), QStringLiteral("mm"));
}

void tst_zelQtTripleCalcVarInput::currentUnitRedrawsAllFields()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1000, 2000, 3000, QString());
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1.0000", "2.0000", "3.0000"}));
    QCOMPARE(page.mLine->currentUnit(), QStringLiteral("m"));
    ZelQtCalcVarInput::checkUnits(&page.mPage, true);
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1000.0000", "2000.0000", "3000.0000"}));
    QCOMPARE(page.take(), QStringList());
}

void tst_zelQtTripleCalcVarInput::unitOfTheMenuReachesAllFields()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1000, 2000, 3000, QString());
    page.mPage.show();
    QVERIFY(chooseUnit(page.mLine->mUnit, QStringLiteral("m")));
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1.0000", "2.0000", "3.0000"}));
}

void tst_zelQtTripleCalcVarInput::integerAndDecimalsAreThoseOfAllFields()
{
    Line line;
    line.setDecimals(1);
    for (const ZelQtValueEdit *field : line.fields())
        QCOMPARE(field->defaultDecimals(), 1);
    line.setTypeToInteger(true);
    for (const ZelQtValueEdit *field : line.fields())
        QVERIFY(field->isOfTypeInteger());
}

void tst_zelQtTripleCalcVarInput::eachFieldSpeaksForTheLine_data()
{
    QTest::addColumn<int>("field");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("third") << 2;
}

void tst_zelQtTripleCalcVarInput::eachFieldSpeaksForTheLine()
{
    QFETCH(int, field);
    Page page;
    QVERIFY(page.enter(field));
    QTest::keyClick(page.field(field), Qt::Key_5);
    QCOMPARE(page.take(), lineChanged);
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineConfirmed + lineFinished);
}

void tst_zelQtTripleCalcVarInput::disabledChangeLeavesTheThirdFieldOnPurpose()
{
    Page page;
    page.mLine->disableValueChanged();
    const QStringList changes[] = {{}, {}, lineChanged};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(page.enter(i));
        QTest::keyClick(page.field(i), Qt::Key_5);
        QVERIFY(page.leave());
        QCOMPARE(page.take(), changes[i] + lineConfirmed + lineFinished);
    }
}

void tst_zelQtTripleCalcVarInput::disabledConfirmationLeavesTheThirdFieldOnPurpose()
{
    Page page;
    page.mLine->disableValueConfirmed();
    const QStringList confirmations[] = {{}, {}, lineConfirmed};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(page.enter(i));
        QTest::keyClick(page.field(i), Qt::Key_5);
        QVERIFY(page.leave());
        QCOMPARE(page.take(), lineChanged + confirmations[i] + lineFinished);
    }
}

void tst_zelQtTripleCalcVarInput::setEditableOpensAllFields()
{
    Line line;
    line.setEditable(false);
    QCOMPARE(closed(line.fields()), Flags({true, true, true}));
    line.setEditable(true);
    QCOMPARE(closed(line.fields()), Flags({false, false, false}));
}

void tst_zelQtTripleCalcVarInput::fieldsOpenOneByOne_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<Flags>("open");
    QTest::addColumn<bool>("checked");
    QTest::newRow("all react: the first tells")
        << Flags({true, true, true}) << Flags({true, false, false}) << true;
    QTest::newRow("all react, first closed")
        << Flags({true, true, true}) << Flags({false, true, true}) << false;
    QTest::newRow("second and third react: the second tells")
        << Flags({false, true, true}) << Flags({false, true, false}) << true;
    QTest::newRow("second and third react, second closed")
        << Flags({false, true, true}) << Flags({true, false, true}) << false;
    QTest::newRow("third reacts") << Flags({false, false, true}) << Flags({false, false, true})
                                  << true;
    QTest::newRow("third reacts and is closed")
        << Flags({false, false, true}) << Flags({true, true, false}) << false;
}

void tst_zelQtTripleCalcVarInput::fieldsOpenOneByOne()
{
    QFETCH(Flags, react);
    QFETCH(Flags, open);
    QFETCH(bool, checked);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::RADIOBUTTON);
    line.setConvertButtonMode(true);
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    line.setEditable(open.at(0), open.at(1), open.at(2));
    QCOMPARE(closed(line.fields()), Flags({!open.at(0), !open.at(1), !open.at(2)}));
    QCOMPARE(line.mEditButton->isChecked(), checked);
    QCOMPARE(line.smallButtons().at(1)->isEnabled(), checked);
}

void tst_zelQtTripleCalcVarInput::fieldThatReactsTellsEditable_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<int>("field");
    QTest::newRow("all react") << Flags({true, true, true}) << 0;
    QTest::newRow("first and third react") << Flags({true, false, true}) << 0;
    QTest::newRow("second and third react") << Flags({false, true, true}) << 1;
    QTest::newRow("second reacts") << Flags({false, true, false}) << 1;
    QTest::newRow("third reacts") << Flags({false, false, true}) << 2;
}

void tst_zelQtTripleCalcVarInput::fieldThatReactsTellsEditable()
{
    QFETCH(Flags, react);
    QFETCH(int, field);
    Line line;
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    for (int open = 0; open < 3; ++open) {
        line.setEditable(open == 0, open == 1, open == 2);
        QCOMPARE(line.isEditable(), open == field);
    }
}

void tst_zelQtTripleCalcVarInput::editButtonDrivesTheFieldsThatReact_data()
{
    QTest::addColumn<Flags>("react");
    QTest::newRow("all") << Flags({true, true, true});
    QTest::newRow("first and second") << Flags({true, true, false});
    QTest::newRow("second and third") << Flags({false, true, true});
    QTest::newRow("third") << Flags({false, false, true});
}

void tst_zelQtTripleCalcVarInput::editButtonDrivesTheFieldsThatReact()
{
    QFETCH(Flags, react);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setEditable(false, false, false);
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), Flags({!react.at(0), !react.at(1), !react.at(2)}));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), Flags({true, true, true}));
}

void tst_zelQtTripleCalcVarInput::activeFieldByField()
{
    Line line;
    line.setWert(1, 2, 3, QString());
    line.setActive(true, true, false);
    QCOMPARE(texts(line.fields()), QStringList({"1.0000", "2.0000", ""}));
    line.setActive(false, false, true);
    QVERIFY(!line.fields().at(0)->isEnabled());
    QVERIFY(!line.fields().at(1)->isEnabled());
    QVERIFY(line.fields().at(2)->isEnabled());
}

void tst_zelQtTripleCalcVarInput::thirdMessageStateGoesToTheSecondFieldOnPurpose()
{
    Line line;
    const QColor normal = colorOf(line.fields().at(2));
    line.setMessageState(1, 0, 2);
    QCOMPARE(colorOf(line.fields().at(0)), QColor(Qt::red));
    QCOMPARE(colorOf(line.fields().at(1)), QColor(255, 120, 100));
    QCOMPARE(colorOf(line.fields().at(2)), normal);
    line.setMessageState(0, 1, 0);
    QCOMPARE(colorOf(line.fields().at(1)), normal);
}

void tst_zelQtTripleCalcVarInput::misuseThrowsAndChangesNothing_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<bool>("setEditable");
    QTest::addColumn<QString>("text");
    const QString differs = QStringLiteral("ZelQtTripleCalcVarInput::setEditable(bool) wurde für "
                                           "Eingabefelder mit unterschiedlichem Verhalten "
                                           "verwendet");
    QTest::newRow("setEditable, first reacts") << Flags({true, false, false}) << true << differs;
    QTest::newRow("setEditable, second and third react")
        << Flags({false, true, true}) << true << differs;
    QTest::newRow("setReactToToggle") << Flags({true, true, true}) << false
                                      << QStringLiteral("ZelQtTripleCalcVarInput::"
                                                        "setReactToToggle() kein Eingabefeld "
                                                        "kommuniziert mit dem Edit-Button");
}

void tst_zelQtTripleCalcVarInput::misuseThrowsAndChangesNothing()
{
    QFETCH(Flags, react);
    QFETCH(bool, setEditable);
    QFETCH(QString, text);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    const QString thrown = thrownBy([&] {
        if (setEditable)
            line.setEditable(false);
        else
            line.setReactToToggle(false, false, false);
    });
    QCOMPARE(thrown, text);
    QCOMPARE(closed(line.fields()), Flags({false, false, false}));
    // The flags are the former ones.
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), react);
}

void tst_zelQtTripleCalcVarInput::misuseBySignalIsReportedAndChangesNothing_data()
{
    misuseThrowsAndChangesNothing_data();
}

void tst_zelQtTripleCalcVarInput::misuseBySignalIsReportedAndChangesNothing()
{
    QFETCH(Flags, react);
    QFETCH(bool, setEditable);
    QFETCH(QString, text);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    Trigger trigger;
    connect(&trigger, &Trigger::editable, &line,
            qOverload<bool>(&ZelQtTripleCalcVarInput::setEditable));
    connect(&trigger, &Trigger::react, &line, &ZelQtTripleCalcVarInput::setReactToToggle);
    const InternReports reports;
    if (setEditable)
        emit trigger.editable(false);
    else
        emit trigger.react(false, false, false);
    QCOMPARE(reports.mReports, QStringList(QStringLiteral("zelQtTripleCalcVarInput.cpp: ") + text));
    QCOMPARE(closed(line.fields()), Flags({false, false, false}));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), react);
}

void tst_zelQtTripleCalcVarInput::narrowTestLetsOtherFlagsPassOnPurpose_data()
{
    QTest::addColumn<Flags>("react");
    QTest::newRow("third differs") << Flags({true, true, false});
    QTest::newRow("second differs") << Flags({true, false, true});
}

void tst_zelQtTripleCalcVarInput::narrowTestLetsOtherFlagsPassOnPurpose()
{
    QFETCH(Flags, react);
    Line line;
    line.setReactToToggle(react.at(0), react.at(1), react.at(2));
    QCOMPARE(thrownBy([&line] { line.setEditable(false); }), QString());
    QCOMPARE(closed(line.fields()), react);
}

void tst_zelQtTripleCalcVarInput::inputWidthIsTheSumOfTheFields()
{
    const Line line;
    int width = 12;
    for (const ZelQtValueEdit *field : line.fields())
        width += field->sizeHint().width();
    QCOMPARE(line.inputWidth(), width);
}

void tst_zelQtTripleCalcVarInput::lineKeepsTheWidthOfItsFields()
{
    Line line;
    const int count = line.mLayout->count();
    line.adjustInputWidth(line.inputWidth() + 100);
    QCOMPARE(line.mLayout->count(), count);
}

QTEST_MAIN(tst_zelQtTripleCalcVarInput)
#include "tst_zelQtTripleCalcVarInput.moc"
