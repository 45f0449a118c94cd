#include "zelQtWidgetHelpers_p.h"

#include "recorder.h"
#include "zelDomNode.h"
#include "zelQtTabPage.h"
#include "zelQtWidget.h"
#include "zelUIInput.h"
#include "zelUIMultiVar.h"

#include <QGroupBox>
#include <QtTest>

class tst_zelQtWidgetHelpers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    // sizes
    void sizesComeFromTheFont();

    // search for the host
    void nearestHostHears();
    void hostAboveOtherWidgetsHears();
    void dialogIsAHostToo();
    void widgetItselfIsNeverTheHost();
    void withoutHostNobodyHears();
    void hostOfAWindowOfItsOwnHears();
    void informationRequestsPassOverTabPages();

    // names
    void itemIsNamedAfterItsPlaceInThePage();
    void plainObjectIsNamedAfterItsVariable();
    void nodeNamesAnObjectWithoutName();
    void nodeDoesNotCountBesideAName();
    void nodeWithoutNameChangesNothing();
    void nothingNamesAnObjectWithoutNameAndNode();
    void helpCodeIsOverwrittenInEveryCaseOnPurpose();
    void widgetWithoutModelSideIsLeftAlone();
};

namespace {

class Object : public ZelQtWidget, public ZelUIObject
{
public:
    using ZelQtWidget::setAuthorItCode;
};

/// An input that takes a component of a variable.
class Item : public QWidget, public ZelUIInput
{
public:
    Item(ZelUIVar *variable, int component)
    {
        AttrMap attributes;
        setup(variable, attributes);
        setModelComponent(component);
    }
};

} // namespace

void tst_zelQtWidgetHelpers::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtWidgetHelpers::sizesComeFromTheFont()
{
    QWidget widget;
    QFont font = widget.font();
    font.setPixelSize(31);
    widget.setFont(font);
    const QFontMetrics metrics = widget.fontMetrics();
    QCOMPARE(standardHeight(&widget), metrics.height() + metrics.lineSpacing() / 2);
    QCOMPARE(standardWidth(&widget), 16 * metrics.averageCharWidth());
    QCOMPARE(maximumWidth(&widget), 50 * metrics.averageCharWidth());
}

static QStringList notifyAll(QWidget *widget, bool *found, RecordedPage &page)
{
    *found = notifyHostValueChanged(widget);
    *found = notifyHostValueConfirmed(widget) && *found;
    *found = notifyHostInfoChanged(widget, QStringLiteral("a.htm")) && *found;
    *found = notifyHostInfoChanged(widget, 7) && *found;
    return page.take();
}

static const QStringList allNotes{
    QStringLiteral("host valueChanged"), QStringLiteral("host valueConfirmed"),
    QStringLiteral("host infoChanged(a.htm)"), QStringLiteral("host infoChanged(7)")};

void tst_zelQtWidgetHelpers::nearestHostHears()
{
    RecordedPage outer;
    RecordedPage inner(&outer);
    QWidget widget(&inner);
    bool found = false;
    QCOMPARE(notifyAll(&widget, &found, inner), allNotes);
    QVERIFY(found);
    QCOMPARE(outer.take(), QStringList());
}

void tst_zelQtWidgetHelpers::hostAboveOtherWidgetsHears()
{
    RecordedPage page;
    QGroupBox box(&page);
    QWidget frame(&box);
    QWidget widget(&frame);
    bool found = false;
    QCOMPARE(notifyAll(&widget, &found, page), allNotes);
    QVERIFY(found);
}

void tst_zelQtWidgetHelpers::dialogIsAHostToo()
{
    RecordedDialog dialog;
    QWidget widget(&dialog);
    QVERIFY(notifyHostValueChanged(&widget));
    QVERIFY(notifyHostValueConfirmed(&widget));
    QVERIFY(notifyHostInfoChanged(&widget, QStringLiteral("a.htm")));
    QVERIFY(notifyHostInfoChanged(&widget, 7));
    QCOMPARE(dialog.take(), allNotes);
}

void tst_zelQtWidgetHelpers::widgetItselfIsNeverTheHost()
{
    RecordedPage outer;
    RecordedPage inner(&outer);
    bool found = false;
    QCOMPARE(notifyAll(&inner, &found, outer), allNotes);
    QVERIFY(found);
    QCOMPARE(inner.take(), QStringList());
    QVERIFY(!notifyHostValueChanged(&outer));
    QCOMPARE(outer.take(), QStringList());
}

void tst_zelQtWidgetHelpers::withoutHostNobodyHears()
{
    QWidget parent;
    QWidget widget(&parent);
    QVERIFY(!notifyHostValueChanged(&widget));
    QVERIFY(!notifyHostValueConfirmed(&widget));
    QVERIFY(!notifyHostInfoChanged(&widget, QString()));
    QVERIFY(!notifyHostInfoChanged(&widget, 7));
}

void tst_zelQtWidgetHelpers::hostOfAWindowOfItsOwnHears()
{
    // A popup or dialog without a host's qualities belongs to the mask of its parent.
    RecordedPage page;
    QDialog window(&page);
    QWidget widget(&window);
    QVERIFY(widget.window() == &window);
    QVERIFY(notifyHostValueChanged(&widget));
    QCOMPARE(page.take(), QStringList(QStringLiteral("host valueChanged")));
}

void tst_zelQtWidgetHelpers::informationRequestsPassOverTabPages()
{
    RecordedPage page;
    RecordedHost<ZelQtTabPage> tab(&page);
    QWidget widget(&tab);
    bool found = false;
    QCOMPARE(notifyAll(&widget, &found, page), allNotes.mid(2));
    QVERIFY(found);
    QCOMPARE(tab.take(), allNotes.mid(0, 2));
}

void tst_zelQtWidgetHelpers::itemIsNamedAfterItsPlaceInThePage()
{
    ZelUIMultiVar variable(L"F", ZelDimensions::Newton, 2);
    Item item(&variable, 1);
    applyElementName(&item, nullptr);
    QCOMPARE(item.objectName(), QStringLiteral("F_2"));
    QCOMPARE(item.whatsThis(), QStringLiteral("F"));
}

void tst_zelQtWidgetHelpers::plainObjectIsNamedAfterItsVariable()
{
    Object object;
    object.setModelName(L"page");
    applyElementName(&object, nullptr);
    QCOMPARE(object.objectName(), QStringLiteral("page"));
    QCOMPARE(object.whatsThis(), QStringLiteral("page"));
}

void tst_zelQtWidgetHelpers::nodeNamesAnObjectWithoutName()
{
    ZelDomNode node(L"page");
    node.setAttribute(L"name", L"input");
    Object object;
    object.setWhatsThis(QStringLiteral("before"));
    applyElementName(&object, &node);
    QCOMPARE(object.objectName(), QStringLiteral("input"));
    QCOMPARE(object.whatsThis(), QStringLiteral("before"));
}

void tst_zelQtWidgetHelpers::nodeDoesNotCountBesideAName()
{
    ZelDomNode node(L"page");
    node.setAttribute(L"name", L"input");
    Object object;
    object.setModelName(L"page");
    applyElementName(&object, &node);
    QCOMPARE(object.objectName(), QStringLiteral("page"));
}

void tst_zelQtWidgetHelpers::nodeWithoutNameChangesNothing()
{
    const ZelDomNode node(L"page");
    Object object;
    object.setObjectName(QStringLiteral("before"));
    applyElementName(&object, &node);
    QCOMPARE(object.objectName(), QStringLiteral("before"));
}

void tst_zelQtWidgetHelpers::nothingNamesAnObjectWithoutNameAndNode()
{
    Object object;
    object.setObjectName(QStringLiteral("before"));
    applyElementName(&object, nullptr);
    QCOMPARE(object.objectName(), QStringLiteral("before"));
    QCOMPARE(object.whatsThis(), QString());
}

void tst_zelQtWidgetHelpers::helpCodeIsOverwrittenInEveryCaseOnPurpose()
{
    Object object;
    object.setAuthorItCode(99);
    object.ZelUIObject::setAuthorItCode(7);
    applyElementName(&object, nullptr);
    QCOMPARE(object.authorItCode(), 7);

    Object without;
    without.setAuthorItCode(99);
    applyElementName(&without, nullptr);
    QCOMPARE(without.authorItCode(), -1);
}

void tst_zelQtWidgetHelpers::widgetWithoutModelSideIsLeftAlone()
{
    ZelDomNode node(L"page");
    node.setAttribute(L"name", L"input");
    ZelQtWidget widget;
    widget.setAuthorItCode(99);
    applyElementName(&widget, &node);
    QCOMPARE(widget.objectName(), QString());
    QCOMPARE(widget.authorItCode(), 99);
}

QTEST_MAIN(tst_zelQtWidgetHelpers)
#include "tst_zelQtWidgetHelpers.moc"
