#include "zelQtDoubleCalcVarInput.h"

#include "lineOnPage.h"
#include "zelQtCheckBox.h"
#include "zelQtEditButton.h"
#include "zelQtUnitLabel.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QtTest>

using Line = OpenLine<ZelQtDoubleCalcVarInput>;
using Page = LineOnPage<ZelQtDoubleCalcVarInput>;
using Flags = QVector<bool>;

/// Reaches the slots of a line the way a form does.
class Trigger : public QObject
{
    Q_OBJECT
signals:
    void editable(bool editable);
    void react(bool first, bool second);
};

class tst_zelQtDoubleCalcVarInput : public QObject
{
    Q_OBJECT

private slots:
    // construction
    void fieldsStandInFrontOfTheUnit();
    void tabGoesFromTheFirstFieldToTheSecond();

    // values and units
    void bothNumbersInOneUnit();
    void secondNumberAlone();
    void wholeNumbersTruncate();
    void onlyDifferentNumbersAreWritten();
    void defaultUnitIsThatOfBothFields();
    void currentUnitRedrawsBothFields();
    void unitOfTheMenuReachesBothFields();
    void checkedUnitsReachBothFields();
    void integerAndDecimalsAreThoseOfBothFields();

    // protocol
    void eachFieldSpeaksForTheLine_data();
    void eachFieldSpeaksForTheLine();
    void disabledChangeSilencesBothFields();
    void disabledConfirmationSilencesBothFields();

    // state
    void setEditableOpensBothFields();
    void fieldsOpenOneByOne_data();
    void fieldsOpenOneByOne();
    void fieldThatReactsTellsEditable_data();
    void fieldThatReactsTellsEditable();
    void editButtonDrivesTheFieldsThatReact_data();
    void editButtonDrivesTheFieldsThatReact();
    void typeAndModeNeverThrow();
    void activeFieldByField();
    void messageStateFieldByField();

    // misuse
    void misuseThrowsAndChangesNothing_data();
    void misuseThrowsAndChangesNothing();
    void misuseBySignalIsReportedAndChangesNothing_data();
    void misuseBySignalIsReportedAndChangesNothing();
    void rightUseBySignalWorks();

    // alignment
    void inputWidthIsTheSumOfTheFields();
    void lineKeepsTheWidthOfItsFields();
};

void tst_zelQtDoubleCalcVarInput::fieldsStandInFrontOfTheUnit()
{
    const Line line;
    QCOMPARE(line.fields().size(), 2);
    QCOMPARE(line.mLayout->indexOf(line.fields().at(0)), 2);
    QCOMPARE(line.mLayout->indexOf(line.fields().at(1)), 3);
    QCOMPARE(line.mLayout->indexOf(line.mUnit), 4);
}

void tst_zelQtDoubleCalcVarInput::tabGoesFromTheFirstFieldToTheSecond()
{
    Page page;
    QVERIFY(page.enter(0));
    QTest::keyClick(&page.mPage, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page.field(1));
    QTest::keyClick(&page.mPage, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page.mNeighbour);
}

void tst_zelQtDoubleCalcVarInput::bothNumbersInOneUnit()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1, 2, QStringLiteral("mm"));
    double first = 0;
    double second = 0;
    line.getWert(first, second, QStringLiteral("cm"));
    QCOMPARE(first, 0.1);
    QCOMPARE(second, 0.2);
    line.getWert2(second, QString());
    QCOMPARE(second, 2.0);
    QCOMPARE(texts(line.fields()), QStringList({"1.0000", "2.0000"}));
}

void tst_zelQtDoubleCalcVarInput::secondNumberAlone()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1, 2, QString());
    line.setWert2(0.5, QStringLiteral("m"));
    double first = 0;
    double second = 0;
    line.getWert(first, QString());
    line.getWert2(second, QString());
    QCOMPARE(first, 1.0);
    QCOMPARE(second, 500.0);
    line.setWert(9, QString());
    QCOMPARE(texts(line.fields()), QStringList({"9.0000", "500.0000"}));
}

void tst_zelQtDoubleCalcVarInput::wholeNumbersTruncate()
{
    Line line;
    line.setWert(1.9, -2.9, QString());
    short first = 0;
    short second = 0;
    line.getWert(first, second, QString());
    QCOMPARE(int(first), 1);
    QCOMPARE(int(second), -2);
    second = 0;
    line.getWert2(second, QString());
    QCOMPARE(int(second), -2);
}

void tst_zelQtDoubleCalcVarInput::onlyDifferentNumbersAreWritten()
{
    Line line;
    line.setWert(1, 2, QString());
    bool firstDirty = false;
    bool secondDirty = false;
    zelAutoDirty<double> first(1, &firstDirty);
    zelAutoDirty<double> second(1, &secondDirty);
    line.getWert(first, second, QString());
    QVERIFY(!firstDirty);
    QVERIFY(secondDirty);
    QCOMPARE(second.mValue, 2.0);
}

void tst_zelQtDoubleCalcVarInput::defaultUnitIsThatOfBothFields()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    for (const ZelQtValueEdit *field : line.fields()) {
        QCOMPARE(field->defaultUnitString(), QStringLiteral("mm"));
        QCOMPARE(field->currentUnitString(), QStringLiteral("mm"));
    }
    QCOMPARE(line.mUnit->text(), QStringLiteral("mm"));
}

void tst_zelQtDoubleCalcVarInput::currentUnitRedrawsBothFields()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1000, 2000, QString());
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1.0000", "2.0000"}));
    QCOMPARE(page.mLine->currentUnit(), QStringLiteral("m"));
    // Both fields take it even where the label already shows it.
    page.field(1)->setCurrentUnit(QStringLiteral("cm"));
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1.0000", "2.0000"}));
    QCOMPARE(page.take(), QStringList());
}

void tst_zelQtDoubleCalcVarInput::unitOfTheMenuReachesBothFields()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1000, 2000, QString());
    page.mPage.show();
    QVERIFY(chooseUnit(page.mLine->mUnit, QStringLiteral("m")));
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1.0000", "2.0000"}));
}

void tst_zelQtDoubleCalcVarInput::checkedUnitsReachBothFields()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1000, 2000, QString());
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    ZelQtCalcVarInput::checkUnits(&page.mPage, true);
    QCOMPARE(texts(page.mLine->fields()), QStringList({"1000.0000", "2000.0000"}));
}

void tst_zelQtDoubleCalcVarInput::integerAndDecimalsAreThoseOfBothFields()
{
    Line line;
    line.setDecimals(1);
    line.setWert(1.25, 2.71, QString());
    QCOMPARE(line.fields().at(1)->text(), QStringLiteral("2.7"));
    QCOMPARE(line.fields().at(0)->defaultDecimals(), 1);
    line.setTypeToInteger(true);
    for (const ZelQtValueEdit *field : line.fields())
        QVERIFY(field->isOfTypeInteger());
}

void tst_zelQtDoubleCalcVarInput::eachFieldSpeaksForTheLine_data()
{
    QTest::addColumn<int>("field");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void tst_zelQtDoubleCalcVarInput::eachFieldSpeaksForTheLine()
{
    QFETCH(int, field);
    Page page;
    QVERIFY(page.enter(field));
    QTest::keyClick(page.field(field), Qt::Key_5);
    QCOMPARE(page.take(), lineChanged);
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineConfirmed + lineFinished);
}

void tst_zelQtDoubleCalcVarInput::disabledChangeSilencesBothFields()
{
    Page page;
    page.mLine->disableValueChanged();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(page.enter(i));
        QTest::keyClick(page.field(i), Qt::Key_5);
        QVERIFY(page.leave());
        QCOMPARE(page.take(), lineConfirmed + lineFinished);
    }
}

void tst_zelQtDoubleCalcVarInput::disabledConfirmationSilencesBothFields()
{
    Page page;
    page.mLine->disableValueConfirmed();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(page.enter(i));
        QTest::keyClick(page.field(i), Qt::Key_5);
        QVERIFY(page.leave());
        QCOMPARE(page.take(), lineChanged + lineFinished);
    }
}

void tst_zelQtDoubleCalcVarInput::setEditableOpensBothFields()
{
    Line line;
    line.setEditable(false);
    QCOMPARE(closed(line.fields()), Flags({true, true}));
    line.setEditable(true);
    QCOMPARE(closed(line.fields()), Flags({false, false}));
}

void tst_zelQtDoubleCalcVarInput::fieldsOpenOneByOne_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<Flags>("open");
    QTest::addColumn<bool>("checked");
    QTest::newRow("both react, first open") << Flags({true, true}) << Flags({true, false}) << true;
    QTest::newRow("both react, second open")
        << Flags({true, true}) << Flags({false, true}) << false;
    QTest::newRow("first reacts") << Flags({true, false}) << Flags({false, true}) << false;
    QTest::newRow("second reacts, first open")
        << Flags({false, true}) << Flags({true, false}) << false;
    QTest::newRow("second reacts, second open")
        << Flags({false, true}) << Flags({false, true}) << true;
}

void tst_zelQtDoubleCalcVarInput::fieldsOpenOneByOne()
{
    QFETCH(Flags, react);
    QFETCH(Flags, open);
    QFETCH(bool, checked);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setSizeButtonMode(true);
    line.setReactToToggle(react.at(0), react.at(1));
    line.setEditable(open.at(0), open.at(1));
    QCOMPARE(closed(line.fields()), Flags({!open.at(0), !open.at(1)}));
    QCOMPARE(line.mEditButton->isChecked(), checked);
    QCOMPARE(line.smallButtons().at(0)->isEnabled(), checked);
}

void tst_zelQtDoubleCalcVarInput::fieldThatReactsTellsEditable_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<bool>("editable"); // with the first field open alone
    QTest::newRow("both react") << Flags({true, true}) << true;
    QTest::newRow("first reacts") << Flags({true, false}) << true;
    QTest::newRow("second reacts") << Flags({false, true}) << false;
}

void tst_zelQtDoubleCalcVarInput::fieldThatReactsTellsEditable()
{
    QFETCH(Flags, react);
    QFETCH(bool, editable);
    Line line;
    line.setReactToToggle(react.at(0), react.at(1));
    line.setEditable(true, false);
    QCOMPARE(line.isEditable(), editable);
    line.setEditable(false, true);
    QCOMPARE(line.isEditable(), !editable);
}

void tst_zelQtDoubleCalcVarInput::editButtonDrivesTheFieldsThatReact_data()
{
    QTest::addColumn<Flags>("react");
    QTest::newRow("both") << Flags({true, true});
    QTest::newRow("first") << Flags({true, false});
    QTest::newRow("second") << Flags({false, true});
}

void tst_zelQtDoubleCalcVarInput::editButtonDrivesTheFieldsThatReact()
{
    QFETCH(Flags, react);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setEditable(false, false);
    line.setReactToToggle(react.at(0), react.at(1));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), Flags({!react.at(0), !react.at(1)}));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), Flags({true, true}));
}

void tst_zelQtDoubleCalcVarInput::typeAndModeNeverThrow()
{
    Line line;
    line.setReactToToggle(false, true);
    line.setEditable(false, true);
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    QVERIFY(line.mEditButton->isChecked());
    line.setEditButtonMode(false);
    QVERIFY(!line.mEditButton->isChecked());
    QCOMPARE(closed(line.fields()), Flags({true, false}));
}

void tst_zelQtDoubleCalcVarInput::activeFieldByField()
{
    Line line;
    line.setWert(1, 2, QString());
    line.setActive(true, false);
    QCOMPARE(texts(line.fields()), QStringList({"1.0000", ""}));
    line.setActive(false, true);
    QVERIFY(!line.fields().at(0)->isEnabled());
    QVERIFY(line.fields().at(1)->isEnabled());
}

void tst_zelQtDoubleCalcVarInput::messageStateFieldByField()
{
    Line line;
    line.setMessageState(1, 2);
    QCOMPARE(colorOf(line.fields().at(0)), QColor(Qt::red));
    QCOMPARE(colorOf(line.fields().at(1)), QColor(255, 120, 100));
}

void tst_zelQtDoubleCalcVarInput::misuseThrowsAndChangesNothing_data()
{
    QTest::addColumn<Flags>("react");
    QTest::addColumn<bool>("setEditable");
    QTest::addColumn<QString>("text");
    const QString differs = QStringLiteral("ZelQtDoubleCalcVarInput::setEditable(bool) wurde für "
                                           "Eingabefelder mit unterschiedlichem Verhalten "
                                           "verwendet");
    QTest::newRow("setEditable, first reacts") << Flags({true, false}) << true << differs;
    QTest::newRow("setEditable, second reacts") << Flags({false, true}) << true << differs;
    QTest::newRow("setReactToToggle") << Flags({true, true}) << false
                                      << QStringLiteral("ZelQtDoubleCalcVarInput::"
                                                        "setReactToToggle() kein Eingabefeld "
                                                        "kommuniziert mit dem Edit-Button");
}

void tst_zelQtDoubleCalcVarInput::misuseThrowsAndChangesNothing()
{
    QFETCH(Flags, react);
    QFETCH(bool, setEditable);
    QFETCH(QString, text);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setReactToToggle(react.at(0), react.at(1));
    const QString thrown = thrownBy([&] {
        if (setEditable)
            line.setEditable(false);
        else
            line.setReactToToggle(false, false);
    });
    QCOMPARE(thrown, text);
    QCOMPARE(closed(line.fields()), Flags({false, false}));
    QVERIFY(line.mEditButton->isChecked());
    // The flags are the former ones.
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), react);
}

void tst_zelQtDoubleCalcVarInput::misuseBySignalIsReportedAndChangesNothing_data()
{
    misuseThrowsAndChangesNothing_data();
}

void tst_zelQtDoubleCalcVarInput::misuseBySignalIsReportedAndChangesNothing()
{
    QFETCH(Flags, react);
    QFETCH(bool, setEditable);
    QFETCH(QString, text);
    Line line;
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.setReactToToggle(react.at(0), react.at(1));
    Trigger trigger;
    connect(&trigger, &Trigger::editable, &line,
            qOverload<bool>(&ZelQtDoubleCalcVarInput::setEditable));
    connect(&trigger, &Trigger::react, &line, &ZelQtDoubleCalcVarInput::setReactToToggle);
    const InternReports reports;
    if (setEditable)
        emit trigger.editable(false);
    else
        emit trigger.react(false, false);
    QCOMPARE(reports.mReports, QStringList(QStringLiteral("zelQtDoubleCalcVarInput.cpp: ") + text));
    QCOMPARE(closed(line.fields()), Flags({false, false}));
    line.mEditButton->checkBoxWidget()->click();
    QCOMPARE(closed(line.fields()), react);
}

void tst_zelQtDoubleCalcVarInput::rightUseBySignalWorks()
{
    Line line;
    Trigger trigger;
    connect(&trigger, &Trigger::editable, &line,
            qOverload<bool>(&ZelQtDoubleCalcVarInput::setEditable));
    const InternReports reports;
    emit trigger.editable(false);
    QCOMPARE(closed(line.fields()), Flags({true, true}));
    QCOMPARE(reports.mReports, QStringList());
}

void tst_zelQtDoubleCalcVarInput::inputWidthIsTheSumOfTheFields()
{
    const Line line;
    QCOMPARE(line.inputWidth(),
             line.fields().at(0)->sizeHint().width() + 6 + line.fields().at(1)->sizeHint().width());
}

void tst_zelQtDoubleCalcVarInput::lineKeepsTheWidthOfItsFields()
{
    Line line;
    const int count = line.mLayout->count();
    line.adjustInputWidth(line.inputWidth() + 100);
    QCOMPARE(line.mLayout->count(), count);
    QCOMPARE(line.fields().at(0)->minimumWidth(), 0);
}

QTEST_MAIN(tst_zelQtDoubleCalcVarInput)
#include "tst_zelQtDoubleCalcVarInput.moc"
