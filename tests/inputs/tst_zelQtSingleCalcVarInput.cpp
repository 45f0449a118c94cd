#include "zelQtSingleCalcVarInput.h"

#include "lineOnPage.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCheckBox.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

using Line = OpenLine<ZelQtSingleCalcVarInput>;
using Page = LineOnPage<ZelQtSingleCalcVarInput>;

class tst_zelQtSingleCalcVarInput : public QObject
{
    Q_OBJECT

private slots:
    // construction
    void fieldStandsInFrontOfTheUnit();
    void helpCodeStartsAtMinusOne();
    void focusOfTheLineIsThatOfTheField();
    void propertiesComeInOrder();
    void tabGoesFromLineToLineAndBack();

    // values
    void numberComesBackInTheUnitNamed();
    void wholeNumbersTruncate_data();
    void wholeNumbersTruncate();
    void unsignedNumbersReachBeyondInt();
    void onlyADifferentNumberIsWritten();
    void programIsSilent();
    void limitsHoldInTheDefaultUnit();
    void bottomAndTopOneByOne();
    void integerAndDecimals();
    void decimalsGoThroughTheVirtualDefaultDecimals();

    // protocol
    void typingAndLeavingComeHostFirst();
    void leavingWithoutChangeOnlyFinishesEditing();
    void disabledChangeSpeaksAtConfirmationOnly();
    void disabledConfirmationIsSilent();
    void dyingLineIsSilent();

    // units
    void defaultUnitShowsInTheLabel();
    void defaultUnitRedrawsThroughTheLabelOnly();
    void unitOfTheMenuReachesTheField();
    void currentUnitLeavesTheValue();

    // state
    void editableIsTheFieldsState();
    void clickOnTheEditButtonOpensTheField();
    void inactiveLineIsEmpty();
    void messageStateColoursTheField();

    // alignment
    void inputWidthIsThatOfTheField();
    void padsCentreTheField_data();
    void padsCentreTheField();
    void padsStandRoundFormulaFieldAndUnit();
    void narrowColumnRemovesThePads_data();
    void narrowColumnRemovesThePads();
    void padsAreMadeOnce();
};

void tst_zelQtSingleCalcVarInput::fieldStandsInFrontOfTheUnit()
{
    const Line line;
    QCOMPARE(line.fields().size(), 1);
    QCOMPARE(line.mLayout->indexOf(line.mFormula), 1);
    QCOMPARE(line.mLayout->indexOf(line.fields().at(0)), 2);
    QCOMPARE(line.mLayout->indexOf(line.mUnit), 3);
    QCOMPARE(line.mLayout->indexOf(line.mEditButton), 4);
}

void tst_zelQtSingleCalcVarInput::helpCodeStartsAtMinusOne()
{
    Line line;
    QCOMPARE(line.authorItCode(), -1);
    line.setAuthorItCode(17);
    QCOMPARE(line.authorItFile(), QStringLiteral("17.htm"));
}

void tst_zelQtSingleCalcVarInput::focusOfTheLineIsThatOfTheField()
{
    Page page;
    QCOMPARE(page.mLine->focusPolicy(), Qt::StrongFocus);
    QVERIFY(showAndActivate(&page.mPage));
    page.mLine->setFocus();
    QVERIFY(page.field(0)->hasFocus());
}

void tst_zelQtSingleCalcVarInput::propertiesComeInOrder()
{
    const QMetaObject &meta = ZelQtSingleCalcVarInput::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names.append(QLatin1String(meta.property(i).typeName()) + ' '
                     + QLatin1String(meta.property(i).name()));
    QCOMPARE(names,
             QStringList({QStringLiteral("bool editable"), QStringLiteral("bool integer"),
                          QStringLiteral("int decimals")}));
    Line line;
    QCOMPARE(line.property("editable").toBool(), true);
    QCOMPARE(line.property("integer").toBool(), false);
    QCOMPARE(line.property("decimals").toInt(), 4);
}

void tst_zelQtSingleCalcVarInput::tabGoesFromLineToLineAndBack()
{
    RecordedPage page;
    auto *layout = new QVBoxLayout(&page);
    const QVector<Line *> lines{new Line(&page), new Line(&page), new Line(&page)};
    for (Line *line : lines) {
        line->showSizeButton(true);
        line->setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
        line->setEditable(true);
        layout->addWidget(line);
    }
    QVERIFY(showAndActivate(&page) && focus(lines.at(0)->fields().at(0)));
    QTest::keyClick(&page, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), lines.at(1)->fields().at(0));
    QTest::keyClick(&page, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), lines.at(2)->fields().at(0));
    QTest::keyClick(&page, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), lines.at(1)->fields().at(0));
    QTest::keyClick(&page, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), lines.at(0)->fields().at(0));
}

void tst_zelQtSingleCalcVarInput::numberComesBackInTheUnitNamed()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(2.5, QStringLiteral("m"));
    double value = 0;
    line.getWert(value, QString());
    QCOMPARE(value, 2500.0);
    line.setWert(4, QString());
    line.getWert(value, QStringLiteral("mm"));
    QCOMPARE(value, 4.0);
}

void tst_zelQtSingleCalcVarInput::wholeNumbersTruncate_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("shortNumber");
    QTest::addColumn<int>("intNumber");
    QTest::addColumn<unsigned int>("unsignedNumber");
    QTest::newRow("down") << 2.75 << 2 << 2 << 2U;
    QTest::newRow("below zero") << -2.75 << -2 << -2 << 0U;
    QTest::newRow("beyond short") << 70000.5 << 32767 << 70000 << 70000U;
}

void tst_zelQtSingleCalcVarInput::wholeNumbersTruncate()
{
    QFETCH(double, value);
    QFETCH(int, shortNumber);
    QFETCH(int, intNumber);
    QFETCH(unsigned int, unsignedNumber);
    Line line;
    line.setDefaultUnit(QStringLiteral("m"));
    line.setWert(value, QString());
    short asShort = 99;
    int asInt = 99;
    unsigned int asUnsigned = 99;
    line.getWert(asShort, QStringLiteral("m"));
    line.getWert(asInt, QString());
    line.getWert(asUnsigned, QString());
    QCOMPARE(int(asShort), shortNumber);
    QCOMPARE(asInt, intNumber);
    QCOMPARE(asUnsigned, unsignedNumber);
}

void tst_zelQtSingleCalcVarInput::unsignedNumbersReachBeyondInt()
{
    Line line;
    line.setWert(3e9, QString());
    unsigned int number = 0;
    line.getWert(number, QString());
    QCOMPARE(number, 3000000000U);
}

void tst_zelQtSingleCalcVarInput::onlyADifferentNumberIsWritten()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1000, QString());
    bool dirty = false;
    zelAutoDirty<double> value(1, &dirty);
    line.getWert(value, QStringLiteral("m"));
    QVERIFY(!dirty);
    QCOMPARE(value.mValue, 1.0);
    line.getWert(value, QString());
    QVERIFY(dirty);
    QCOMPARE(value.mValue, 1000.0);
}

void tst_zelQtSingleCalcVarInput::programIsSilent()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1, QString());
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    page.mLine->setEditable(false);
    QCOMPARE(page.take(), QStringList());
}

void tst_zelQtSingleCalcVarInput::limitsHoldInTheDefaultUnit()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setCurrentUnit(QStringLiteral("m"));
    page.mLine->setRange(1000, 5000);
    QCOMPARE(page.mLine->bottom(), 1000.0);
    QCOMPARE(page.mLine->top(), 5000.0);
    page.mLine->setWert(9, QStringLiteral("m"));
    double value = 0;
    page.mLine->getWert(value, QString());
    QCOMPARE(value, 5000.0);
    // What is typed is held to the same limits, shown in the current unit.
    QVERIFY(page.enter(0));
    QTest::keyClick(page.field(0), Qt::Key_0);
    QVERIFY(page.leave());
    QCOMPARE(page.field(0)->text(), QStringLiteral("1"));
}

void tst_zelQtSingleCalcVarInput::bottomAndTopOneByOne()
{
    Line line;
    line.setBottom(2);
    line.setWert(-100, QString());
    double value = 0;
    line.getWert(value, QString());
    QCOMPARE(value, 2.0);
    line.setTop(7);
    line.setWert(100, QString());
    line.getWert(value, QString());
    QCOMPARE(value, 7.0);
    QCOMPARE(line.bottom(), 2.0);
    QCOMPARE(line.top(), 7.0);
}

void tst_zelQtSingleCalcVarInput::integerAndDecimals()
{
    Line line;
    line.setWert(2.75, QString());
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("2.7500"));
    line.setDecimals(1);
    QCOMPARE(line.defaultDecimals(), 1);
    line.setWert(2.71, QString());
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("2.7"));
    line.setTypeToInteger(true);
    QVERIFY(line.isOfTypeInteger());
    line.setWert(2.75, QString());
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("3"));
}

void tst_zelQtSingleCalcVarInput::decimalsGoThroughTheVirtualDefaultDecimals()
{
    class Derived : public ZelQtSingleCalcVarInput
    {
    public:
        void setDefaultDecimals(int decimals) override { mTaken = decimals; }
        int mTaken = 0;
    } line;
    line.setDecimals(3);
    QCOMPARE(line.mTaken, 3);
}

void tst_zelQtSingleCalcVarInput::typingAndLeavingComeHostFirst()
{
    Page page;
    QVERIFY(page.enter(0));
    QTest::keyClick(page.field(0), Qt::Key_5);
    QCOMPARE(page.take(), lineChanged);
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineConfirmed + lineFinished);
}

void tst_zelQtSingleCalcVarInput::leavingWithoutChangeOnlyFinishesEditing()
{
    Page page;
    page.mLine->setWert(1, QString());
    QVERIFY(page.enter(0));
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineFinished);
}

void tst_zelQtSingleCalcVarInput::disabledChangeSpeaksAtConfirmationOnly()
{
    Page page;
    page.mLine->disableValueChanged();
    QVERIFY(page.enter(0));
    QTest::keyClick(page.field(0), Qt::Key_5);
    QCOMPARE(page.take(), QStringList());
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineConfirmed + lineFinished);
}

void tst_zelQtSingleCalcVarInput::disabledConfirmationIsSilent()
{
    Page page;
    page.mLine->disableValueConfirmed();
    QVERIFY(page.enter(0));
    QTest::keyClick(page.field(0), Qt::Key_5);
    QVERIFY(page.leave());
    QCOMPARE(page.take(), lineChanged + lineFinished);
}

void tst_zelQtSingleCalcVarInput::dyingLineIsSilent()
{
    // The field loses the focus on the way out, with an edit that was not confirmed.
    EventRecorder recorder;
    {
        ZelQtSingleCalcVarInput line;
        recorder.record(&line, &ZelQtCalcVarInput::inputValueConfirmed,
                        QStringLiteral("confirmed"));
        recorder.record(&line, &ZelQtSingleCalcVarInput::editingFinished,
                        QStringLiteral("finished"));
        auto *field = line.findChild<ZelQtValueEdit *>();
        QVERIFY(showAndActivate(&line) && focus(field));
        QTest::keyClick(field, Qt::Key_1);
    }
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtSingleCalcVarInput::defaultUnitShowsInTheLabel()
{
    Line line;
    QCOMPARE(line.defaultUnit(), QString());
    QVERIFY(line.setProperty("defaultUnit", QStringLiteral("mm")));
    QCOMPARE(line.defaultUnit(), QStringLiteral("mm"));
    QCOMPARE(line.currentUnit(), QStringLiteral("mm"));
    QCOMPARE(line.mUnit->text(), QStringLiteral("mm"));
    QCOMPARE(line.fields().at(0)->currentUnitString(), QStringLiteral("mm"));
}

void tst_zelQtSingleCalcVarInput::defaultUnitRedrawsThroughTheLabelOnly()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1, QString());
    line.fields().at(0)->setText(QStringLiteral("77"));
    line.setDefaultUnit(QStringLiteral("mm"));
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("77"));
    line.setDefaultUnit(QStringLiteral("m"));
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("1.0000"));
    QCOMPARE(line.currentUnit(), QStringLiteral("m"));
}

void tst_zelQtSingleCalcVarInput::unitOfTheMenuReachesTheField()
{
    Page page;
    page.mLine->setDefaultUnit(QStringLiteral("mm"));
    page.mLine->setWert(1500, QString());
    page.mPage.show();
    QVERIFY(chooseUnit(page.mLine->mUnit, QStringLiteral("m")));
    QCOMPARE(page.field(0)->text(), QStringLiteral("1.5000"));
    double value = 0;
    page.mLine->getWert(value, QString());
    QCOMPARE(value, 1500.0);
    // The menu takes the focus, which ends the editing; nothing changed by that.
    QStringList events = page.take();
    events.removeAll(lineFinished.first());
    QCOMPARE(events, QStringList());
}

void tst_zelQtSingleCalcVarInput::currentUnitLeavesTheValue()
{
    Line line;
    line.setDefaultUnit(QStringLiteral("mm"));
    line.setWert(1500, QString());
    line.setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(line.fields().at(0)->text(), QStringLiteral("1.5000"));
    QCOMPARE(line.defaultUnit(), QStringLiteral("mm"));
    double value = 0;
    line.getWert(value, QString());
    QCOMPARE(value, 1500.0);
}

void tst_zelQtSingleCalcVarInput::editableIsTheFieldsState()
{
    Line line;
    QVERIFY(line.isEditable());
    line.setEditable(false);
    QVERIFY(line.fields().at(0)->isReadOnly());
    QVERIFY(!line.isEditable());
    line.fields().at(0)->setReadOnly(false);
    QVERIFY(line.isEditable());
    QVERIFY(line.setProperty("editable", false));
    QVERIFY(line.fields().at(0)->isReadOnly());
}

void tst_zelQtSingleCalcVarInput::clickOnTheEditButtonOpensTheField()
{
    Line line;
    line.setEditable(false);
    line.setEditButtonType(ZelQtCalcVarInput::CHECKBOX);
    line.mEditButton->checkBoxWidget()->click();
    QVERIFY(line.isEditable());
    line.mEditButton->checkBoxWidget()->click();
    QVERIFY(!line.isEditable());
}

void tst_zelQtSingleCalcVarInput::inactiveLineIsEmpty()
{
    Line line;
    line.setWert(1, QString());
    line.setActive(false);
    QVERIFY(!line.fields().at(0)->isEnabled());
    QCOMPARE(line.fields().at(0)->text(), QString());
}

void tst_zelQtSingleCalcVarInput::messageStateColoursTheField()
{
    Line line;
    line.setMessageState(1);
    QCOMPARE(colorOf(line.fields().at(0)), QColor(Qt::red));
    line.setMessageState(0);
    QVERIFY(colorOf(line.fields().at(0)) != QColor(Qt::red));
}

void tst_zelQtSingleCalcVarInput::inputWidthIsThatOfTheField()
{
    const Line line;
    QCOMPARE(line.inputWidth(), line.fields().at(0)->sizeHint().width());
    QVERIFY(line.inputWidth() > 0);
}

static QVector<QLabel *> pads(const Line &line)
{
    QVector<QLabel *> pads;
    const auto labels = line.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel *label : labels) {
        if (label->metaObject() == &QLabel::staticMetaObject)
            pads.append(label);
    }
    return pads;
}

void tst_zelQtSingleCalcVarInput::padsCentreTheField_data()
{
    QTest::addColumn<int>("beyond"); // the width of the field
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::newRow("even") << 20 << 10 << 10;
    QTest::newRow("odd, the right one is wider") << 25 << 12 << 13;
    QTest::newRow("one pixel") << 1 << 0 << 1;
}

void tst_zelQtSingleCalcVarInput::padsCentreTheField()
{
    QFETCH(int, beyond);
    QFETCH(int, left);
    QFETCH(int, right);
    Line line;
    line.adjustInputWidth(line.inputWidth() + beyond);
    QCOMPARE(pads(line).size(), 2);
    QCOMPARE(pads(line).at(0)->minimumWidth(), left);
    QCOMPARE(pads(line).at(0)->maximumWidth(), left);
    QCOMPARE(pads(line).at(1)->minimumWidth(), right);
    QCOMPARE(pads(line).at(1)->maximumWidth(), right);
}

void tst_zelQtSingleCalcVarInput::padsStandRoundFormulaFieldAndUnit()
{
    Line line;
    line.adjustInputWidth(line.inputWidth() + 20);
    QVector<QWidget *> found;
    for (int i = 0; i < 7; ++i)
        found.append(line.mLayout->itemAt(i)->widget());
    QCOMPARE(found,
             QVector<QWidget *>({line.mPrompt, pads(line).at(0), line.mFormula, line.fields().at(0),
                                 line.mUnit, pads(line).at(1), line.mEditButton}));
}

void tst_zelQtSingleCalcVarInput::narrowColumnRemovesThePads_data()
{
    QTest::addColumn<int>("beyond"); // the width of the field
    QTest::newRow("as wide as the field") << 0;
    QTest::newRow("narrower than the field") << -5;
}

void tst_zelQtSingleCalcVarInput::narrowColumnRemovesThePads()
{
    QFETCH(int, beyond);
    Line line;
    const int count = line.mLayout->count();
    line.adjustInputWidth(line.inputWidth() + 20);
    QCOMPARE(line.mLayout->count(), count + 2);
    line.adjustInputWidth(line.inputWidth() + beyond);
    QCOMPARE(line.mLayout->count(), count);
    QVERIFY(pads(line).isEmpty());
    line.adjustInputWidth(line.inputWidth() + 20);
    QCOMPARE(pads(line).size(), 2);
}

void tst_zelQtSingleCalcVarInput::padsAreMadeOnce()
{
    Line line;
    line.adjustInputWidth(line.inputWidth() + 20);
    const QVector<QLabel *> first = pads(line);
    line.adjustInputWidth(line.inputWidth() + 30);
    QCOMPARE(pads(line), first);
    QCOMPARE(first.at(0)->minimumWidth(), 15);
}

QTEST_MAIN(tst_zelQtSingleCalcVarInput)
#include "tst_zelQtSingleCalcVarInput.moc"
