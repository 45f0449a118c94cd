#include "zelQtUnitLabel.h"

#include "meta.h"
#include "recorder.h"
#include "tarvexModule.h"
#include "zelUIMultiVar.h"
#include "zelUIStdElement.h"

#include <QtTest>

#include <algorithm>

namespace {

// Counts the calls of the virtual operation.
class CountingLabel : public ZelQtUnitLabel
{
public:
    bool setUnit(ZelDimensions::Unit unit, bool defaultToo) override
    {
        mFlags.append(defaultToo);
        return ZelQtUnitLabel::setUnit(unit, defaultToo);
    }
    QList<bool> mFlags;
};

void recordAll(EventRecorder &recorder, ZelQtUnitLabel &label)
{
    recorder.recordArguments(&label, qOverload<QString>(&ZelQtUnitLabel::unitChanged),
                             QStringLiteral("unitChanged"));
    recorder.recordArguments(&label, qOverload<QString, QString>(&ZelQtUnitLabel::unitChanged),
                             QStringLiteral("unitChanged"));
    recorder.record(&label, &ZelQtUnitLabel::changedByUser, QStringLiteral("changedByUser"));
}

QStringList unitsOf(ZelDimensions::Unit unit)
{
    QStringList list;
    for (const std::wstring &text : ZelDimensions::getStringList(ZelDimensions::getType(unit)))
        list.append(QString::fromStdWString(text));
    return list;
}

} // namespace

class tst_zelQtUnitLabel : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void freshLabelHasNoUnit();
    void unitOfTheConstructor();
    void isAsHighAsQLabelOnPurpose();
    void setUnitTellsTheNewUnitThenBoth();
    void setUnitOfTheSameTextTellsNothing();
    void refusedUnitTellsNothing();
    void unknownUnitTextChangesNothing();
    void setCurrentUnitOfTheCurrentUnitDoesNothing();
    void setCurrentUnitPassesTheFlagOn();
    void flagMakesItTheDefaultUnitToo();
    void propertyReadsAndWritesTheUnit();
    void checkUnitKeepsOrTakesTheDefault_data();
    void checkUnitKeepsOrTakesTheDefault();
    void setupShowsTheUnitOfTheVariable();
    void setDataShowsADynamicUnit();
    void setDataShowsTheUnitChosenEarlierSilently();
    void updateUnitShowsTheUnitOfTheModelSilently();
    void widthForEveryUnitOfTheDimension();
    void widthWithoutUnitIsZero();
    void widthOfADynamicUnitIsThatOfItsText();
    void modelHidesButNeverDisables();
};

void tst_zelQtUnitLabel::cleanup()
{
    TarvexModule::Setup = nullptr;
}

void tst_zelQtUnitLabel::freshLabelHasNoUnit()
{
    const ZelQtUnitLabel label;
    QCOMPARE(label.currentUnit(), QString());
    QCOMPARE(label.text(), QString());
    QCOMPARE(label.mCurrentUnit, ZelDimensions::NoUnit);
    QCOMPARE(label.mDefaultUnit, ZelDimensions::NoUnit);
}

void tst_zelQtUnitLabel::unitOfTheConstructor()
{
    const ZelQtUnitLabel label(QStringLiteral("kN"));
    QCOMPARE(label.currentUnit(), QStringLiteral("kN"));
    QCOMPARE(label.text(), QStringLiteral("kN"));
    QCOMPARE(label.mCurrentUnit, ZelDimensions::Kilonewton);
}

void tst_zelQtUnitLabel::isAsHighAsQLabelOnPurpose()
{
    const ZelQtUnitLabel label(QStringLiteral("kN"));
    QCOMPARE(label.sizeHint(), label.QLabel::sizeHint());
    QVERIFY(label.sizeHint().height() != label.ZelQtLabel::sizeHint().height());
}

void tst_zelQtUnitLabel::setUnitTellsTheNewUnitThenBoth()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    EventRecorder recorder;
    recordAll(recorder, label);
    QVERIFY(label.setUnit(ZelDimensions::Centimetre, false));
    QCOMPARE(
        recorder.take(),
        QStringList({QStringLiteral("unitChanged(cm)"), QStringLiteral("unitChanged(mm, cm)")}));
    QCOMPARE(label.text(), QStringLiteral("cm"));
}

void tst_zelQtUnitLabel::setUnitOfTheSameTextTellsNothing()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    EventRecorder recorder;
    recordAll(recorder, label);
    QVERIFY(label.setUnit(ZelDimensions::Millimetre, false));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtUnitLabel::refusedUnitTellsNothing()
{
    ZelUIStdElement line;
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.setModelParent(&line);
    EventRecorder recorder;
    recordAll(recorder, label);
    QVERIFY(!label.setUnit(ZelDimensions::Newton, false));
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(label.text(), QStringLiteral("mm"));
    QCOMPARE(label.mCurrentUnit, ZelDimensions::Millimetre);
    QVERIFY(label.setUnit(ZelDimensions::Metre, false));
    QCOMPARE(label.text(), QStringLiteral("m"));
}

void tst_zelQtUnitLabel::unknownUnitTextChangesNothing()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    EventRecorder recorder;
    recordAll(recorder, label);
    label.setCurrentUnit(QStringLiteral("Elle"));
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(label.currentUnit(), QStringLiteral("mm"));
}

void tst_zelQtUnitLabel::setCurrentUnitOfTheCurrentUnitDoesNothing()
{
    CountingLabel label;
    label.setCurrentUnit(QStringLiteral("mm"));
    QCOMPARE(label.mFlags.size(), 1);
    label.setCurrentUnit(QStringLiteral("mm"));
    QCOMPARE(label.mFlags.size(), 1);
}

void tst_zelQtUnitLabel::setCurrentUnitPassesTheFlagOn()
{
    CountingLabel label;
    label.setCurrentUnit(QStringLiteral("mm"), true);
    label.setCurrentUnit(QStringLiteral("cm"), false);
    label.setCurrentUnit(QStringLiteral("m"));
    QCOMPARE(label.mFlags, QList<bool>({true, false, false}));
}

void tst_zelQtUnitLabel::flagMakesItTheDefaultUnitToo()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.setCurrentUnit(QStringLiteral("cm"), false);
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Millimetre);
    label.setCurrentUnit(QStringLiteral("m"), true);
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Metre);
}

void tst_zelQtUnitLabel::propertyReadsAndWritesTheUnit()
{
    ZelQtUnitLabel label;
    QVERIFY(label.setProperty("currentUnit", QStringLiteral("bar")));
    QCOMPARE(label.property("currentUnit").toString(), QStringLiteral("bar"));
    QCOMPARE(label.mCurrentUnit, ZelDimensions::Bar);
}

void tst_zelQtUnitLabel::checkUnitKeepsOrTakesTheDefault_data()
{
    QTest::addColumn<bool>("keep");
    QTest::addColumn<bool>("customary");
    QTest::addColumn<QString>("unit");
    QTest::newRow("keep") << true << false << "cm";
    QTest::newRow("default unit") << false << false << "mm";
    QTest::newRow("keep, US customary") << true << true << "cm";
    QTest::newRow("default unit, US customary") << false << true << "in";
}

void tst_zelQtUnitLabel::checkUnitKeepsOrTakesTheDefault()
{
    QFETCH(bool, keep);
    QFETCH(bool, customary);
    TarvexSetup setup;
    setup.mUSCustomaryUnits = customary ? 1 : 0;
    TarvexModule::Setup = &setup;
    CountingLabel byText;
    byText.checkUnit(QStringLiteral("cm"), keep);
    QTEST(byText.currentUnit(), "unit");
    CountingLabel byUnit;
    byUnit.checkUnit(ZelDimensions::Centimetre, keep);
    QTEST(byUnit.currentUnit(), "unit");
    QCOMPARE(byText.mFlags, QList<bool>({false}));
    QCOMPARE(byUnit.mFlags, QList<bool>({false}));
}

void tst_zelQtUnitLabel::setupShowsTheUnitOfTheVariable()
{
    ZelUIMultiVar variable(L"F", ZelDimensions::Newton);
    AttrMap attributes;
    ZelQtUnitLabel label;
    label.setup(&variable, attributes);
    QCOMPARE(label.text(), QStringLiteral("N"));
    QCOMPARE(label.objectName(), QStringLiteral("F_unit"));
    QCOMPARE(label.whatsThis(), QStringLiteral("F"));
}

void tst_zelQtUnitLabel::setDataShowsADynamicUnit()
{
    ZelQtUnitLabel label;
    QVERIFY(label.setUnit(ZelDimensions::DynamicUnit, true));
    label.mDynamicText = L"N/mm<sup>2</sup>";
    QCOMPARE(label.text(), QString());
    label.setData(nullptr, 0);
    QCOMPARE(label.text(), QStringLiteral("N/mm<sup>2</sup>"));
}

void tst_zelQtUnitLabel::setDataShowsTheUnitChosenEarlierSilently()
{
    Meta meta;
    auto *variable = meta.add<ZelUIMultiVar>(L"F", ZelDimensions::Newton);
    meta.setCurrentUnit(*variable, 2, ZelDimensions::Kilonewton);
    AttrMap attributes;
    ZelQtUnitLabel label;
    label.setup(variable, attributes);
    EventRecorder recorder;
    recordAll(recorder, label);
    label.setData(&meta, 2);
    QCOMPARE(label.text(), QStringLiteral("kN"));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtUnitLabel::updateUnitShowsTheUnitOfTheModelSilently()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    EventRecorder recorder;
    recordAll(recorder, label);
    label.mCurrentUnit = ZelDimensions::Centimetre;
    QCOMPARE(label.text(), QStringLiteral("mm"));
    label.updateUnit();
    QCOMPARE(label.text(), QStringLiteral("cm"));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtUnitLabel::widthForEveryUnitOfTheDimension()
{
    const ZelQtUnitLabel label(QStringLiteral("mm"));
    int widest = 0;
    for (const QString &unit : unitsOf(ZelDimensions::Millimetre))
        widest = std::max(widest, label.fontMetrics().horizontalAdvance(unit));
    QCOMPARE(label.absUnitWidth(), widest);

    const ZelQtUnitLabel narrow(QStringLiteral("m"));
    QVERIFY(widest > narrow.plainTextWidth());
    QCOMPARE(narrow.absUnitWidth(), widest);
}

void tst_zelQtUnitLabel::widthWithoutUnitIsZero()
{
    QCOMPARE(ZelQtUnitLabel().absUnitWidth(), 0);
}

void tst_zelQtUnitLabel::widthOfADynamicUnitIsThatOfItsText()
{
    ZelQtUnitLabel label;
    QVERIFY(label.setUnit(ZelDimensions::DynamicUnit, true));
    label.mDynamicText = L"N/mm<sup>2</sup>";
    QCOMPARE(label.absUnitWidth(), label.fontMetrics().horizontalAdvance(QStringLiteral("N/mm2")));
}

void tst_zelQtUnitLabel::modelHidesButNeverDisables()
{
    QWidget window;
    ZelUIObject line;
    ZelQtUnitLabel label(QStringLiteral("mm"), &window);
    label.setModelParent(&line);
    Meta meta;
    line.mEnabled = false;
    line.mVisible = false;
    label.updateState(&meta, 0);
    QVERIFY(label.isHidden());
    QVERIFY(label.isEnabled());
    line.mVisible = true;
    label.updateState(&meta, 0);
    QVERIFY(!label.isHidden());
}

QTEST_MAIN(tst_zelQtUnitLabel)
#include "tst_zelQtUnitLabel.moc"
