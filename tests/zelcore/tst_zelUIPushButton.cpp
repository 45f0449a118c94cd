#include "mask.h"
#include "zelLanguage.h"
#include "zelUIPushButton.h"
#include "zelUIStdButtonBox.h"
#include "zelUIVarLists.h"

#include <QtTest>

namespace {

class Button : public ZelUIPushButton
{
public:
    using ZelUIPushButton::setup;
    using ZelUIPushButton::ZelUIPushButton;
    void setup(ZelUIVar *variable, AttrMap &attributes) override
    {
        ZelUIPushButton::setup(variable, attributes);
        ++mNamed;
    }
    int mNamed = 0;
};

} // namespace

class tst_zelUIPushButton : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { setZelLanguage(ZelLanguage::German); }
    void numbersOfTheTypesAreFixed();
    void nodeEndsInThePlainSetup();
    void textButtonEndsInThePlainSetup();
    void tableAndLubricantDoNot();
    void iconFileMakesAnIconButton();
    void iconTypesAreIconOnly();
    void bothFormsOfUpdateStateSetTheFlags();
    void infoTargets();
    void infoAttributes();
    void otherButtonsOfTheLineTakeNoInfo();
    void menuItemsAreKeptInOrder();
    void tellsItself();
    void tipsOfTheKinds_data();
    void tipsOfTheKinds();
    void tipsWithoutAQuantity_data();
    void tipsWithoutAQuantity();
    void givenTipsBeatThoseOfTheKind();
    void givenQuantityBeatsTheVariable();
    void boxHoldsItsButtons();
    void boxForgetsDeadButtons();
};

void tst_zelUIPushButton::numbersOfTheTypesAreFixed()
{
    using Type = ZelUIPushButtonType;
    const std::vector<Type> types{Type::Push,     Type::Size,     Type::Convert,
                                  Type::Plus,     Type::Info,     Type::Offer,
                                  Type::Database, Type::Settings, Type::File};
    QVector<int> numbers;
    for (const Type type : types)
        numbers << static_cast<int>(type);
    QCOMPARE(numbers, QVector<int>({0, 1, 2, 3, 4, 5, 6, 7, 9}));
}

void tst_zelUIPushButton::nodeEndsInThePlainSetup()
{
    ZelDomNode node(L"button");
    node.setAttribute(L"name", L"go");
    node.setAttribute(L"text", L"Los");
    node.setAttribute(L"tooltip", L"Tipp");
    node.setAttribute(L"status", L"Zeile");
    node.setAttribute(L"function", L"Go");
    node.setAttribute(L"argument", L"7");
    Button button;
    QVERIFY(!button.hasModelTexts());
    button.setup(&node);
    QCOMPARE(button.mNamed, 1);
    QCOMPARE(toText(button.buttonText()), QString("Los"));
    QCOMPARE(toText(button.tooltip()), QString("Tipp"));
    QCOMPARE(toText(button.statustip()), QString("Zeile"));
    QCOMPARE(toText(button.getItemName()), QString("go"));
    QVERIFY(button.modelFunction().mFunction == L"Go" && button.modelFunction().mArgument == L"7");
    QVERIFY(button.hasModelTexts());
    QVERIFY(!button.mIconOnly);
}

void tst_zelUIPushButton::textButtonEndsInThePlainSetup()
{
    ZelUIVarTextButton variable(L"go");
    variable.mText.setText(L"Los");
    variable.mFunction = L"Go";
    AttrMap attributes;
    Button button;
    button.setup(&variable, attributes);
    QCOMPARE(button.mNamed, 1);
    QCOMPARE(toText(button.buttonText()), QString("Los"));
    QVERIFY(button.modelFunction().mFunction == L"Go");
}

// Their widgets name themselves after the call: once is enough.
void tst_zelUIPushButton::tableAndLubricantDoNot()
{
    ZelUIVarTable table(L"loads");
    ZelUIVarLubList lubricant(L"lubricant");
    ZelUIButtonData data;
    data.mType = ZelUIPushButtonType::Plus;
    data.mText.setText(L"Zeile");
    data.mIconFile = L":/plus.svg";
    data.mFunction = {L"AddRow", L""};
    AttrMap attributes;
    Button first;
    first.setup(&table, attributes, &data);
    QCOMPARE(first.mNamed, 0);
    QVERIFY(first.pushButtonType() == ZelUIPushButtonType::Plus);
    QVERIFY(first.mIconOnly);
    QCOMPARE(toText(first.buttonText()), QString("Zeile"));
    QVERIFY(first.modelFunction().mFunction == L"AddRow");
    Button second;
    second.setup(&lubricant, attributes, true, false);
    QCOMPARE(second.mNamed, 0);
    QCOMPARE(toText(second.getName()), QString("lubricant"));
}

void tst_zelUIPushButton::iconFileMakesAnIconButton()
{
    ZelUIPushButton button;
    QVERIFY(!button.addIconFile(L""));
    QVERIFY(!button.mIconOnly);
    QVERIFY(button.addIconFile(L":/x.svg"));
    QVERIFY(button.mIconOnly);
}

void tst_zelUIPushButton::iconTypesAreIconOnly()
{
    ZelUIVarBool variable(L"on");
    AttrMap attributes;
    for (const int type : {1, 2, 3, 4, 5, 6, 7, 9}) {
        ZelUIPushButton button(static_cast<ZelUIPushButtonType>(type));
        static_cast<ZelUIObject &>(button).setup(&variable, attributes);
        QVERIFY2(button.mIconOnly, qPrintable(QString::number(type)));
    }
}

void tst_zelUIPushButton::bothFormsOfUpdateStateSetTheFlags()
{
    ZelUIPushButton button;
    button.updateState(false, true);
    QVERIFY((button.state() == ZelUIState{false, true, false}));
    button.updateState(true, false);
    QVERIFY((button.state() == ZelUIState{true, false, false}));
    button.updateState(ZelUIState{false, false, true});
    QVERIFY((button.state() == ZelUIState{false, false, true}));
}

void tst_zelUIPushButton::infoTargets()
{
    ZelUIPushButton button(ZelUIPushButtonType::Info);
    QCOMPARE(button.currentInfoId(), 0);
    QVERIFY(button.currentInfoFile().empty());
    button.setInfoId(8);
    QCOMPARE(button.currentInfoId(), 8);
    button.setInfoIds({3, 5});
    button.setInfoIndex(1);
    QCOMPARE(button.currentInfoId(), 5);
    button.setInfoIndex(2);
    QCOMPARE(button.currentInfoId(), 0);
    button.setInfoIndex(-1);
    QCOMPARE(button.currentInfoId(), 0);

    button.setInfoFile(L"one.htm");
    QCOMPARE(toText(button.currentInfoFile()), QString("one.htm"));
    button.setInfoFiles({L"a.htm", L"b.htm"});
    button.setInfoIndex(1);
    QCOMPARE(toText(button.currentInfoFile()), QString("b.htm"));
}

void tst_zelUIPushButton::infoAttributes()
{
    AttrMap attributes{{L"info", L"12, 14"}, {L"infofile", L"a.htm"}};
    ZelUIPushButton button(ZelUIPushButtonType::Info);
    static_cast<ZelUIObject &>(button).setup(nullptr, attributes);
    QVERIFY((button.mInfoIds == std::vector<int>{12, 14}));
    QCOMPARE(button.mInfoFiles.size(), size_t(1));
    const ZelUIInfoStruct told = button.toInfoStruct();
    QVERIFY(told.mIds == button.mInfoIds && told.mFiles == button.mInfoFiles && told.mIndex == 0);
}

void tst_zelUIPushButton::otherButtonsOfTheLineTakeNoInfo()
{
    AttrMap attributes{{L"info", L"12"}};
    ZelUIPushButton button(ZelUIPushButtonType::Size);
    static_cast<ZelUIObject &>(button).setup(nullptr, attributes);
    QVERIFY(button.mInfoIds.empty());
}

void tst_zelUIPushButton::menuItemsAreKeptInOrder()
{
    ZelUIPushButton button;
    ZelUITextHandler text;
    text.setText(L"eins");
    button.addMenuItem(text, {L"A", L""});
    text.setText(L"zwei");
    button.addMenuItem(text, {L"B", L"x"});
    QCOMPARE(button.modelMenu().size(), size_t(2));
    QCOMPARE(toText(button.modelMenu()[0].first.getText()), QString("eins"));
    QVERIFY(button.modelMenu()[1].second.mFunction == L"B");
}

void tst_zelUIPushButton::tellsItself()
{
    ZelUIVarTextButton variable(L"go");
    variable.mText.setText(L"Los");
    AttrMap attributes;
    ZelUIPushButton button;
    button.setup(&variable, attributes);
    button.mEnabled = false;
    const ZelUIPushButtonStruct told = button.toPushButtonStruct();
    QVERIFY(told.mName == L"go" && told.mText == L"Los" && !told.mState.mEnabled);
    QVERIFY(told.mType == ZelUIPushButtonType::Push);
}

void tst_zelUIPushButton::tipsOfTheKinds_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("toolTips");
    QTest::addColumn<QStringList>("statusTips");
    // German and English.
    QTest::newRow("push") << 0 << QStringList{"", ""} << QStringList{"", ""};
    QTest::newRow("size") << 1 << QStringList{"Breite auslegen", "Size Breite"}
                          << QStringList{"Berechnet den Wert anhand von Rechenmethoden",
                                         "Computes the value by design methods"};
    QTest::newRow("convert") << 2 << QStringList{"Breite umrechnen", "Convert Breite"}
                             << QStringList{"Berechnet den Wert anhand von Umrechnungsformeln",
                                            "Computes the value by conversion formulas"};
    QTest::newRow("plus takes it as it stands")
        << 3 << QStringList{"Breite", "Breite"}
        << QStringList{"Zeigt zusätzliche Daten in einem Dialog an",
                       "Shows additional data in a dialog"};
    QTest::newRow("info") << 4 << QStringList{"Zusatzinfo", "Additional information"}
                          << QStringList{"Zeigt zusätzliche Informationen im Infofenster an",
                                         "Shows additional information in the info window"};
    QTest::newRow("offer") << 5
                           << QStringList{"Angebot für ein Werkzeug anfragen",
                                          "Request an offer for a tool"}
                           << QStringList{"Fragt ein Angebot für ein Werkzeug an",
                                          "Requests an offer for a tool"};
    QTest::newRow("database") << 6 << QStringList{"Datenbank bearbeiten", "Edit database"}
                              << QStringList{"Bearbeitet den Eintrag in der Datenbank",
                                             "Edits the entry in the database"};
    QTest::newRow("settings")
        << 7 << QStringList{"Spezifische Einstellungen für Breite", "Specific settings for Breite"}
        << QStringList{"Zeigt spezifische Einstellungen für den Wert in einem Dialog an",
                       "Shows specific settings of the value in a dialog"};
    QTest::newRow("file") << 9 << QStringList{"", ""} << QStringList{"", ""};
}

void tst_zelUIPushButton::tipsOfTheKinds()
{
    QFETCH(int, type);
    ZelUIVarBool variable(L"b");
    variable.mText.setText(L"Breite");
    AttrMap attributes;
    Button button(static_cast<ZelUIPushButtonType>(type));
    button.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QStringList toolTips;
    QStringList statusTips;
    for (const ZelLanguage language : {ZelLanguage::German, ZelLanguage::English}) {
        setZelLanguage(language);
        toolTips << toText(button.tooltip());
        statusTips << toText(button.statustip());
    }
    QTEST(toolTips, "toolTips");
    QTEST(statusTips, "statusTips");
}

void tst_zelUIPushButton::tipsWithoutAQuantity_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("size") << 1 << "";
    QTest::newRow("convert") << 2 << "";
    QTest::newRow("plus") << 3 << "";
    QTest::newRow("info") << 4 << "Zusatzinfo";
    QTest::newRow("settings") << 7 << "Spezifische Einstellungen";
}

void tst_zelUIPushButton::tipsWithoutAQuantity()
{
    QFETCH(int, type);
    const ZelUIPushButton button(static_cast<ZelUIPushButtonType>(type));
    QTEST(toText(button.tooltip()), "toolTip");
    QVERIFY(!button.statustip().empty());
    // A fixed tip is none that was given: widgets of hand-made masks keep the tips of their owners.
    QVERIFY(!button.hasModelTexts());
}

void tst_zelUIPushButton::givenTipsBeatThoseOfTheKind()
{
    ZelUIVarTable table(L"loads");
    table.mText.setText(L"Lasten");
    ZelUIButtonData data;
    data.mType = ZelUIPushButtonType::Size;
    data.mToolTip.setText(L"100 %1");
    AttrMap attributes;
    Button button;
    button.setup(&table, attributes, &data);
    QCOMPARE(toText(button.tooltip()), QString("100 %1"));
    QCOMPARE(toText(button.statustip()), QString("Berechnet den Wert anhand von Rechenmethoden"));
    ZelDomNode node(L"button");
    node.setAttribute(L"status", L"Zeile");
    Button info(ZelUIPushButtonType::Info);
    info.setup(&node);
    QCOMPARE(toText(info.tooltip()), QString("Zusatzinfo"));
    QCOMPARE(toText(info.statustip()), QString("Zeile"));
}

void tst_zelUIPushButton::givenQuantityBeatsTheVariable()
{
    ZelUIVarBool variable(L"b");
    variable.mText.setText(L"Breite");
    ZelUITextHandler quantity;
    quantity.setText(L"Zahnbreite");
    AttrMap attributes;
    Button button(ZelUIPushButtonType::Size);
    button.setModelQuantity(quantity);
    button.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QCOMPARE(toText(button.tooltip()), QString("Zahnbreite auslegen"));
}

void tst_zelUIPushButton::boxHoldsItsButtons()
{
    ZelUIStdButtonBox box;
    QVERIFY(box.empty());
    ZelUIPushButton first;
    ZelUIPushButton second;
    box.modelAddButton(&first);
    box.modelAddButton(&second);
    box.modelAddButton(&second);
    box.modelAddButton(nullptr);
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.getPushButton(1), &second);
    QVERIFY(!box.getPushButton(2) && !box.getPushButton(-1));
    box.updateState(false);
    QVERIFY(!box.mVisible);
}

void tst_zelUIPushButton::boxForgetsDeadButtons()
{
    ZelUIStdButtonBox box;
    {
        ZelUIPushButton button;
        box.modelAddButton(&button);
    }
    QVERIFY(box.empty());
}

QTEST_GUILESS_MAIN(tst_zelUIPushButton)
#include "tst_zelUIPushButton.moc"
