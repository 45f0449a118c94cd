#include "builtMask.h"

#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QScrollArea>

// What a refresh costs: nothing for what stays as it is.

namespace {

const char *const lines = R"(<module id="test">
 <variables>
  <bool name="on" text="An" initial="true"/>
  <list name="kind" text="Art"><entry id="1" name="a" text="eins"/>
   <entry id="2" name="b" text="zwei"/></list>
  <real name="a" text="Länge" formula="l_1" unit="mm" bottom="0" top="10"/>
  <real name="b" text="Breite" unit="mm" visible="a > 5"/>
  <int name="n" text="Anzahl" bottom="1"/>
  <text name="note" text="Notiz" enabled="on"/>
  <choice name="by" by="typing"><alternative name="l" vars="L"/>
   <alternative name="m" vars="M"/></choice>
  <real name="L" text="Last" unit="N"/><real name="M" text="Moment" unit="N·m"/>
  <real name="R" text="Ergebnis" unit="N/mm" role="result"/>
 </variables>
 <page name="p" text="Seite">
  <board row="0"><column><var name="on"/><var name="kind"/><var name="a" buttons="info"/>
   <var name="b"/><var name="n"/><var name="note"/><var name="L"/><var name="M"/><var name="R"/>
  </column></board>
  <tabs row="1"><page name="A" text="A"><board frame="true" text="Gruppe"><column><var name="a"/>
   </column></board></page></tabs>
 </page>
</module>)";

/// Counts the events of a kind below a widget, itself included.
class Counter : public QObject
{
public:
    Counter(QWidget *top, QList<QEvent::Type> types)
        : mTypes(std::move(types))
    {
        top->installEventFilter(this);
        const auto below = top->findChildren<QWidget *>();
        for (QWidget *widget : below)
            widget->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (mTypes.contains(event->type()))
            mSeen << QStringLiteral("%1 of %2").arg(event->type()).arg(watched->objectName());
        return false;
    }
    QStringList mSeen;

private:
    QList<QEvent::Type> mTypes;
};

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

class tst_builtMask_refresh : public QObject
{
    Q_OBJECT

private slots:
    void withoutChangeNothingIsLaidOutOrPainted();
    void aChangedValueIsPaintedAlone();
    void aChangedConditionLaysOut();
    void aScrolledOutValueIsRightWhenItComesIntoSight();
};

void tst_builtMask_refresh::withoutChangeNothingIsLaidOutOrPainted()
{
    BuiltMask mask(lines);
    QCOMPARE(mask.faults(), QStringList());
    QVERIFY(mask.show());
    mask.mMask->refresh();
    settle();
    Counter counter(mask.mHost.get(),
                    {QEvent::LayoutRequest, QEvent::Paint, QEvent::UpdateRequest,
                     QEvent::PaletteChange, QEvent::EnabledChange, QEvent::Resize});
    mask.mMask->refresh();
    settle();
    QCOMPARE(counter.mSeen, QStringList());
}

void tst_builtMask_refresh::aChangedValueIsPaintedAlone()
{
    BuiltMask mask(lines);
    QVERIFY(mask.show());
    mask.mMask->refresh();
    settle();
    auto *field = mask.find<ZelQtValueEdit>("L");
    const Counter counter(mask.find<ZelQtValueEdit>("M"), {QEvent::Paint});
    const Counter ownCounter(field, {QEvent::Paint});
    mask.meta().setReal(*mask.meta().variable(L"L"), 0, 0, 7, ZelOrigin::Module);
    mask.mMask->refresh();
    settle();
    QCOMPARE(field->text(), QStringLiteral("7.0000"));
    QVERIFY(!ownCounter.mSeen.isEmpty());
    QCOMPARE(counter.mSeen, QStringList());
}

void tst_builtMask_refresh::aChangedConditionLaysOut()
{
    BuiltMask mask(lines);
    QVERIFY(mask.show());
    const auto *below = mask.find<ZelQtValueEdit>("n");
    const auto *hidden = mask.find<ZelQtValueEdit>("b");
    settle();
    QVERIFY(hidden->isHidden());
    const int before = placeOn(below, mask.mHost.get()).y();
    mask.meta().setReal(*mask.meta().variable(L"a"), 0, 0, 6, ZelOrigin::Module);
    mask.mMask->refresh();
    settle();
    QVERIFY(hidden->isVisible());
    QVERIFY(placeOn(below, mask.mHost.get()).y() > before);
}

void tst_builtMask_refresh::aScrolledOutValueIsRightWhenItComesIntoSight()
{
    QScrollArea area;
    BuiltMask mask(lines);
    QWidget *host = mask.mHost.get();
    area.setWidget(host);
    area.resize(host->sizeHint().width() + 20, 60);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    settle();
    auto *field = mask.find<ZelQtValueEdit>("M");
    QVERIFY(field->visibleRegion().isEmpty());
    const Counter counter(field, {QEvent::Paint});
    mask.meta().setReal(*mask.meta().variable(L"M"), 0, 0, 7, ZelOrigin::Module);
    mask.mMask->refresh();
    settle();
    QCOMPARE(field->text(), QStringLiteral("7.0000"));
    QCOMPARE(counter.mSeen, QStringList());
    area.ensureWidgetVisible(field);
    settle();
    QVERIFY(!counter.mSeen.isEmpty());
    area.takeWidget(); // it belongs to the mask
}

QTEST_MAIN(tst_builtMask_refresh)
#include "tst_builtMask_refresh.moc"
