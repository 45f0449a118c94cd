#include "zelQtUiWidget.h"

#include "maskTestSupport.h"
#include "window.h"
#include "zelDomDocument.h"

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
    void setupTakesNameAndTopicOfTheDescription_data();
    void setupTakesNameAndTopicOfTheDescription();
    void formFollowsEnabledAndVisible();
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

void tst_zelQtUiWidget::setupTakesNameAndTopicOfTheDescription_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::newRow("both") << QByteArray(R"(<external name="form" help="7"/>)") << "form" << 7;
    QTest::newRow("no topic leaves that of the form")
        << QByteArray(R"(<external name="form"/>)") << "form" << 1203;
    QTest::newRow("neither") << QByteArray("<external/>") << QString() << 1203;
}

void tst_zelQtUiWidget::setupTakesNameAndTopicOfTheDescription()
{
    QFETCH(QByteArray, node);
    ZelFaultList faults;
    const auto document = ZelDomDocument::fromText(node.toStdString(), "form.xml", faults);
    Form form(1203, nullptr);
    form.setup(document.root());
    QTEST(form.objectName(), "name");
    QTEST(form.authorItCode(), "code");
}

void tst_zelQtUiWidget::formFollowsEnabledAndVisible()
{
    QWidget window;
    Form form(&window);
    window.show();
    ZelUIObject &node = form;
    form.mEnabled = false;
    node.updateState(nullptr, 0);
    QVERIFY(form.isVisible() && !form.isEnabled());
    form.mVisible = false;
    form.mEnabled = true;
    node.updateState(nullptr, 0);
    QVERIFY(!form.isVisible() && form.isEnabled());
}

QTEST_MAIN(tst_zelQtUiWidget)
#include "tst_zelQtUiWidget.moc"
