#include "zelQtContextMenu.h"

#include <QtTest>

namespace {

class LanguageMenu : public ZelQtMenu
{
public:
    using ZelQtMenu::ZelQtMenu;
    int mTranslated = 0;

protected:
    void retranslateStrings() override
    {
        ++mTranslated;
        setTitle(QStringLiteral("Sprache"));
    }
};

} // namespace

class tst_zelQtMenu : public QObject
{
    Q_OBJECT

private slots:
    void constructorLeavesTheTextsToTheSubclass();
    void hasNoParentUnlessGiven();
    void languageChangeSetsTheTexts();
    void otherChangesLeaveTheTexts();
    void languageChangeOfTheParentReachesTheMenu();
    void contextMenuStandsALanguageChange();
};

void tst_zelQtMenu::constructorLeavesTheTextsToTheSubclass()
{
    const LanguageMenu menu;
    QCOMPARE(menu.mTranslated, 0);
}

void tst_zelQtMenu::hasNoParentUnlessGiven()
{
    QWidget window;
    QCOMPARE(LanguageMenu().parentWidget(), nullptr);
    QCOMPARE(ZelQtContextMenu().parentWidget(), nullptr);
    QCOMPARE((new LanguageMenu(&window))->parentWidget(), &window);
    QCOMPARE((new ZelQtContextMenu(&window))->parentWidget(), &window);
}

void tst_zelQtMenu::languageChangeSetsTheTexts()
{
    LanguageMenu menu;
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&menu, &event);
    QCOMPARE(menu.mTranslated, 1);
    QCOMPARE(menu.title(), QStringLiteral("Sprache"));
}

void tst_zelQtMenu::otherChangesLeaveTheTexts()
{
    LanguageMenu menu;
    QEvent event(QEvent::StyleChange);
    QApplication::sendEvent(&menu, &event);
    menu.setEnabled(false);
    QCOMPARE(menu.mTranslated, 0);
}

void tst_zelQtMenu::languageChangeOfTheParentReachesTheMenu()
{
    QWidget window;
    auto *menu = new LanguageMenu(&window);
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&window, &event);
    QCOMPARE(menu->mTranslated, 1);
}

void tst_zelQtMenu::contextMenuStandsALanguageChange()
{
    ZelQtContextMenu menu;
    menu.addAction(QStringLiteral("mm"));
    menu.setTitle(QStringLiteral("Einheit"));
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&menu, &event);
    QCOMPARE(menu.title(), QStringLiteral("Einheit"));
    QCOMPARE(menu.actions().first()->text(), QStringLiteral("mm"));
}

QTEST_MAIN(tst_zelQtMenu)
#include "tst_zelQtMenu.moc"
