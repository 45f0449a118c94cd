#include "zelQtStdButtonBox.h"

#include "window.h"

class tst_zelQtStdButtonBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshBoxIsEmptyAndHasNoLayout();
    void visibilityReachesModelAndWidget();
};

void tst_zelQtStdButtonBox::freshBoxIsEmptyAndHasNoLayout()
{
    QWidget parent;
    const ZelQtStdButtonBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(!box.layout());
    QVERIFY(box.empty());
    QCOMPARE(box.count(), 0);
}

void tst_zelQtStdButtonBox::visibilityReachesModelAndWidget()
{
    QWidget window;
    ZelQtStdButtonBox box(&window);
    window.show();
    QVERIFY(box.isVisible());
    ZelUIStdButtonBox &model = box;

    model.updateState(false);
    QVERIFY(!box.isVisible());
    QVERIFY(!model.mVisible);

    model.updateState(true);
    QVERIFY(box.isVisible());
    QVERIFY(model.mVisible);
}

QTEST_MAIN(tst_zelQtStdButtonBox)
#include "tst_zelQtStdButtonBox.moc"
