#include "zelQtCalcVarInput.h"

#include "openLine.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCheckBox.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFormulaLabel.h"

#include <QMetaEnum>
#include <QTranslator>
#include <QtTest>

using Line = OpenLine<ZelQtCalcVarInput>;
using Type = ZelQtCalcVarInput::EditButtonType;

/// Answers with the context, so that a test sees where a text is looked up.
class ContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(context) + '|' + QString::fromUtf8(text);
    }
};

class tst_zelQtCalcVarProperties : public QObject
{
    Q_OBJECT

private slots:
    // properties
    void propertiesComeInOrder();
    void property_data();
    void property();
    void editButtonTypesAreKnownByName();
    void hiddenAsPropertyGivesTheLabelTypeOnPurpose();
    void promptIsTextAndStatusTip();
    void formulaIsTheText();
    void buttonPropertyIsTheFlagAndNotTheScreen_data();
    void buttonPropertyIsTheFlagAndNotTheScreen();
    void infoPassesToTheButton();

    // computing buttons
    void buttonInItsModeFollowsEditable_data();
    void buttonInItsModeFollowsEditable();
    void buttonInItsModeFollowsTheToggle_data();
    void buttonInItsModeFollowsTheToggle();
    void modeSwitchedOffLeavesTheStateOnPurpose_data();
    void modeSwitchedOffLeavesTheStateOnPurpose();
    void buttonIsEnabledByTheProgram();
    void tipsAndHelpCodesReachTheButtons();
    void languageSetsTheTips();
    void tipsKeepTheTagsOfThePromptOnPurpose();
    void tipsTakeThePromptRaw();
    void tipsComeFromTheContextOfTheBase();
};

void tst_zelQtCalcVarProperties::propertiesComeInOrder()
{
    const QMetaObject &meta = ZelQtCalcVarInput::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names.append(QLatin1String(meta.property(i).name()));
    QCOMPARE(names.join(' '),
             QStringLiteral("prompt formula defaultUnit editButtonType editButtonMode sizeButton "
                            "sizeButtonMode sizeButtonFunction convertButton convertButtonMode "
                            "convertButtonFunction plusButton plusButtonMode plusButtonFunction "
                            "databaseButton settingsButton infoButton infoFile infoId "
                            "offerButton"));
}

void tst_zelQtCalcVarProperties::property_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QVariant>("fresh");
    QTest::addColumn<QVariant>("written");
    const auto row = [](const char *name, const char *type, const QVariant &fresh,
                        const QVariant &written) {
        QTest::newRow(name) << QByteArray(type) << fresh << written;
    };
    const auto flag = [&row](const char *name, bool fresh) { row(name, "bool", fresh, !fresh); };
    const auto text = [&row](const char *name) { row(name, "QString", QString(), "some text"); };
    text("prompt");
    text("formula");
    // The base has no field that could hold a unit.
    row("defaultUnit", "QString", QString(), QString());
    row("editButtonType", "EditButtonType", int(Type::CHECKBOX), int(Type::RADIOBUTTON));
    flag("editButtonMode", true);
    for (const char *button : {"sizeButton", "convertButton", "plusButton"}) {
        flag(button, false);
        flag(QByteArray(button).append("Mode").constData(), false);
        text(QByteArray(button).append("Function").constData());
    }
    flag("databaseButton", false);
    flag("settingsButton", false);
    flag("infoButton", false);
    text("infoFile");
    row("infoId", "int", 0, 42);
    flag("offerButton", false);
}

void tst_zelQtCalcVarProperties::property()
{
    QFETCH(QByteArray, type);
    QFETCH(QVariant, fresh);
    QFETCH(QVariant, written);
    const char *name = QTest::currentDataTag();
    Line line;
    const QMetaObject *meta = line.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name));
    QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable());
    QVERIFY(QByteArray(property.typeName()).endsWith(type));
    const bool isEnum = property.isEnumType();
    const auto read = [&] { return isEnum ? line.property(name).toInt() : line.property(name); };
    QCOMPARE(QVariant(read()), fresh);
    QVERIFY(line.setProperty(name, written));
    QCOMPARE(QVariant(read()), written);
}

void tst_zelQtCalcVarProperties::editButtonTypesAreKnownByName()
{
    const QMetaEnum types = QMetaEnum::fromType<Type>();
    QCOMPARE(types.keyCount(), 4);
    QCOMPARE(types.keyToValue("LABEL"), 0);
    QCOMPARE(types.keyToValue("CHECKBOX"), 1);
    QCOMPARE(types.keyToValue("RADIOBUTTON"), 2);
    QCOMPARE(types.keyToValue("HIDDEN"), 3);
}

void tst_zelQtCalcVarProperties::hiddenAsPropertyGivesTheLabelTypeOnPurpose()
{
    Line line;
    QVERIFY(line.setProperty("editButtonType", QStringLiteral("HIDDEN")));
    QCOMPARE(line.editButtonType(), Type::LABEL);
    QCOMPARE(line.mEditButton->currentIndex(), 0);
    QVERIFY(!line.mEditButton->isHidden());
}

void tst_zelQtCalcVarProperties::promptIsTextAndStatusTip()
{
    Line line;
    line.setPrompt(QStringLiteral("Länge"));
    QCOMPARE(line.mPrompt->text(), QStringLiteral("Länge"));
    QCOMPARE(line.mPrompt->statusTip(), QStringLiteral("Länge"));
    QCOMPARE(line.prompt(), QStringLiteral("Länge"));
}

void tst_zelQtCalcVarProperties::formulaIsTheText()
{
    Line line;
    line.setFormula(QStringLiteral("L<sub>1</sub>"));
    QCOMPARE(line.mFormula->text(), QStringLiteral("L<sub>1</sub>"));
    QCOMPARE(line.formula(), QStringLiteral("L<sub>1</sub>"));
}

void tst_zelQtCalcVarProperties::buttonPropertyIsTheFlagAndNotTheScreen_data()
{
    QTest::addColumn<int>("button");
    const char *names[] = {"sizeButton",     "convertButton", "plusButton", "databaseButton",
                           "settingsButton", "infoButton",    "offerButton"};
    for (int i = 0; i < 7; ++i)
        QTest::newRow(names[i]) << i;
}

void tst_zelQtCalcVarProperties::buttonPropertyIsTheFlagAndNotTheScreen()
{
    QFETCH(int, button);
    const char *name = QTest::currentDataTag();
    Line line;
    QVERIFY(line.setProperty(name, true));
    QVERIFY(!line.smallButtons().at(button)->isVisible());
    QVERIFY(line.property(name).toBool());
    const auto buttons = line.smallButtons();
    for (int i = 0; i < 7; ++i)
        QCOMPARE(!buttons.at(i)->isHidden(), i == button);
    QVERIFY(line.setProperty(name, false));
    QVERIFY(line.smallButtons().at(button)->isHidden());
}

void tst_zelQtCalcVarProperties::infoPassesToTheButton()
{
    Line line;
    line.setInfoId(7);
    line.setInfoFile(QStringLiteral("info.htm"));
    QCOMPARE(line.mInfoButton->currentInfoId(), 7);
    QCOMPARE(line.infoId(), 7);
    QCOMPARE(line.mInfoButton->currentInfoFile(), QStringLiteral("info.htm"));
    QCOMPARE(line.infoFile(), QStringLiteral("info.htm"));
}

void tst_zelQtCalcVarProperties::buttonInItsModeFollowsEditable_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("sizeButtonMode") << 0;
    QTest::newRow("convertButtonMode") << 1;
    QTest::newRow("plusButtonMode") << 2;
}

void tst_zelQtCalcVarProperties::buttonInItsModeFollowsEditable()
{
    QFETCH(int, button);
    ProbeLine line;
    line.setEditable(false);
    const auto enabled = [&line] {
        QVector<bool> flags;
        for (int i = 0; i < 3; ++i)
            flags.append(line.smallButtons().at(i)->isEnabled());
        return flags;
    };
    QCOMPARE(enabled(), QVector<bool>({true, true, true}));
    // At once it takes the state of the line, and then follows it; the others stay.
    line.setProperty(QTest::currentDataTag(), true);
    QVector<bool> oneClosed{true, true, true};
    oneClosed[button] = false;
    QCOMPARE(enabled(), oneClosed);
    line.setEditable(true);
    QCOMPARE(enabled(), QVector<bool>({true, true, true}));
    line.setEditable(false);
    QCOMPARE(enabled(), oneClosed);
}

void tst_zelQtCalcVarProperties::buttonInItsModeFollowsTheToggle_data()
{
    buttonInItsModeFollowsEditable_data();
}

void tst_zelQtCalcVarProperties::buttonInItsModeFollowsTheToggle()
{
    QFETCH(int, button);
    ProbeLine line;
    line.setEditButtonType(Type::CHECKBOX);
    line.setEditable(false);
    line.setProperty(QTest::currentDataTag(), true);
    line.mEditButton->checkBoxWidget()->click();
    QVERIFY(line.smallButtons().at(button)->isEnabled());
    line.mEditButton->checkBoxWidget()->click();
    QVERIFY(!line.smallButtons().at(button)->isEnabled());
}

void tst_zelQtCalcVarProperties::modeSwitchedOffLeavesTheStateOnPurpose_data()
{
    buttonInItsModeFollowsEditable_data();
}

void tst_zelQtCalcVarProperties::modeSwitchedOffLeavesTheStateOnPurpose()
{
    QFETCH(int, button);
    ProbeLine line;
    line.setProperty(QTest::currentDataTag(), true);
    line.setEditable(false);
    line.setProperty(QTest::currentDataTag(), false);
    QVERIFY(!line.smallButtons().at(button)->isEnabled());
    line.setEditable(true);
    QVERIFY(!line.smallButtons().at(button)->isEnabled());
}

void tst_zelQtCalcVarProperties::buttonIsEnabledByTheProgram()
{
    Line line;
    line.enableSizeButton(false);
    QVERIFY(!line.mSizeButton->isEnabled());
    line.enableConvertButton(false);
    QVERIFY(!line.mConvertButton->isEnabled());
    line.enablePlusButton(false);
    QVERIFY(!line.mPlusButton->isEnabled());
    line.enableSizeButton(true);
    line.enableConvertButton(true);
    line.enablePlusButton(true);
    QVERIFY(line.mSizeButton->isEnabled() && line.mConvertButton->isEnabled()
            && line.mPlusButton->isEnabled());
}

void tst_zelQtCalcVarProperties::tipsAndHelpCodesReachTheButtons()
{
    Line line;
    line.setSizeButtonToolTip(QStringLiteral("tip 1"));
    line.setConvertButtonToolTip(QStringLiteral("tip 2"));
    line.setPlusButtonToolTip(QStringLiteral("tip 3"));
    line.setSizeButtonStatusTip(QStringLiteral("status 1"));
    line.setConvertButtonStatusTip(QStringLiteral("status 2"));
    line.setPlusButtonStatusTip(QStringLiteral("status 3"));
    line.setSizeButtonAuthorItCode(1);
    line.setConvertButtonAuthorItCode(2);
    line.setPlusButtonAuthorItCode(3);
    for (int i = 0; i < 3; ++i) {
        const auto *button = static_cast<ZelQtToolButton *>(line.smallButtons().at(i));
        QCOMPARE(button->toolTip(), QStringLiteral("tip %1").arg(i + 1));
        QCOMPARE(button->statusTip(), QStringLiteral("status %1").arg(i + 1));
        QCOMPARE(button->getAuthorItCode(), i + 1);
    }
}

void tst_zelQtCalcVarProperties::languageSetsTheTips()
{
    Line line;
    line.setPrompt(QStringLiteral("Länge"));
    QCOMPARE(line.mSizeButton->toolTip(), QString());
    line.retranslateStrings();
    QCOMPARE(line.mSizeButton->toolTip(), QStringLiteral("Länge auslegen"));
    QCOMPARE(line.mConvertButton->toolTip(), QStringLiteral("Länge umrechnen"));
    QCOMPARE(line.mPlusButton->toolTip(), QStringLiteral("Länge definieren"));
}

void tst_zelQtCalcVarProperties::tipsKeepTheTagsOfThePromptOnPurpose()
{
    Line line;
    line.setPrompt(QStringLiteral("Länge L<sub>1</sub>"));
    line.retranslateStrings();
    QCOMPARE(line.mSizeButton->toolTip(), QStringLiteral("Länge L<sub>1</sub> auslegen"));
}

void tst_zelQtCalcVarProperties::tipsTakeThePromptRaw()
{
    Line line;
    line.setPrompt(QStringLiteral("50 %1"));
    line.retranslateStrings();
    QCOMPARE(line.mPlusButton->toolTip(), QStringLiteral("50 %1 definieren"));
}

void tst_zelQtCalcVarProperties::tipsComeFromTheContextOfTheBase()
{
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    Line line;
    line.setPrompt(QStringLiteral("Länge"));
    line.retranslateStrings();
    QCoreApplication::removeTranslator(&translator);
    const QString context = QStringLiteral("ZelQtCalcVarInput|");
    QCOMPARE(line.mSizeButton->toolTip(), context + QStringLiteral("Länge auslegen"));
    QCOMPARE(line.mConvertButton->toolTip(), context + QStringLiteral("Länge umrechnen"));
    QCOMPARE(line.mPlusButton->toolTip(), context + QStringLiteral("Länge definieren"));
}

QTEST_MAIN(tst_zelQtCalcVarProperties)
#include "tst_zelQtCalcVarProperties.moc"
