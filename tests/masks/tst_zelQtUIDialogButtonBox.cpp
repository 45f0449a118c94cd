#include "zelQtUIDialogButtonBox.h"

#include "maskParts.h"
#include "zelDomNode.h"
#include "zelUIPushButton.h"

#include <QtTest>

#include <QPushButton>

using Box = ZelQtUIDialogButtonBox;
using Button = Part<QPushButton, ZelUIPushButton>;

namespace {

class RecordingBox : public Box
{
public:
    void updateCalcState(bool succeeded) override
    {
        mStates.append(succeeded);
        Box::updateCalcState(succeeded);
    }

    QList<bool> mStates;
};

} // namespace

class tst_zelQtUIDialogButtonBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshBoxIsEmpty();
    void setupIsTheModelsAlone();
    void rolesOfTheModelBecomeRolesOfQt_data();
    void rolesOfTheModelBecomeRolesOfQt();
    void addingGivesTheIndexOfTheModel();
    void buttonThatIsNoWidgetIsKeptByTheModelOnly();
    void failedCalculationReachesTheModel();
    void failedCalculationForbidsToAccept();
};

void tst_zelQtUIDialogButtonBox::freshBoxIsEmpty()
{
    QWidget parent;
    const Box box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.buttons().isEmpty());
}

// Unlike other widgets of a mask the box takes no name of its own.
void tst_zelQtUIDialogButtonBox::setupIsTheModelsAlone()
{
    ZelDomNode node(L"buttons");
    node.setAttribute(L"name", L"bottom");
    Box box;
    box.setup(&node);
    QCOMPARE(box.objectName(), QString());
}

void tst_zelQtUIDialogButtonBox::rolesOfTheModelBecomeRolesOfQt_data()
{
    QTest::addColumn<int>("modelRole");
    QTest::addColumn<int>("qtRole");
    QTest::newRow("0") << 0 << int(QDialogButtonBox::AcceptRole);
    QTest::newRow("1") << 1 << int(QDialogButtonBox::RejectRole);
    QTest::newRow("2") << 2 << int(QDialogButtonBox::RejectRole);
    QTest::newRow("3") << 3 << int(QDialogButtonBox::ActionRole);
    QTest::newRow("any other") << 9 << int(QDialogButtonBox::ActionRole);
}

void tst_zelQtUIDialogButtonBox::rolesOfTheModelBecomeRolesOfQt()
{
    QFETCH(int, modelRole);
    Box box;
    auto *button = new Button;
    box.addPushButton(button, static_cast<ZelUIDialogButtonBox::ButtonRole>(modelRole));
    QTEST(int(box.buttonRole(button)), "qtRole");
    QVERIFY(box.isAncestorOf(button));
}

void tst_zelQtUIDialogButtonBox::addingGivesTheIndexOfTheModel()
{
    Box box;
    ZelUIDialogButtonBox plain;
    ZelUIPushButton parts[3];
    for (ZelUIPushButton &part : parts) {
        const int expected = plain.addPushButton(&part, ZelUIDialogButtonBox::Action);
        QCOMPARE(box.addPushButton(new Button, ZelUIDialogButtonBox::Action), expected);
    }
}

void tst_zelQtUIDialogButtonBox::buttonThatIsNoWidgetIsKeptByTheModelOnly()
{
    ZelUIPushButton plain;
    Box box;
    QCOMPARE(box.addPushButton(&plain, ZelUIDialogButtonBox::Action), 0);
    QVERIFY(box.buttons().isEmpty());
}

void tst_zelQtUIDialogButtonBox::failedCalculationReachesTheModel()
{
    RecordingBox box;
    box.setCalcStateFailed();
    QCOMPARE(box.mStates, QList<bool>({false}));
}

void tst_zelQtUIDialogButtonBox::failedCalculationForbidsToAccept()
{
    Box box;
    auto *accept = new Button;
    auto *reject = new Button;
    box.addPushButton(accept, ZelUIDialogButtonBox::Accept);
    box.addPushButton(reject, ZelUIDialogButtonBox::Reject);
    box.setCalcStateFailed();
    QVERIFY(!accept->mEnabled);
    QVERIFY(reject->mEnabled);
}

QTEST_MAIN(tst_zelQtUIDialogButtonBox)
#include "tst_zelQtUIDialogButtonBox.moc"
