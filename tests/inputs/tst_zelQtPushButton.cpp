#include "zelQtPushButton.h"

#include "meta.h"
#include "zelDomNode.h"
#include "zelUIVarKinds.h"

#include <QMenu>
#include <QtTest>

namespace {

ZelUITextHandler text(const wchar_t *german)
{
    ZelUITextHandler handler;
    handler.setText(german);
    return handler;
}

} // namespace

class tst_zelQtPushButton : public QObject
{
    Q_OBJECT

private slots:
    void constructorsSetTypeTextAndIcon();
    void setupByAVariableNamesTheWidget();
    void setupByAButtonVariableNamesTheWidget();
    void setupByANodeNamesTheWidget();
    void retranslateShowsTheTextsOfTheModel();
    void everyFormOfUpdateStateReachesTheButton_data();
    void everyFormOfUpdateStateReachesTheButton();
    void stateOfTheModelReachesTheButton();
    void hasNoMenuBeforeTheFirstItem();
    void firstItemMakesTheMenuAndTheSecondReusesIt();
    void itemsStandInTheListOfTheModelToo();
    void itemsAreNotConnected();
    void itemsFollowTheLanguage();
};

void tst_zelQtPushButton::constructorsSetTypeTextAndIcon()
{
    const ZelQtPushButton plain;
    QCOMPARE(plain.pushButtonType(), ZelUIPushButtonType::Push);
    QCOMPARE(plain.text(), QString());
    QVERIFY(plain.icon().isNull());
    const ZelQtPushButton typed(ZelUIPushButtonType::Database);
    QCOMPARE(typed.pushButtonType(), ZelUIPushButtonType::Database);
    const ZelQtPushButton withText(QStringLiteral("Berechnen"));
    QCOMPARE(withText.text(), QStringLiteral("Berechnen"));
    QCOMPARE(withText.pushButtonType(), ZelUIPushButtonType::Push);
    const ZelQtPushButton withIcon(QStringLiteral(":/button_plus.svg"), QStringLiteral("Mehr"));
    QCOMPARE(withIcon.text(), QStringLiteral("Mehr"));
    QVERIFY(!withIcon.icon().isNull());
    QCOMPARE(withIcon.pushButtonType(), ZelUIPushButtonType::Push);
}

void tst_zelQtPushButton::setupByAVariableNamesTheWidget()
{
    ZelUIVarBool variable(L"tip");
    AttrMap attributes;
    ZelQtPushButton button;
    button.setup(&variable, attributes);
    QCOMPARE(button.objectName(), QStringLiteral("tip"));
    QCOMPARE(button.whatsThis(), QStringLiteral("tip"));
}

void tst_zelQtPushButton::setupByAButtonVariableNamesTheWidget()
{
    ZelUIVarTextButton variable(L"optimise");
    variable.mText.setText(L"Optimieren");
    variable.mStatusTip.setText(L"Sucht die leichteste Feder");
    variable.mFunction = L"optimise";
    AttrMap attributes;
    ZelQtPushButton button;
    button.setup(&variable, attributes);
    QCOMPARE(button.objectName(), QStringLiteral("optimise"));
    button.retranslate();
    QCOMPARE(button.text(), QStringLiteral("Optimieren"));
    QCOMPARE(button.statusTip(), QStringLiteral("Sucht die leichteste Feder"));
}

void tst_zelQtPushButton::setupByANodeNamesTheWidget()
{
    ZelDomNode node(L"button");
    node.setAttribute(L"name", L"more");
    node.setAttribute(L"text", L"Mehr");
    ZelQtPushButton button;
    button.setup(&node);
    QCOMPARE(button.objectName(), QStringLiteral("more"));
    button.retranslate();
    QCOMPARE(button.text(), QStringLiteral("Mehr"));
}

void tst_zelQtPushButton::retranslateShowsTheTextsOfTheModel()
{
    ZelDomNode node(L"button");
    node.setAttribute(L"text", L"Mehr");
    node.setAttribute(L"tooltip", L"Weitere Daten");
    node.setAttribute(L"status", L"Zeigt weitere Daten");
    ZelQtPushButton button(QStringLiteral("alt"));
    button.setup(&node);
    QCOMPARE(button.text(), QStringLiteral("alt"));
    button.retranslate();
    QCOMPARE(button.text(), QStringLiteral("Mehr"));
    QCOMPARE(button.toolTip(), QStringLiteral("Weitere Daten"));
    QCOMPARE(button.statusTip(), QStringLiteral("Zeigt weitere Daten"));
}

void tst_zelQtPushButton::everyFormOfUpdateStateReachesTheButton_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::newRow("both") << true << true;
    QTest::newRow("disabled") << false << true;
    QTest::newRow("hidden") << true << false;
    QTest::newRow("neither") << false << false;
}

void tst_zelQtPushButton::everyFormOfUpdateStateReachesTheButton()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QWidget window;
    auto *byFlags = new ZelQtPushButton(&window);
    auto *byState = new ZelQtPushButton(&window);
    auto *byMeta = new ZelQtPushButton(&window);
    byFlags->updateState(enabled, visible);
    byState->updateState(ZelUIState{enabled, visible, false});
    Meta meta;
    ZelUIObject line;
    line.mEnabled = enabled;
    line.mVisible = visible;
    byMeta->setModelParent(&line);
    byMeta->updateState(&meta, 0);
    for (const ZelQtPushButton *button : {byFlags, byState, byMeta}) {
        QCOMPARE(button->isEnabled(), enabled);
        QCOMPARE(button->isHidden(), !visible);
        QCOMPARE(button->mEnabled, enabled);
        QCOMPARE(button->mVisible, visible);
    }
}

void tst_zelQtPushButton::stateOfTheModelReachesTheButton()
{
    // Through the model base, as a walk over a mask does it.
    QWidget window;
    auto *button = new ZelQtPushButton(&window);
    ZelUIPushButton *model = button;
    model->updateState(ZelUIState{false, true, true});
    QVERIFY(!button->isEnabled());
    QVERIFY(!button->isHidden());
    QVERIFY(button->mReadOnly);
}

void tst_zelQtPushButton::hasNoMenuBeforeTheFirstItem()
{
    QCOMPARE(ZelQtPushButton(QStringLiteral("Mehr")).menu(), nullptr);
}

void tst_zelQtPushButton::firstItemMakesTheMenuAndTheSecondReusesIt()
{
    ZelQtPushButton button;
    button.addMenuItem(text(L"Auslegen"), {L"size", L"1"});
    QMenu *menu = button.menu();
    QVERIFY(menu);
    QCOMPARE(menu->parentWidget(), &button);
    button.addMenuItem(text(L"Umrechnen"), {L"convert", L"2"});
    QCOMPARE(button.menu(), menu);
    QCOMPARE(menu->actions().size(), 2);
    QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Auslegen"));
    QCOMPARE(menu->actions().at(0)->whatsThis(), QStringLiteral("0"));
    QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("Umrechnen"));
    QCOMPARE(menu->actions().at(1)->whatsThis(), QStringLiteral("1"));
}

void tst_zelQtPushButton::itemsStandInTheListOfTheModelToo()
{
    ZelQtPushButton button;
    ZelUIPushButton *model = &button;
    model->addMenuItem(text(L"Auslegen"), {L"size", L"1"});
    model->addMenuItem(text(L"Umrechnen"), {L"convert", L"2"});
    QCOMPARE(button.modelMenu().size(), size_t(2));
    const int index = button.menu()->actions().at(1)->whatsThis().toInt();
    QVERIFY(button.modelMenu().at(size_t(index)).second.mFunction == L"convert");
}

void tst_zelQtPushButton::itemsAreNotConnected()
{
    ZelQtPushButton button;
    button.addMenuItem(text(L"Auslegen"), {L"size", L"1"});
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QSignalSpy triggered(button.menu(), &QMenu::triggered);
    button.menu()->actions().first()->trigger();
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(clicked.count(), 0);
}

void tst_zelQtPushButton::itemsFollowTheLanguage()
{
    ZelQtPushButton button;
    button.addMenuItem(text(L"Auslegen"), {L"size", L"1"});
    QAction *own = button.menu()->addAction(QStringLiteral("eigene"));
    button.menu()->actions().first()->setText(QStringLiteral("Size"));
    button.retranslate();
    QCOMPARE(button.menu()->actions().first()->text(), QStringLiteral("Auslegen"));
    QCOMPARE(own->text(), QStringLiteral("eigene"));
}

QTEST_MAIN(tst_zelQtPushButton)
#include "tst_zelQtPushButton.moc"
