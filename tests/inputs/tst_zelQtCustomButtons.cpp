#include "zelQtCustomButtons.h"

#include "meta.h"
#include "zelLanguage.h"
#include "zelQtConversions.h"
#include "zelQtParentWidget.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QtTest>

#include <functional>

namespace {

using Type = ZelUIPushButtonType;
using Maker = std::function<ZelQtToolButton *(QWidget *)>;

template <class Button> Maker maker()
{
    return [](QWidget *parent) { return new Button(parent); };
}

// Texts that a subclass sets at a change of the language, in the order of the calls.
class TranslatedButton : public ZelQtToolButton
{
public:
    void retranslate() override
    {
        mCalls.append(QStringLiteral("retranslate"));
        ZelQtToolButton::retranslate();
    }
    void giveModelText(const wchar_t *tip) { mToolTip.setText(tip); }
    QStringList mCalls;

protected:
    void retranslateStrings() override
    {
        mCalls.append(QStringLiteral("retranslateStrings"));
        setToolTip(QStringLiteral("fest"));
    }
};

class TranslatedIconButton : public ZelQtIconButton
{
public:
    void retranslate() override { mCalls.append(QStringLiteral("retranslate")); }
    QStringList mCalls;

protected:
    void retranslateStrings() override { mCalls.append(QStringLiteral("retranslateStrings")); }
};

void changeLanguage(QWidget *widget)
{
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(widget, &event);
}

int standardHeight(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return metrics.height() + metrics.lineSpacing() / 2;
}

} // namespace

Q_DECLARE_METATYPE(ZelUIPushButtonType)
Q_DECLARE_METATYPE(Maker)

class tst_zelQtCustomButtons : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setZelLanguage(ZelLanguage::German); }
    void fixedButtons_data();
    void fixedButtons();
    void toolTipAdvanced_data();
    void toolTipAdvanced();
    void toolTipAdvancedIsReachedThroughTheBase();
    void typeEightIsFreeOnPurpose();
    void languageChangeKeepsTheFixedTips_data();
    void languageChangeKeepsTheFixedTips();
    void languageChangeKeepsTheTipOfTheOwner();
    void languageChangeSetsModelTextsAfterTheFixedOnes();
    void languageChangeGivesAButtonThatWasSetUpTheTipsOfTheModel_data();
    void languageChangeGivesAButtonThatWasSetUpTheTipsOfTheModel();
    void toolButtonRaisesByItself();
    void toolButtonTakesAnIconFile();
    void pureIconButtonIsASquare();
    void otherToolButtonHasTheSizeOfQt();
    void wideIconButtonGetsLargeIcons_data();
    void wideIconButtonGetsLargeIcons();
    void addIconFileChangesTheIconButIsFalseOnPurpose();
    void addIconFileWithoutNameChangesNothing();
    void setupNamesTheWidget();
    void everyFormOfUpdateStateReachesTheButton();
    void retranslateShowsTheTipsOfTheModel();
    void linkButtonCarriesAPage();
    void iconButtonIsASquareWhateverItsIcon_data();
    void iconButtonIsASquareWhateverItsIcon();
    void iconButtonConstructors();
    void iconButtonToolTip();
    void iconButtonDoesNotRetranslateTheModelOnPurpose();
    void resultButtons();
};

void tst_zelQtCustomButtons::fixedButtons_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("iconFile");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("statusTip");
    QTest::newRow("size") << maker<ZelQtSizeButton>() << "ZelQtSizeButton"
                          << ":/button_size.svg" << 1 << ""
                          << "Berechnet den Wert anhand von Rechenmethoden";
    QTest::newRow("convert") << maker<ZelQtConvertButton>() << "ZelQtConvertButton"
                             << ":/button_convert.svg" << 2 << ""
                             << "Berechnet den Wert anhand von Umrechnungsformeln";
    QTest::newRow("plus") << maker<ZelQtPlusButton>() << "ZelQtPlusButton"
                          << ":/button_plus.svg" << 3 << ""
                          << QStringLiteral("Zeigt zusätzliche Daten in einem Dialog an");
    QTest::newRow("info") << maker<ZelQtInfoButton>() << "ZelQtInfoButton"
                          << ":/button_info.svg" << 4 << "Zusatzinfo"
                          << QStringLiteral("Zeigt zusätzliche Informationen im Infofenster an");
    QTest::newRow("offer") << maker<ZelQtOfferButton>() << "ZelQtOfferButton"
                           << ":/button_offer.svg" << 5
                           << QStringLiteral("Angebot für ein Werkzeug anfragen")
                           << QStringLiteral("Fragt ein Angebot für ein Werkzeug an");
    QTest::newRow("database") << maker<ZelQtDatabaseButton>() << "ZelQtDatabaseButton"
                              << ":/button_database.svg" << 6 << "Datenbank bearbeiten"
                              << "Bearbeitet den Eintrag in der Datenbank";
    QTest::newRow("settings") << maker<ZelQtSettingsButton>() << "ZelQtSettingsButton"
                              << ":/button_settings.svg" << 7 << ""
                              << QStringLiteral("Zeigt spezifische Einstellungen für den Wert in "
                                                "einem Dialog an");
    QTest::newRow("file") << maker<ZelQtFileButton>() << "ZelQtFileButton"
                          << ":/button_file.svg" << 9 << ""
                          << "";
}

void tst_zelQtCustomButtons::fixedButtons()
{
    QFETCH(Maker, make);
    QFETCH(QString, className);
    QFETCH(QString, iconFile);
    QFETCH(int, type);
    QWidget window;
    const ZelQtToolButton *button = make(&window);
    QCOMPARE(button->parentWidget(), &window);
    QCOMPARE(QString::fromLatin1(button->metaObject()->className()), className);
    QCOMPARE(int(button->pushButtonType()), type);
    QTEST(button->toolTip(), "toolTip");
    QTEST(button->statusTip(), "statusTip");
    QVERIFY(button->autoRaise());
    QVERIFY(!button->icon().isNull());
    const QSize size(24, 24);
    QCOMPARE(button->icon().pixmap(size).toImage(), QIcon(iconFile).pixmap(size).toImage());
    QVERIFY(!QIcon(iconFile).pixmap(size).isNull());
}

void tst_zelQtCustomButtons::toolTipAdvanced_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    const QString name = QStringLiteral("Achsabstand");
    QTest::newRow("size") << maker<ZelQtSizeButton>() << name << "Achsabstand auslegen";
    QTest::newRow("convert") << maker<ZelQtConvertButton>() << name << "Achsabstand umrechnen";
    QTest::newRow("plus takes it as it stands") << maker<ZelQtPlusButton>() << name << name;
    QTest::newRow("settings") << maker<ZelQtSettingsButton>() << name
                              << QStringLiteral("Spezifische Einstellungen für Achsabstand");
    QTest::newRow("settings without a name") << maker<ZelQtSettingsButton>() << ""
                                             << "Spezifische Einstellungen";
    QTest::newRow("file") << maker<ZelQtFileButton>() << name << name;
    QTest::newRow("base") << maker<ZelQtToolButton>() << name << name;
}

void tst_zelQtCustomButtons::toolTipAdvanced()
{
    QFETCH(Maker, make);
    QFETCH(QString, text);
    QWidget window;
    ZelQtToolButton *button = make(&window);
    const QString statusTip = button->statusTip();
    button->setToolTipAdvanced(text);
    QTEST(button->toolTip(), "toolTip");
    QCOMPARE(button->statusTip(), statusTip);
}

void tst_zelQtCustomButtons::toolTipAdvancedIsReachedThroughTheBase()
{
    // As a slot, too.
    ZelQtSizeButton button;
    QVERIFY(QMetaObject::invokeMethod(&button, "setToolTipAdvanced",
                                      Q_ARG(QString, QStringLiteral("Breite"))));
    QCOMPARE(button.toolTip(), QStringLiteral("Breite auslegen"));
}

void tst_zelQtCustomButtons::typeEightIsFreeOnPurpose()
{
    QCOMPARE(int(Type::Settings), 7);
    QCOMPARE(int(Type::File), 9);
}

void tst_zelQtCustomButtons::languageChangeKeepsTheFixedTips_data()
{
    fixedButtons_data();
}

void tst_zelQtCustomButtons::languageChangeKeepsTheFixedTips()
{
    QFETCH(Maker, make);
    QWidget window;
    ZelQtToolButton *button = make(&window);
    button->setStatusTip(button->statusTip().isEmpty() ? QString() : QStringLiteral("old"));
    changeLanguage(&window);
    QTEST(button->toolTip(), "toolTip");
    QTEST(button->statusTip(), "statusTip");
}

void tst_zelQtCustomButtons::languageChangeKeepsTheTipOfTheOwner()
{
    QWidget window;
    auto *button = new ZelQtSizeButton(&window);
    button->setToolTipAdvanced(QStringLiteral("Breite"));
    changeLanguage(&window);
    QCOMPARE(button->toolTip(), QStringLiteral("Breite auslegen"));
}

void tst_zelQtCustomButtons::languageChangeSetsModelTextsAfterTheFixedOnes()
{
    TranslatedButton button;
    changeLanguage(&button);
    QCOMPARE(button.mCalls, QStringList({QStringLiteral("retranslateStrings")}));
    QCOMPARE(button.toolTip(), QStringLiteral("fest"));
    button.mCalls.clear();
    button.giveModelText(L"vom Modell");
    changeLanguage(&button);
    QCOMPARE(button.mCalls,
             QStringList({QStringLiteral("retranslateStrings"), QStringLiteral("retranslate")}));
    QCOMPARE(button.toolTip(), QStringLiteral("vom Modell"));
}

void tst_zelQtCustomButtons::languageChangeGivesAButtonThatWasSetUpTheTipsOfTheModel_data()
{
    fixedButtons_data();
}

// Model and widget must not differ in one language: in German both have the texts of the same
// table.
void tst_zelQtCustomButtons::languageChangeGivesAButtonThatWasSetUpTheTipsOfTheModel()
{
    QFETCH(Maker, make);
    ZelUIVarBool variable(L"d");
    variable.mText.setText(L"Breite");
    AttrMap attributes;
    QWidget window;
    const QString name = QStringLiteral("Breite");
    ZelQtToolButton *byHand = make(&window);
    const bool takesName = byHand->toolTip().isEmpty();
    if (takesName && byHand->pushButtonType() != Type::File)
        byHand->setToolTipAdvanced(name);
    ZelQtToolButton *button = make(&window);
    button->setup(static_cast<ZelUIVar *>(&variable), attributes);
    changeLanguage(&window);
    QCOMPARE(button->toolTip(), byHand->toolTip());
    QTEST(button->statusTip(), "statusTip");
    QCOMPARE(button->toolTip().contains(name), takesName && button->pushButtonType() != Type::File);

    setZelLanguage(ZelLanguage::English);
    changeLanguage(&window);
    const QString english = toQString(button->statustip());
    setZelLanguage(ZelLanguage::German);
    QCOMPARE(button->statusTip(), english);
    QVERIFY(button->pushButtonType() == Type::File || english != byHand->statusTip());
}

void tst_zelQtCustomButtons::toolButtonRaisesByItself()
{
    const ZelQtToolButton button;
    QVERIFY(button.autoRaise());
    QVERIFY(button.icon().isNull());
    QCOMPARE(button.pushButtonType(), Type::Push);
}

void tst_zelQtCustomButtons::toolButtonTakesAnIconFile()
{
    const ZelQtToolButton button(QStringLiteral(":/button_plus.svg"));
    QVERIFY(button.autoRaise());
    QVERIFY(!button.icon().isNull());
    QCOMPARE(button.pushButtonType(), Type::Push);
}

void tst_zelQtCustomButtons::pureIconButtonIsASquare()
{
    ZelQtToolButton button(QStringLiteral(":/button_plus.svg"));
    button.mIconOnly = true;
    const int edge = standardHeight(button);
    QCOMPARE(button.sizeHint(), QSize(edge, edge));
    button.setIconSize(QSize(64, 64));
    QCOMPARE(button.sizeHint(), QSize(edge, edge));
}

void tst_zelQtCustomButtons::otherToolButtonHasTheSizeOfQt()
{
    const ZelQtToolButton button(QStringLiteral(":/button_plus.svg"));
    QCOMPARE(button.sizeHint(), button.QToolButton::sizeHint());
}

void tst_zelQtCustomButtons::wideIconButtonGetsLargeIcons_data()
{
    QTest::addColumn<bool>("iconOnly");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("large");
    QTest::newRow("20 pixels") << true << 20 << true;
    QTest::newRow("wider") << true << 40 << true;
    QTest::newRow("19 pixels") << true << 19 << false;
    QTest::newRow("with text") << false << 40 << false;
}

void tst_zelQtCustomButtons::wideIconButtonGetsLargeIcons()
{
    QFETCH(bool, iconOnly);
    QFETCH(int, width);
    QFETCH(bool, large);
    QWidget window;
    auto *button = new ZelQtToolButton(&window);
    const QSize before = button->iconSize();
    QVERIFY(before != QSize(32, 32));
    button->mIconOnly = iconOnly;
    button->resize(1, 1);
    button->show();
    window.show();
    button->resize(width, 18);
    QCOMPARE(button->iconSize(), large ? QSize(32, 32) : before);
}

void tst_zelQtCustomButtons::addIconFileChangesTheIconButIsFalseOnPurpose()
{
    ZelQtToolButton button;
    ZelUIPushButton *model = &button;
    QVERIFY(!model->addIconFile(L":/button_file.svg"));
    QVERIFY(!button.icon().isNull());
    QVERIFY(button.mIconOnly);
}

void tst_zelQtCustomButtons::addIconFileWithoutNameChangesNothing()
{
    ZelQtToolButton button(QStringLiteral(":/button_file.svg"));
    const qint64 icon = button.icon().cacheKey();
    QVERIFY(!button.addIconFile(L""));
    QCOMPARE(button.icon().cacheKey(), icon);
    QVERIFY(!button.mIconOnly);
}

void tst_zelQtCustomButtons::setupNamesTheWidget()
{
    AttrMap attributes;
    ZelUIVarBool variable(L"d");
    ZelQtSizeButton byVariable;
    byVariable.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QCOMPARE(byVariable.objectName(), QStringLiteral("d_size"));
    QCOMPARE(byVariable.whatsThis(), QStringLiteral("d"));

    ZelUIVarLubList oils(L"oil");
    ZelQtDatabaseButton byOils;
    byOils.setup(&oils, attributes, true, false);
    QCOMPARE(byOils.objectName(), QStringLiteral("oil_database"));

    ZelUIVarTable table(L"loads");
    ZelUIButtonData data;
    data.mIconFile = L":/button_file.svg";
    ZelQtFileButton byTable;
    byTable.setup(&table, attributes, &data);
    QCOMPARE(byTable.whatsThis(), QStringLiteral("loads"));
    QVERIFY(!byTable.objectName().isEmpty());
}

void tst_zelQtCustomButtons::everyFormOfUpdateStateReachesTheButton()
{
    QWidget window;
    auto *button = new ZelQtToolButton(&window);
    button->updateState(false, false);
    QVERIFY(!button->isEnabled());
    QVERIFY(button->isHidden());
    button->updateState(ZelUIState{true, true, false});
    QVERIFY(button->isEnabled());
    QVERIFY(!button->isHidden());
    Meta meta;
    ZelUIObject line;
    line.mEnabled = false;
    line.mVisible = false;
    button->setModelParent(&line);
    button->updateState(&meta, 0);
    QVERIFY(!button->isEnabled());
    QVERIFY(button->isHidden());
}

void tst_zelQtCustomButtons::retranslateShowsTheTipsOfTheModel()
{
    TranslatedButton button;
    button.setStatusTip(QStringLiteral("alt"));
    button.giveModelText(L"vom Modell");
    button.retranslate();
    QCOMPARE(button.toolTip(), QStringLiteral("vom Modell"));
    QCOMPARE(button.statusTip(), QString());
    QCOMPARE(button.text(), QString());
}

void tst_zelQtCustomButtons::linkButtonCarriesAPage()
{
    auto page = std::make_unique<ZelQtParentWidget>();
    QWidget window;
    auto *button = new ZelQtLinkButton(QStringLiteral(":/button_plus.svg"), page.get(), &window);
    QCOMPARE(button->link(), page.get());
    QVERIFY(!button->icon().isNull());
    QCOMPARE(button->parentWidget(), &window);
    QSignalSpy clicked(button, &QToolButton::clicked);
    window.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!page->isVisible());
    page.reset();
    QCOMPARE(button->link(), nullptr);
}

void tst_zelQtCustomButtons::iconButtonIsASquareWhateverItsIcon_data()
{
    QTest::addColumn<QSize>("iconSize");
    QTest::newRow("small") << QSize(8, 8);
    QTest::newRow("large") << QSize(128, 64);
}

void tst_zelQtCustomButtons::iconButtonIsASquareWhateverItsIcon()
{
    QFETCH(QSize, iconSize);
    ZelQtIconButton button(QStringLiteral(":/button_plus.svg"));
    button.setIconSize(iconSize);
    button.setText(QStringLiteral("ein Text"));
    const int edge = standardHeight(button);
    QCOMPARE(button.sizeHint(), QSize(edge, edge));
}

void tst_zelQtCustomButtons::iconButtonConstructors()
{
    const QIcon icon(QStringLiteral(":/button_plus.svg"));
    const ZelQtIconButton plain;
    const ZelQtIconButton byFile(QStringLiteral(":/button_plus.svg"));
    const ZelQtIconButton byIcon(icon);
    QVERIFY(plain.icon().isNull());
    QVERIFY(!byFile.icon().isNull());
    QCOMPARE(byIcon.icon().cacheKey(), icon.cacheKey());
    for (const ZelQtIconButton *button : {&plain, &byFile, &byIcon}) {
        QCOMPARE(button->focusPolicy(), Qt::ClickFocus);
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button->text(), QString());
    }
}

void tst_zelQtCustomButtons::iconButtonToolTip()
{
    ZelQtIconButton button;
    button.setToolTipAdvanced(QStringLiteral("Speichern"));
    QCOMPARE(button.toolTip(), QStringLiteral("Speichern"));
}

void tst_zelQtCustomButtons::iconButtonDoesNotRetranslateTheModelOnPurpose()
{
    TranslatedIconButton button;
    AttrMap attributes;
    ZelUIVarBool variable(L"d");
    button.setup(&variable, attributes);
    changeLanguage(&button);
    QCOMPARE(button.mCalls, QStringList({QStringLiteral("retranslateStrings")}));
}

void tst_zelQtCustomButtons::resultButtons()
{
    const QIcon icon(QStringLiteral(":/button_plus.svg"));
    const ZelQtTarvexResultButton plain(3);
    const ZelQtTarvexResultButton withText(4, QStringLiteral("Übernehmen"));
    const ZelQtTarvexResultButton withIcon(-5, icon, QStringLiteral("Mehr"));
    QCOMPARE(plain.tarvexResult(), 3);
    QCOMPARE(plain.text(), QString());
    QCOMPARE(withText.tarvexResult(), 4);
    QCOMPARE(withText.text(), QStringLiteral("Übernehmen"));
    QCOMPARE(withIcon.tarvexResult(), -5);
    QCOMPARE(withIcon.text(), QStringLiteral("Mehr"));
    QCOMPARE(withIcon.icon().cacheKey(), icon.cacheKey());
}

QTEST_MAIN(tst_zelQtCustomButtons)
#include "tst_zelQtCustomButtons.moc"
