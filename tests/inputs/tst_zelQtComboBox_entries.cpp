#include "zelQtComboBox.h"

#include "comboBoxOnPage.h"

#include <QStandardItemModel>
#include <QStringListModel>
#include <QTranslator>

// The entries of a box: identifiers, icons, disabled ones, and the widths that they ask for.
class tst_zelQtComboBox_entries : public QObject
{
    Q_OBJECT

private slots:
    void currentDataIsThatOfTheEntry();
    void setCurrentDataFallsBackWhenAsked_data();
    void setCurrentDataFallsBackWhenAsked();
    void dataIsFoundByNumberWhateverItsType();
    void undefinedEntryHasIconTextAndId();
    void undefinedEntryFollowsTheLanguage();
    void iconsAreNoticed();
    void emptyBoxHasNoTextWidth();
    void textWidthIsThatOfTheWidestEntryWithoutTags();
    void inputWidthGoesByTheFlags();
    void sizeHintIsOneLineHigh();
    void standardWidthFixesThePolicyAndFreesIt();
    void leastWidthIsTheStandardWidthUnlessSwitchedOff();
    void openListIsAsWideAsItsEntries();
    void disabledEntryIsGreyAndCannotBeChosen();
    void disabledEntriesOfAForeignModelStay();
    void emptySetLeavesDisabledEntries();

private:
    const QuickRelease mQuickRelease;
};

void tst_zelQtComboBox_entries::currentDataIsThatOfTheEntry()
{
    ZelQtComboBox box;
    QVERIFY(!box.currentData().isValid());
    addThree(box);
    box.setCurrentIndex(1);
    QCOMPARE(box.currentData(), QVariant(2));
}

void tst_zelQtComboBox_entries::setCurrentDataFallsBackWhenAsked_data()
{
    QTest::addColumn<int>("data");
    QTest::addColumn<bool>("fallback");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("index");
    QTest::newRow("known") << 3 << false << true << 2;
    QTest::newRow("known, with fallback") << 3 << true << true << 2;
    QTest::newRow("unknown") << 9 << false << false << -1;
    QTest::newRow("unknown, with fallback") << 9 << true << false << 0;
}

void tst_zelQtComboBox_entries::setCurrentDataFallsBackWhenAsked()
{
    QFETCH(int, data);
    QFETCH(bool, fallback);
    ZelQtComboBox box;
    addThree(box);
    box.setCurrentIndex(1);
    QTEST(box.setCurrentData(data, fallback), "found");
    QTEST(box.currentIndex(), "index");
}

void tst_zelQtComboBox_entries::dataIsFoundByNumberWhateverItsType()
{
    ZelQtComboBox box;
    box.addItem("short", 2);
    box.addItem("long", qlonglong(5000000000));
    QVERIFY(box.setCurrentData(qlonglong(5000000000), false));
    QCOMPARE(box.currentText(), QStringLiteral("long"));
    QVERIFY(box.setCurrentData(qlonglong(2), false));
    QCOMPARE(box.currentText(), QStringLiteral("short"));
}

void tst_zelQtComboBox_entries::undefinedEntryHasIconTextAndId()
{
    ZelQtComboBox box;
    box.addUndefinedItem(-1);
    QCOMPARE(box.itemText(0), QStringLiteral("nicht definiert"));
    QCOMPARE(box.itemData(0), QVariant(-1));
    QVERIFY(!box.itemIcon(0).pixmap(16).isNull());
}

class OneText : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool known =
            qstrcmp(context, "ZelQtComboBox") == 0 && qstrcmp(source, "nicht definiert") == 0;
        return known ? QStringLiteral("not defined") : QString();
    }
    bool isEmpty() const override { return false; }
};

void tst_zelQtComboBox_entries::undefinedEntryFollowsTheLanguage()
{
    ZelQtComboBox box;
    box.addItem("nicht definiert", 4); // an entry of the application that happens to read the same
    box.addUndefinedItem(-1);
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&box, &change);
    QCOMPARE(box.itemText(0), QStringLiteral("nicht definiert"));
    QCOMPARE(box.itemText(1), QStringLiteral("not defined"));
    QCOMPARE(box.itemData(1), QVariant(-1));
    QCoreApplication::removeTranslator(&translator);
}

void tst_zelQtComboBox_entries::iconsAreNoticed()
{
    ZelQtComboBox box;
    QVERIFY(!box.hasIcons());
    addThree(box);
    QVERIFY(!box.hasIcons());
    box.addUndefinedItem(0);
    QVERIFY(box.hasIcons());
}

void tst_zelQtComboBox_entries::emptyBoxHasNoTextWidth()
{
    QCOMPARE(ZelQtComboBox().absTextWidth(), 0);
}

void tst_zelQtComboBox_entries::textWidthIsThatOfTheWidestEntryWithoutTags()
{
    const QFontMetrics metrics = QApplication::fontMetrics();
    const double reserve = 0.5 * metrics.horizontalAdvance('w');
    const auto width = [&](const QString &text) {
        return int(metrics.horizontalAdvance(text) + reserve);
    };
    ZelQtComboBox box;
    box.addItem("wide entry");
    box.addItem("<b>i</b><sub>i</sub>");
    QCOMPARE(box.absTextWidth(), width("wide entry"));
    box.addItem("a still wider entry<sup>2</sup>");
    QCOMPARE(box.absTextWidth(), width("a still wider entry2"));
}

void tst_zelQtComboBox_entries::inputWidthGoesByTheFlags()
{
    ZelQtComboBox box;
    addThree(box);
    const int character = box.fontMetrics().averageCharWidth();
    QCOMPARE(box.inputWidth(), box.absTextWidth() + 4 * character);
    box.setOurMaxWidth(true);
    QCOMPARE(box.inputWidth(), 50 * character);
    box.setOurStdWidth(true); // wins
    QCOMPARE(box.inputWidth(), 16 * character);
    box.setOurMaxWidth(false);
    QCOMPARE(box.inputWidth(), 16 * character);
}

void tst_zelQtComboBox_entries::sizeHintIsOneLineHigh()
{
    ZelQtComboBox box;
    addThree(box);
    const QFontMetrics metrics = box.fontMetrics();
    QCOMPARE(box.sizeHint(), QSize(box.inputWidth(), metrics.height() + metrics.lineSpacing() / 2));
}

void tst_zelQtComboBox_entries::standardWidthFixesThePolicyAndFreesIt()
{
    ZelQtComboBox box;
    box.setOurStdWidth(true);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    box.setOurStdWidth(false);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    box.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    box.setOurMaxWidth(true); // leaves it
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void tst_zelQtComboBox_entries::leastWidthIsTheStandardWidthUnlessSwitchedOff()
{
    ZelQtComboBox box;
    box.addItem("an entry that is much wider than the standard width of a field");
    const int standard = 16 * box.fontMetrics().averageCharWidth();
    QCOMPARE(box.minimumSizeHint().width(), standard);
    box.setOurMinWidth(false);
    QVERIFY(box.minimumSizeHint().width() > standard);
}

void tst_zelQtComboBox_entries::openListIsAsWideAsItsEntries()
{
    ZelQtComboBox box;
    box.addItem("an entry that is much wider than the box");
    box.resize(60, box.sizeHint().height());
    const int width = box.absTextWidth() + 5 * box.fontMetrics().averageCharWidth();
    QVERIFY(showAndActivate(&box));
    box.showPopup();
    QCOMPARE(box.view()->minimumWidth(), width);
    QVERIFY(box.view()->width() >= width);
    box.hidePopup();

    box.addUndefinedItem(0);
    box.showPopup();
    QCOMPARE(box.view()->minimumWidth(), width + box.iconSize().width());
    box.hidePopup();
}

void tst_zelQtComboBox_entries::disabledEntryIsGreyAndCannotBeChosen()
{
    Fixture fixture;
    ZelQtComboBox &box = fixture.mField;
    addThree(box);
    box.mDisabledIDs = {2};
    box.applyDisabledIDs();
    QCOMPARE(box.count(), 3);
    QVERIFY(!(box.model()->flags(box.model()->index(1, 0)) & Qt::ItemIsEnabled));
    QVERIFY(fixture.enter());

    QTest::mousePress(&box, Qt::LeftButton);
    QTest::mouseRelease(&box, Qt::LeftButton);
    clickInList(box, 1);
    QVERIFY(box.view()->isVisible()); // the click is no choice of the current entry either
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(fixture.take(), QStringList());
    box.hidePopup();

    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(fixture.take(), wholeEdit);

    box.mDisabledIDs = {1};
    box.applyDisabledIDs(); // the others are free again
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.currentIndex(), 1);
}

void tst_zelQtComboBox_entries::disabledEntriesOfAForeignModelStay()
{
    ZelQtComboBox box;
    QStringListModel model({"one", "two"});
    box.setModel(&model);
    box.mDisabledIDs = {0};
    box.applyDisabledIDs();
    QVERIFY(model.flags(model.index(0)) & Qt::ItemIsEnabled);
}

void tst_zelQtComboBox_entries::emptySetLeavesDisabledEntries()
{
    ZelQtComboBox box;
    addThree(box);
    box.mDisabledIDs = {2};
    box.applyDisabledIDs();
    box.mDisabledIDs.clear();
    box.applyDisabledIDs();
    QVERIFY(!(box.model()->flags(box.model()->index(1, 0)) & Qt::ItemIsEnabled));
}

QTEST_MAIN(tst_zelQtComboBox_entries)
#include "tst_zelQtComboBox_entries.moc"
