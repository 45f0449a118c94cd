#include "fieldOnPage.h"
#include "modal.h"
#include "zelQtFormeleingabe.h"
#include "zelQtValueEdit.h"
#include "zelQtWinkeleingabe.h"

#include <QContextMenuEvent>
#include <QtTest>

// Which popup the right mouse button opens on a value edit, and when none.

class tst_zelQtValueEdit_popups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rightClickOpensTheFormulaAtTheMouse();
    void fieldOfDegreesOpensTheAngle_data();
    void fieldOfDegreesOpensTheAngle();
    void angleInAnotherUnitOpensTheFormula();
    void readOnlyFieldLeavesTheEventToItsParent();
    void keyboardLeavesTheEventToItsParent();
    void fieldMayGoWhileItsPopupIsOpen_data();
    void fieldMayGoWhileItsPopupIsOpen();
    void fieldMayGoWhileTheUserTypesInItsPopup_data();
    void fieldMayGoWhileTheUserTypesInItsPopup();
    void fieldMayGoWithTheResultOfItsPopup_data();
    void fieldMayGoWithTheResultOfItsPopup();
};

namespace {

/// Counts the context menu events that reach it.
class Parent : public QWidget
{
public:
    int mCount = 0;

protected:
    void contextMenuEvent(QContextMenuEvent *) override { ++mCount; }
};

bool sendContextMenu(QWidget &field, const QPoint &place = QPoint(3, 4),
                     QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    QContextMenuEvent event(reason, place, field.mapToGlobal(place));
    QCoreApplication::sendEvent(&field, &event);
    return event.isAccepted();
}

} // namespace

void tst_zelQtValueEdit_popups::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtValueEdit_popups::rightClickOpensTheFormulaAtTheMouse()
{
    Parent parent;
    ZelQtValueEdit field(QStringLiteral("mm"), &parent);
    field.setWert(12.5, QString());
    QVERIFY(showAndActivate(&parent));
    QString formula;
    QPoint place;
    const auto popup = onPopup<ZelQtFormeleingabe>([&](ZelQtFormeleingabe *menu) {
        formula = menu->findChild<QLineEdit *>(QStringLiteral("mFormel"))->text();
        place = menu->pos();
        QCOMPARE(menu->parent(), &field);
    });
    QVERIFY(sendContextMenu(field, QPoint(30, 10)));
    QVERIFY(popup.ran());
    QCOMPARE(formula, QStringLiteral("12.5000"));
    QCOMPARE(place, field.mapToGlobal(QPoint(30, 10)));
    QCOMPARE(parent.mCount, 0);
}

void tst_zelQtValueEdit_popups::fieldOfDegreesOpensTheAngle_data()
{
    QTest::addColumn<QString>("defaultUnit");
    QTest::addColumn<double>("value");
    QTest::newRow("stored in degrees") << "°" << 30.5;
    QTest::newRow("stored in radians") << "rad" << 30.5 * 3.14159265358979323846 / 180 + 1e-12;
}

void tst_zelQtValueEdit_popups::fieldOfDegreesOpensTheAngle()
{
    QFETCH(QString, defaultUnit);
    QFETCH(double, value);
    Parent parent;
    ZelQtValueEdit field(defaultUnit, QStringLiteral("°"), &parent);
    QCOMPARE(int(field.mCurrentUnit), 133);
    field.setWert(value, QString());
    QVERIFY(showAndActivate(&parent));
    QStringList texts;
    const auto popup = onPopup<ZelQtWinkeleingabe>([&texts](ZelQtWinkeleingabe *menu) {
        for (const char *name : {"mGrad", "mMinuten", "mSekunden"})
            texts.append(menu->findChild<QLineEdit *>(QString::fromLatin1(name))->text());
    });
    QVERIFY(sendContextMenu(field));
    QVERIFY(popup.ran());
    QCOMPARE(texts, QStringList({QStringLiteral("30"), QStringLiteral("30"), QStringLiteral("0")}));
}

void tst_zelQtValueEdit_popups::angleInAnotherUnitOpensTheFormula()
{
    Parent parent;
    ZelQtValueEdit field(QStringLiteral("°"), QStringLiteral("rad"), &parent);
    QVERIFY(showAndActivate(&parent));
    const auto popup = onPopup<ZelQtFormeleingabe>([](ZelQtFormeleingabe *) {});
    sendContextMenu(field);
    QVERIFY(popup.ran());
}

void tst_zelQtValueEdit_popups::readOnlyFieldLeavesTheEventToItsParent()
{
    Parent parent;
    ZelQtValueEdit field(&parent);
    field.setReadOnly(true);
    QVERIFY(showAndActivate(&parent));
    const auto popup = onPopup([](QWidget *) {});
    sendContextMenu(field);
    QCOMPARE(parent.mCount, 1);
    QVERIFY(!popup.ran());
}

void tst_zelQtValueEdit_popups::keyboardLeavesTheEventToItsParent()
{
    Parent parent;
    ZelQtValueEdit field(&parent);
    QVERIFY(showAndActivate(&parent));
    const auto popup = onPopup([](QWidget *) {});
    sendContextMenu(field, QPoint(3, 4), QContextMenuEvent::Keyboard);
    sendContextMenu(field, QPoint(3, 4), QContextMenuEvent::Other);
    QCOMPARE(parent.mCount, 2);
    QVERIFY(!popup.ran());
}

void tst_zelQtValueEdit_popups::fieldMayGoWhileItsPopupIsOpen_data()
{
    QTest::addColumn<QString>("unit");
    QTest::newRow("formula") << "mm";
    QTest::newRow("angle") << "°";
}

void tst_zelQtValueEdit_popups::fieldMayGoWhileItsPopupIsOpen()
{
    QFETCH(QString, unit);
    Parent parent;
    QPointer<ZelQtValueEdit> field(new ZelQtValueEdit(unit, &parent));
    QVERIFY(showAndActivate(&parent));
    const auto popup = onPopup<QMenu>([&](QMenu *) { delete field.data(); });
    sendContextMenu(*field);
    QVERIFY(popup.ran());
    QVERIFY(!field);
    QCOMPARE(parent.mCount, 0);
}

void tst_zelQtValueEdit_popups::fieldMayGoWhileTheUserTypesInItsPopup_data()
{
    fieldMayGoWhileItsPopupIsOpen_data();
}

void tst_zelQtValueEdit_popups::fieldMayGoWhileTheUserTypesInItsPopup()
{
    // The page hears the keys of the popup as well. The line that handles the key has to outlast
    // it.
    QFETCH(QString, unit);
    RecordedPage page;
    const QPointer<ZelQtValueEdit> field(new ZelQtValueEdit(unit, &page));
    connect(&page, &ZelQtParentWidget::valueChanged, this, [&field] { delete field.data(); });
    QVERIFY(showAndActivate(&page));
    bool closed = false;
    const auto popup = onPopup<QMenu>([&closed](QMenu *menu) {
        auto *line = menu->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_1);
        closed = !menu->isVisible();
        QCOMPARE(line->text(), QStringLiteral("1"));
        QVERIFY(!menu->parent());
    });
    sendContextMenu(*field);
    QVERIFY(popup.ran());
    QVERIFY(!field);
    QVERIFY(closed);
    // Closing confirms what was typed, as leaving any field does.
    QCOMPARE(
        page.take(),
        QStringList({QStringLiteral("host valueChanged"), QStringLiteral("host valueConfirmed")}));
}

void tst_zelQtValueEdit_popups::fieldMayGoWithTheResultOfItsPopup_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("byHost");
    QTest::newRow("formula, host") << "mm" << true;
    QTest::newRow("formula, field") << "mm" << false;
    QTest::newRow("angle, host") << "°" << true;
    QTest::newRow("angle, field") << "°" << false;
}

void tst_zelQtValueEdit_popups::fieldMayGoWithTheResultOfItsPopup()
{
    QFETCH(QString, unit);
    QFETCH(bool, byHost);
    ZelQtFormeleingabe::setEvalFuncPnt(
        [](const QString &text, double &result) { return (result = text.toDouble()) == 2; });
    RecordedPage page;
    const QPointer<ZelQtValueEdit> field(new ZelQtValueEdit(unit, &page));
    field->setWert(2, QString());
    page.mRecorder.recordProtocol(field.data(), QStringLiteral("field"));
    const auto goAway = [&field] { delete field.data(); };
    if (byHost)
        connect(&page, &ZelQtParentWidget::valueChanged, this, goAway);
    else
        connect(field, &ZelQtValueEdit::valueChanged, this, goAway);
    QVERIFY(showAndActivate(&page));
    bool closed = false;
    const auto popup = onPopup<QMenu>([&closed](QMenu *menu) {
        QTest::keyClick(menu->findChild<QLineEdit *>(), Qt::Key_Return);
        closed = !menu->isVisible();
    });
    sendContextMenu(*field);
    ZelQtFormeleingabe::setEvalFuncPnt(nullptr);
    QVERIFY(popup.ran());
    QVERIFY(!field);
    QVERIFY(closed);
    QCOMPARE(page.take(), QStringList(changedEvents.mid(0, byHost ? 1 : 2)));
}

QTEST_MAIN(tst_zelQtValueEdit_popups)
#include "tst_zelQtValueEdit_popups.moc"
