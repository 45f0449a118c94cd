#include "zelQtUnitLabel.h"

#include "modal.h"
#include "recorder.h"
#include "zelQtContextMenu.h"

#include <QContextMenuEvent>
#include <QtTest>

namespace {

// Counts the context menu events that reach it.
class Page : public QWidget
{
public:
    int mContextMenus = 0;

protected:
    void contextMenuEvent(QContextMenuEvent *) override { ++mContextMenus; }
};

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

void rightClick(QWidget *widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    QContextMenuEvent event(reason, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(widget, &event);
}

QStringList texts(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

void choose(QMenu *menu, const QString &unit)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == unit)
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                              menu->actionGeometry(action).center());
    }
}

QStringList unitsOf(ZelDimensions::Unit unit)
{
    QStringList list;
    for (const std::wstring &text : ZelDimensions::getStringList(ZelDimensions::getType(unit)))
        list.append(QString::fromStdWString(text));
    return list;
}

// True when a context menu event of that kind opened any popup over the label.
bool opensMenu(ZelQtUnitLabel &label, QContextMenuEvent::Reason reason)
{
    const auto popup = onPopup<QWidget>([](QWidget *) {});
    rightClick(&label, reason);
    return popup.ran();
}

} // namespace

class tst_zelQtUnitLabel_menu : public QObject
{
    Q_OBJECT

private slots:
    void menuListsTheDimensionInOrder();
    void shortestListsHaveAMenuToo_data();
    void shortestListsHaveAMenuToo();
    void choosingTellsTheChangeBeforeTheUser();
    void choosingTheCurrentUnitTellsTheUserAloneOnPurpose();
    void choosingByKeys();
    void leavingTheMenuTellsNothing();
    void chosenUnitReachesTheModelWithFlagFalse();
    void labelWithoutUnitShowsNoMenu();
    void dynamicUnitShowsNoMenu();
    void keyboardShowsNoMenu();
    void parentReceivesTheEventTooOnPurpose();
    void labelMayGoWhileTheMenuIsOpen();
    void labelMayGoAtTheNewUnit_data();
    void labelMayGoAtTheNewUnit();
};

void tst_zelQtUnitLabel_menu::menuListsTheDimensionInOrder()
{
    ZelQtUnitLabel label(QStringLiteral("N"));
    label.show();
    QStringList shown;
    const auto menu = onPopup<ZelQtContextMenu>([&](QMenu *menu) { shown = texts(menu); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QVERIFY(shown.size() > 2);
    QCOMPARE(shown, unitsOf(ZelDimensions::Newton));
}

void tst_zelQtUnitLabel_menu::shortestListsHaveAMenuToo_data()
{
    // The shortest list stands for one with a single unit, which the table of units doesn't hold:
    // nothing asks for the length but for zero.
    QTest::addColumn<int>("unit");
    const int types = ZelDimensions::NoType;
    for (int type = 0; type < types; ++type) {
        const auto units = ZelDimensions::getList(static_cast<ZelDimensions::Type>(type));
        if (units.size() <= 2)
            QTest::addRow("dimension %d", type) << int(units.front());
    }
}

void tst_zelQtUnitLabel_menu::shortestListsHaveAMenuToo()
{
    QFETCH(int, unit);
    ZelQtUnitLabel label;
    label.checkUnit(static_cast<ZelDimensions::Unit>(unit), true);
    label.show();
    QStringList shown;
    const auto menu = onPopup<ZelQtContextMenu>([&](QMenu *menu) { shown = texts(menu); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(shown, unitsOf(label.mCurrentUnit));
}

void tst_zelQtUnitLabel_menu::choosingTellsTheChangeBeforeTheUser()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    EventRecorder recorder;
    recordAll(recorder, label);
    const auto menu =
        onPopup<ZelQtContextMenu>([](QMenu *menu) { choose(menu, QStringLiteral("cm")); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(recorder.take(),
             QStringList({QStringLiteral("unitChanged(cm)"), QStringLiteral("unitChanged(mm, cm)"),
                          QStringLiteral("changedByUser")}));
    QCOMPARE(label.text(), QStringLiteral("cm"));
}

void tst_zelQtUnitLabel_menu::choosingTheCurrentUnitTellsTheUserAloneOnPurpose()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    EventRecorder recorder;
    recordAll(recorder, label);
    const auto menu =
        onPopup<ZelQtContextMenu>([](QMenu *menu) { choose(menu, QStringLiteral("mm")); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("changedByUser")}));
}

void tst_zelQtUnitLabel_menu::choosingByKeys()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    const auto menu = onPopup<ZelQtContextMenu>([](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(label.currentUnit(), unitsOf(ZelDimensions::Millimetre).at(1));
}

void tst_zelQtUnitLabel_menu::leavingTheMenuTellsNothing()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    EventRecorder recorder;
    recordAll(recorder, label);
    const auto menu =
        onPopup<ZelQtContextMenu>([](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(label.currentUnit(), QStringLiteral("mm"));
}

void tst_zelQtUnitLabel_menu::chosenUnitReachesTheModelWithFlagFalse()
{
    CountingLabel label;
    label.setCurrentUnit(QStringLiteral("mm"), true);
    label.mFlags.clear();
    label.show();
    const auto menu =
        onPopup<ZelQtContextMenu>([](QMenu *menu) { choose(menu, QStringLiteral("m")); });
    rightClick(&label);
    QVERIFY(menu.ran());
    QCOMPARE(label.mFlags, QList<bool>({false}));
    QCOMPARE(label.mDefaultUnit, ZelDimensions::Millimetre);
}

void tst_zelQtUnitLabel_menu::labelWithoutUnitShowsNoMenu()
{
    ZelQtUnitLabel label;
    label.show();
    EventRecorder recorder;
    recordAll(recorder, label);
    QVERIFY(!opensMenu(label, QContextMenuEvent::Mouse));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtUnitLabel_menu::dynamicUnitShowsNoMenu()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    QVERIFY(opensMenu(label, QContextMenuEvent::Mouse));
    label.mDefaultUnit = ZelDimensions::DynamicUnit;
    QVERIFY(!opensMenu(label, QContextMenuEvent::Mouse));
}

void tst_zelQtUnitLabel_menu::keyboardShowsNoMenu()
{
    ZelQtUnitLabel label(QStringLiteral("mm"));
    label.show();
    QVERIFY(!opensMenu(label, QContextMenuEvent::Keyboard));
    QVERIFY(!opensMenu(label, QContextMenuEvent::Other));
}

void tst_zelQtUnitLabel_menu::parentReceivesTheEventTooOnPurpose()
{
    Page page;
    ZelQtUnitLabel label(QStringLiteral("mm"), &page);
    page.show();
    QVERIFY(opensMenu(label, QContextMenuEvent::Mouse));
    QCOMPARE(page.mContextMenus, 1);
    QVERIFY(!opensMenu(label, QContextMenuEvent::Keyboard));
    QCOMPARE(page.mContextMenus, 2);
    label.mDefaultUnit = ZelDimensions::DynamicUnit;
    QVERIFY(!opensMenu(label, QContextMenuEvent::Mouse));
    QCOMPARE(page.mContextMenus, 3);
}

// The parent must not be asked either: Qt would look for it at the label.
void tst_zelQtUnitLabel_menu::labelMayGoWhileTheMenuIsOpen()
{
    Page page;
    QPointer<ZelQtUnitLabel> label(new ZelQtUnitLabel(QStringLiteral("mm"), &page));
    page.show();
    const auto menu = onPopup<ZelQtContextMenu>([&](QMenu *) { delete label.data(); });
    rightClick(label);
    QVERIFY(menu.ran());
    QVERIFY(!label);
    QCOMPARE(page.mContextMenus, 0);
}

void tst_zelQtUnitLabel_menu::labelMayGoAtTheNewUnit_data()
{
    QTest::addColumn<bool>("atTheFirstSignal");
    QTest::newRow("unitChanged(new)") << true;
    QTest::newRow("unitChanged(old, new)") << false;
}

void tst_zelQtUnitLabel_menu::labelMayGoAtTheNewUnit()
{
    QFETCH(bool, atTheFirstSignal);
    Page page;
    QPointer<ZelQtUnitLabel> label(new ZelQtUnitLabel(QStringLiteral("mm"), &page));
    EventRecorder recorder;
    recordAll(recorder, *label);
    const auto goAway = [&label] { delete label.data(); };
    if (atTheFirstSignal)
        connect(label, qOverload<QString>(&ZelQtUnitLabel::unitChanged), &page, goAway);
    else
        connect(label, qOverload<QString, QString>(&ZelQtUnitLabel::unitChanged), &page, goAway);
    page.show();
    const auto menu =
        onPopup<ZelQtContextMenu>([](QMenu *menu) { choose(menu, QStringLiteral("cm")); });
    rightClick(label);
    QVERIFY(menu.ran());
    QVERIFY(!label);
    QStringList expected{QStringLiteral("unitChanged(cm)")};
    if (!atTheFirstSignal)
        expected.append(QStringLiteral("unitChanged(mm, cm)"));
    QCOMPARE(recorder.take(), expected);
    QCOMPARE(page.mContextMenus, 0);
}

QTEST_MAIN(tst_zelQtUnitLabel_menu)
#include "tst_zelQtUnitLabel_menu.moc"
