#include "builtMask.h"

#include "modal.h"
#include "tarvexModule.h"
#include "zelLanguage.h"
#include "zelQtComboBox.h"
#include "zelQtContextMenu.h"
#include "zelQtFlag.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cstring>

// A person changes units, unit system or language of a mask: no number changes by it.

namespace {

const char *const units = R"(<module id="test">
 <variables>
  <real name="size" text="Größe" unit="mm" components="2" initial="0.1 25.4" bottom="0" top="1000"/>
  <real name="t" text="Dicke" unit="mm" initial="3"/>
  <real name="F" text="Kraft" unit="N" initial="4.4482216152605"/>
 </variables>
 <page name="p" text="Seite"><board><column>
  <var name="size"/><var name="t"/><var name="F"/>
 </column></board></page>
</module>)";

const char *const texts = R"(<module id="test">
 <variables>
  <list name="kind" text="Art" initial="none">
   <entry id="1" name="none" text="ohne"/><entry id="2" name="light" text="leicht"/>
   <entry id="3" name="heavy" text="schwer"/>
  </list>
  <real name="m" text="Masse" unit="kg"/><bool name="lock" text="Sperren"/>
 </variables>
 <page name="p" text="Seite">
  <board frame="true" name="box" text="Gruppe"><column>
   <var name="kind"/><var name="m"/><var name="lock"/>
  </column></board>
  <tabs><page name="more" text="Mehr"/></tabs>
 </page>
</module>)";

// Right click, then the entry of that text.
void chooseUnit(ZelQtUnitLabel *label, const QString &unit)
{
    const auto menu = onPopup<ZelQtContextMenu>([&unit](QMenu *menu) {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == unit)
                QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                                  menu->actionGeometry(action).center());
        }
    });
    const QPoint middle = label->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, label->mapToGlobal(middle));
    QApplication::sendEvent(label, &event);
    QVERIFY(menu.ran());
}

uint64_t bitsOf(double number)
{
    uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

} // namespace

class tst_builtMask_units : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void descriptionsOfThisFileHaveNoFaults();
    void unitMenuChangesAllInputsOfTheLine();
    void otherUnitKeepsEveryStoredBit();
    void numberTypedInAnotherUnitIsStoredInTheDefaultOne();
    void limitsFollowTheUnit();
    void unitSystemChangesAllLines();
    void languageChangesTextsAndKeepsTheEntries();
};

void tst_builtMask_units::cleanup()
{
    setZelLanguage(ZelLanguage::German);
    TarvexModule::Setup = nullptr;
}

void tst_builtMask_units::descriptionsOfThisFileHaveNoFaults()
{
    QCOMPARE(BuiltMask(units).faults(), QStringList());
    QCOMPARE(BuiltMask(texts).faults(), QStringList());
}

void tst_builtMask_units::unitMenuChangesAllInputsOfTheLine()
{
    BuiltMask mask(units);
    QVERIFY(mask.show());
    chooseUnit(mask.find<ZelQtUnitLabel>("size_unit"), "cm");

    QCOMPARE(mask.find<ZelQtUnitLabel>("size_unit")->text(), QString("cm"));
    QCOMPARE(mask.find<ZelQtValueEdit>("size")->text(), QString("0.0100"));
    QCOMPARE(mask.find<ZelQtValueEdit>("size_2")->text(), QString("2.5400"));
    // Other lines of the dimension keep theirs.
    QCOMPARE(mask.find<ZelQtUnitLabel>("t_unit")->text(), QString("mm"));

    mask.mMask->refresh();
    QCOMPARE(mask.find<ZelQtUnitLabel>("size_unit")->text(), QString("cm"));
    QCOMPARE(mask.find<ZelQtValueEdit>("size_2")->text(), QString("2.5400"));
}

void tst_builtMask_units::otherUnitKeepsEveryStoredBit()
{
    BuiltMask mask(units);
    QVERIFY(mask.show());
    QStringList changes;
    mask.meta().setObserver([&changes](const ZelValueChange &change) {
        changes << QString::fromStdWString(change.mVariable->name());
    });
    const auto bits = [&mask] {
        return QList<uint64_t>{bitsOf(mask.real(L"size")), bitsOf(mask.real(L"size", 1))};
    };
    const QList<uint64_t> former = bits();
    for (const char *unit : {"in", "m", "mil", "ft", "mm"}) {
        chooseUnit(mask.find<ZelQtUnitLabel>("size_unit"), unit);
        QCOMPARE(mask.find<ZelQtUnitLabel>("size_unit")->text(), QString(unit));
        mask.mMask->collect();
        mask.mMask->refresh();
        // Tab through the fields, as nobody can avoid.
        QVERIFY(focus(mask.find<ZelQtValueEdit>("size")));
        QTest::keyClick(mask.find<ZelQtValueEdit>("size"), Qt::Key_Tab);
        mask.mMask->collect();
    }
    QCOMPARE(bits(), former);
    QCOMPARE(changes, QStringList());
}

void tst_builtMask_units::numberTypedInAnotherUnitIsStoredInTheDefaultOne()
{
    BuiltMask mask(units);
    QVERIFY(mask.show());
    chooseUnit(mask.find<ZelQtUnitLabel>("size_unit"), "in");
    QVERIFY(enter(mask.find<ZelQtValueEdit>("size_2"), "2"));
    QCOMPARE(mask.real(L"size", 1), 50.8);
    QCOMPARE(mask.find<ZelQtValueEdit>("size_2")->text(), QString("2.0000"));
}

void tst_builtMask_units::limitsFollowTheUnit()
{
    BuiltMask mask(units);
    QVERIFY(mask.show());
    chooseUnit(mask.find<ZelQtUnitLabel>("size_unit"), "m");
    auto *field = mask.find<ZelQtValueEdit>("size");
    // 1000 mm are the limit: 0.5 m is within, 2 m is cut to 1 m.
    QVERIFY(enter(field, "0.5"));
    QCOMPARE(mask.real(L"size"), 500.0);
    QVERIFY(enter(field, "2"));
    QCOMPARE(field->text(), QString("1.0000"));
}

void tst_builtMask_units::unitSystemChangesAllLines()
{
    BuiltMask mask(units);
    QVERIFY(mask.show());
    const uint64_t former = bitsOf(mask.real(L"F"));
    TarvexSetup setup;
    setup.mUSCustomaryUnits = 1;
    TarvexModule::Setup = &setup;
    mask.mMask->updateUnitSystem();
    QCOMPARE(mask.find<ZelQtUnitLabel>("F_unit")->text(), QString("lbf"));
    QCOMPARE(mask.find<ZelQtValueEdit>("F")->text(), QString("1.0000"));
    QCOMPARE(mask.find<ZelQtUnitLabel>("size_unit")->text(), QString("in"));
    QCOMPARE(mask.find<ZelQtValueEdit>("size_2")->text(), QString("1.0000"));
    mask.mMask->collect();
    QCOMPARE(bitsOf(mask.real(L"F")), former);

    setup.mUSCustomaryUnits = 0;
    mask.mMask->updateUnitSystem();
    QCOMPARE(mask.find<ZelQtUnitLabel>("F_unit")->text(), QString("N"));
    QCOMPARE(mask.find<ZelQtUnitLabel>("size_unit")->text(), QString("mm"));
}

void tst_builtMask_units::languageChangesTextsAndKeepsTheEntries()
{
    QTemporaryDir directory;
    const QString path = directory.filePath("test.xml");
    const auto write = [](const QString &name, const QByteArray &bytes) {
        QFile file(name);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write(path, texts));
    QVERIFY(write(directory.filePath("test.tsv"),
                  "German\tEnglish\nSeite\tPage\nMasse\tMass\nMehr\tMore\n"
                  "Sperren\tLock\nleicht\tlight\nGruppe\tGroup\n"));
    const auto mask = BuiltMask::fromFile(path);
    QVERIFY(mask->show());
    auto *kind = mask->find<ZelQtComboBox>("kind");
    QVERIFY(focus(kind));
    QTest::keyClick(kind, Qt::Key_Down);

    setZelLanguage(ZelLanguage::English);
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(mask->mHost.get(), &event);
    mask->mMask->retranslate();

    QCOMPARE(mask->find<QLabel>("m_label")->text(), QString("Mass"));
    QCOMPARE(mask->find<ZelQtFlag>("lock")->text(), QString("Lock"));
    QCOMPARE(mask->page()->windowTitle(), QString("Page"));
    QCOMPARE(mask->find<QGroupBox>("box")->title(), QString("Group"));
    QCOMPARE(mask->mHost->findChild<QTabWidget *>()->tabText(0), QString("More"));
    QCOMPARE(kind->currentText(), QString("light"));
    QCOMPARE(kind->itemText(2), QString("schwer")); // not translated
    mask->mMask->collect();
    QCOMPARE(mask->integer(L"kind"), int64_t(2));
}

QTEST_MAIN(tst_builtMask_units)
#include "tst_builtMask_units.moc"
