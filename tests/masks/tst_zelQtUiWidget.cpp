#include "zelQtUiWidget.h"

#include "maskTestSupport.h"
#include "window.h"

namespace {

/// Writes down what it was asked for.
class Form : public ZelQtUiWidget
{
public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;
    using ZelQtUiWidget::ZelQtUiWidget;
    void setData() override { mCalls.append("setData"); }
    void getData() override { mCalls.append("getData"); }

    QStringList mCalls;

protected:
    void retranslateStrings() override { mCalls.append("retranslateStrings"); }
    void resizeLayout() override { mCalls.append("resizeLayout"); }
};

} // namespace

class tst_zelQtUiWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpCodeStartsWithoutTopic();
    void helpCodeComesWithTheConstructor();
    void slotsStandInTheirOrder();
    void retranslateOfTheMaskReachesTheForm();
    void languageChangePassesTheFormByAsMeant();
    void walkOfTheModelMovesNoDataOfTheForm();
    void formCarriesItsHelpCodeToF1();
};

void tst_zelQtUiWidget::helpCodeStartsWithoutTopic()
{
    QWidget parent;
    const Form form(&parent);
    QCOMPARE(form.authorItCode(), -1);
    QCOMPARE(form.parentWidget(), &parent);
}

void tst_zelQtUiWidget::helpCodeComesWithTheConstructor()
{
    QWidget parent;
    const Form form(1203, &parent);
    QCOMPARE(form.authorItCode(), 1203);
    QCOMPARE(form.parentWidget(), &parent);
}

void tst_zelQtUiWidget::slotsStandInTheirOrder()
{
    const QMetaObject &meta = ZelQtUiWidget::staticMetaObject;
    QList<QByteArray> names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(meta.method(i).methodSignature());
    QCOMPARE(names, QList<QByteArray>({"setData()", "getData()", "retranslate()"}));
}

void tst_zelQtUiWidget::retranslateOfTheMaskReachesTheForm()
{
    Form form;
    ZelUIObject &node = form;
    node.retranslate();
    QCOMPARE(form.mCalls, QStringList("retranslateStrings"));
}

void tst_zelQtUiWidget::languageChangePassesTheFormByAsMeant()
{
    QWidget window;
    Form form(&window);
    changeLanguage(&window);
    QCOMPARE(form.mCalls, QStringList());
}

void tst_zelQtUiWidget::walkOfTheModelMovesNoDataOfTheForm()
{
    Form form;
    ZelUIContainer &node = form;
    node.setData(nullptr, 1);
    node.getData(nullptr, 1);
    QCOMPARE(form.mCalls, QStringList());
}

void tst_zelQtUiWidget::formCarriesItsHelpCodeToF1()
{
    Form form;
    form.setAuthorItCode(42);
    QVERIFY(showAndActivate(&form));
    form.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(focus(&form));
    QSignalSpy spy(&form, &ZelQtParentWidget::helpChanged);
    QTest::keyClick(&form, Qt::Key_F1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QString("42.htm"));
}

QTEST_MAIN(tst_zelQtUiWidget)
#include "tst_zelQtUiWidget.moc"
