#include "zelQtGroupBox.h"

#include "maskParts.h"
#include "recorder.h"
#include "window.h"
#include "zelDomNode.h"
#include "zelQtColumnLayout.h"

#include <QGraphicsView>
#include <QLabel>

namespace {

ZelQtColumnLayout *column(const QString &name, bool withView = false)
{
    auto *layout = new ZelQtColumnLayout;
    layout->setObjectName(name);
    if (withView)
        layout->addWidget(new QGraphicsView, 0, 0);
    return layout;
}

// The group's layout: "head", "[head *]" or "[head/[column1 * column2]/foot]" with the stretch of
// each item of the vertical layout, "(100 0 0)".
QString describeContent(const QGroupBox &group)
{
    QLayout *layout = group.layout();
    if (!layout)
        return QStringLiteral("none");
    auto *box = qobject_cast<QBoxLayout *>(layout);
    if (!box)
        return layout->objectName();
    QString text = describeBox(box);
    if (!qobject_cast<QVBoxLayout *>(box))
        return text;
    QStringList stretches;
    for (int i = 0; i < box->count(); ++i)
        stretches.append(QString::number(box->stretch(i)));
    return text + " (" + stretches.join(' ') + ')';
}

} // namespace

class tst_zelQtGroupBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleComesWithTheConstructor();
    void inactiveTextTakesTheColourOfTheApplication();
    void inactiveTextFollowsTheApplication();
    void layoutOfHeadColumnsAndFoot_data();
    void layoutOfHeadColumnsAndFoot();
    void headThatIsNoLayoutIsSkipped();
    void setupNamesTheGroupAndMakesItFlat();
    void retranslateSetsTheTitle();
    void groupFollowsVisibleOnly();
    void clickChangesAndConfirmsHostFirst();
    void groupWithoutHostSpeaksItself();
    void disabledChangeLeavesTheConfirmation();
    void programChecksInSilence();
};

void tst_zelQtGroupBox::titleComesWithTheConstructor()
{
    QWidget parent;
    const ZelQtGroupBox named(QStringLiteral("Lager"), &parent);
    QCOMPARE(named.title(), QString("Lager"));
    QCOMPARE(named.parentWidget(), &parent);
    QCOMPARE(ZelQtGroupBox(&parent).title(), QString());
}

void tst_zelQtGroupBox::inactiveTextTakesTheColourOfTheApplication()
{
    QWidget parent;
    QPalette palette = parent.palette();
    palette.setColor(QPalette::Inactive, QPalette::WindowText, Qt::magenta);
    parent.setPalette(palette);
    const ZelQtGroupBox unnamed(&parent);
    const ZelQtGroupBox named(QStringLiteral("Lager"), &parent);
    const QColor expected = QApplication::palette().color(QPalette::Inactive, QPalette::WindowText);
    QVERIFY(expected != QColor(Qt::magenta));
    for (const ZelQtGroupBox *group : {&unnamed, &named})
        QCOMPARE(group->palette().color(QPalette::Inactive, QPalette::WindowText), expected);
}

void tst_zelQtGroupBox::inactiveTextFollowsTheApplication()
{
    const QPalette before = QApplication::palette();
    QWidget parent;
    ZelQtGroupBox group(&parent);
    const QLabel label(&group);
    QPalette dark(QColor(43, 43, 43));
    dark.setColor(QPalette::Active, QPalette::WindowText, Qt::yellow);
    dark.setColor(QPalette::Inactive, QPalette::WindowText, Qt::cyan);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const QPalette followed = label.palette();
    QApplication::setPalette(before);
    QCOMPARE(followed.color(QPalette::Inactive, QPalette::WindowText), QColor(Qt::cyan));
    QCOMPARE(followed.color(QPalette::Active, QPalette::WindowText), QColor(Qt::yellow));
}

void tst_zelQtGroupBox::layoutOfHeadColumnsAndFoot_data()
{
    QTest::addColumn<QString>("parts"); // "head", "view-head", "foot", "view-foot"
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("pack");
    QTest::addColumn<QString>("content");

    QTest::newRow("nothing") << "" << 0 << false << "none";
    QTest::newRow("foot alone has no place") << "foot" << 0 << false << "none";
    // Without columns there is no vertical layout.
    QTest::newRow("head") << "head" << 0 << false << "head";
    QTest::newRow("head, packed") << "head" << 0 << true << "[head *]";
    QTest::newRow("head with view") << "view-head" << 0 << false << "head";
    QTest::newRow("head with view, packed") << "view-head" << 0 << true << "head";
    QTest::newRow("head and foot lose the foot, as meant") << "head foot" << 0 << false << "head";
    QTest::newRow("head and foot, packed, lose the foot too")
        << "head foot" << 0 << true << "[head *]";
    QTest::newRow("columns") << "" << 2 << false << "[column1 * column2]";
    QTest::newRow("columns, packed") << "" << 2 << true << "[column1 * column2 *]";
    QTest::newRow("one column") << "" << 1 << false << "[column1]";
    QTest::newRow("one column, packed") << "" << 1 << true << "[column1 *]";
    // With the vertical layout.
    QTest::newRow("head, columns") << "head" << 1 << false << "[head/[column1]] (0 0)";
    QTest::newRow("head, columns, packed") << "head" << 1 << true << "[[head *]/[column1 *]] (0 0)";
    QTest::newRow("head with view, columns")
        << "view-head" << 2 << false << "[head/[column1 * column2]] (100 0)";
    QTest::newRow("head with view, columns, packed")
        << "view-head" << 1 << true << "[head/[column1 *]] (100 0)";
    QTest::newRow("columns, foot") << "foot" << 1 << false << "[[column1]/foot] (0 0)";
    QTest::newRow("columns, foot, packed") << "foot" << 1 << true << "[[column1 *]/[foot *]] (0 0)";
    QTest::newRow("columns, foot with view")
        << "view-foot" << 1 << false << "[[column1]/foot] (0 100)";
    QTest::newRow("columns, foot with view, packed")
        << "view-foot" << 1 << true << "[[column1 *]/foot] (0 100)";
    QTest::newRow("all") << "head foot" << 2 << false << "[head/[column1 * column2]/foot] (0 0 0)";
    QTest::newRow("all, packed") << "head foot" << 1 << true
                                 << "[[head *]/[column1 *]/[foot *]] (0 0 0)";
    QTest::newRow("all with views")
        << "view-head view-foot" << 1 << false << "[head/[column1]/foot] (100 0 100)";
}

void tst_zelQtGroupBox::layoutOfHeadColumnsAndFoot()
{
    QFETCH(QString, parts);
    QFETCH(int, columns);
    QFETCH(bool, pack);
    const QStringList recipe = parts.split(' ');
    QWidget window;
    auto *group = new ZelQtGroupBox(&window);
    std::vector<std::unique_ptr<ZelQtColumnLayout>> own;
    const auto make = [&own](const QString &name, bool withView) {
        own.emplace_back(column(name, withView));
        return own.back().get();
    };
    if (parts.contains("head"))
        group->mHead = make("head", recipe.contains("view-head"));
    for (int i = 1; i <= columns; ++i)
        group->mColumns.push_back(make(QString("column%1").arg(i), false));
    if (parts.contains("foot"))
        group->mFoot = make("foot", recipe.contains("view-foot"));
    group->modelAdoptColumns();

    group->makeLayout(pack);

    QTEST(describeContent(*group), "content");
    for (auto &layout : own) {
        if (layout->parent())
            layout.release(); // belongs to the group now
    }
}

void tst_zelQtGroupBox::headThatIsNoLayoutIsSkipped()
{
    ZelUIColumn plain;
    ZelQtGroupBox alone;
    alone.mHead = &plain;
    alone.makeLayout(false);
    QVERIFY(!alone.layout());

    ZelQtGroupBox group;
    group.mHead = &plain;
    group.mColumns.push_back(column("column1"));
    group.makeLayout(true);
    QCOMPARE(describeContent(group), QString("[[column1 *]] (0)"));
}

void tst_zelQtGroupBox::setupNamesTheGroupAndMakesItFlat()
{
    ZelDomNode node(L"board");
    node.setAttribute(L"name", L"loads");
    node.setAttribute(L"flat", L"true");
    ZelQtGroupBox group;
    group.setup(&node);
    QCOMPARE(group.objectName(), QString("loads"));
    QVERIFY(group.mFlat);
    QVERIFY(group.isFlat());

    ZelQtGroupBox framed;
    framed.setFlat(true);
    framed.setup(std::make_unique<ZelDomNode>(L"board").get());
    QVERIFY(!framed.isFlat());
}

void tst_zelQtGroupBox::retranslateSetsTheTitle()
{
    ZelQtGroupBox group;
    group.mTitle.setText(L"Lager");
    QCOMPARE(group.title(), QString());
    group.retranslate();
    QCOMPARE(group.title(), QString("Lager"));
}

void tst_zelQtGroupBox::groupFollowsVisibleOnly()
{
    QWidget window;
    ZelQtGroupBox group(&window);
    window.show();
    group.mEnabled = false;
    group.mReadOnly = true;
    group.updateState(nullptr, 0);
    QVERIFY(group.isVisible());
    QVERIFY(group.isEnabled());

    group.mVisible = false;
    group.updateState(nullptr, 0);
    QVERIFY(!group.isVisible());
    group.mVisible = true;
    group.updateState(nullptr, 0);
    QVERIFY(group.isVisible());
}

void tst_zelQtGroupBox::clickChangesAndConfirmsHostFirst()
{
    RecordedPage host;
    auto *group = new ZelQtGroupBox(QStringLiteral("Lager"), &host);
    group->setCheckable(true);
    host.mRecorder.recordProtocol(group, "group");
    QVERIFY(showAndActivate(&host));
    QVERIFY(focus(group));

    QTest::keyClick(group, Qt::Key_Space);

    QVERIFY(!group->isChecked());
    QCOMPARE(host.take(),
             QStringList({"host valueChanged", "group valueChanged", "host valueConfirmed",
                          "group valueConfirmed"}));
}

void tst_zelQtGroupBox::groupWithoutHostSpeaksItself()
{
    QWidget window;
    auto *group = new ZelQtGroupBox(&window);
    group->setCheckable(true);
    EventRecorder recorder;
    recorder.recordProtocol(group, "group");
    QVERIFY(showAndActivate(&window));
    QVERIFY(focus(group));
    QTest::keyClick(group, Qt::Key_Space);
    QCOMPARE(recorder.take(), QStringList({"group valueChanged", "group valueConfirmed"}));
}

void tst_zelQtGroupBox::disabledChangeLeavesTheConfirmation()
{
    RecordedPage host;
    auto *group = new ZelQtGroupBox(&host);
    group->setCheckable(true);
    host.mRecorder.recordProtocol(group, "group");
    group->disableValueChanged();
    QVERIFY(showAndActivate(&host));
    QVERIFY(focus(group));
    QTest::keyClick(group, Qt::Key_Space);
    QCOMPARE(host.take(), QStringList({"host valueConfirmed", "group valueConfirmed"}));
}

void tst_zelQtGroupBox::programChecksInSilence()
{
    RecordedPage host;
    auto *group = new ZelQtGroupBox(&host);
    group->setCheckable(true);
    host.mRecorder.recordProtocol(group, "group");
    group->setChecked(false);
    QVERIFY(!group->isChecked());
    QCOMPARE(host.take(), QStringList());
}

QTEST_MAIN(tst_zelQtGroupBox)
#include "tst_zelQtGroupBox.moc"
