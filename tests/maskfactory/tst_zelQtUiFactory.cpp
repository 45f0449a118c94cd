#include "zelQtUiFactory.h"

#include "meta.h"
#include "zelDescription.h"
#include "zelLanguage.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFlag.h"
#include "zelQtNotepad.h"
#include "zelQtTabPage.h"
#include "zelQtTextEdit.h"
#include "zelQtUiWidget.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"
#include "zelUIBoard.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIFlag.h"
#include "zelUIFormulaLabel.h"
#include "zelUIGroup.h"
#include "zelUINotepad.h"
#include "zelUISpacer.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUITabContainer.h"
#include "zelUiBuild.h"

#include <QtTest>
#include <QtWidgets>

namespace {

class Form : public ZelQtUiWidget
{
    Q_OBJECT

public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;
    using ZelQtUiWidget::ZelQtUiWidget;

public Q_SLOTS:
    void setData() override { ++mFilled; }
    void getData() override { }

public:
    int mFilled = 0;
};

const char *const description = R"(<module id="test">
 <variables>
  <real name="d" text="Durchmesser" formula="d_1" unit="mm"/>
  <real name="dmax" text="Größter" unit="mm" optional="true"/>
  <text name="note" text="Notiz"/>
  <notes name="notes" text="Notizen"/>
  <bool name="on" text="An"/>
  <table name="loads" text="Lasten"/>
 </variables>
 <page name="first" text="Seite">
  <board row="0" frame="true" text="Gruppe">
   <column>
    <var name="d" buttons="size info"/><var name="dmax"/><var name="note"/><var name="on"/>
    <table name="loads"/>
   </column>
  </board>
  <tabs row="1">
   <page name="a" text="A"><board><column><var name="notes"/></column></board></page>
   <page name="b" text="B"><external class="Form"/></page>
   <page name="c" text="C"><external class="Unknown"/></page>
  </tabs>
 </page>
</module>)";

// Page, module data and factory of one build.
class Built
{
public:
    Built()
    {
        mFactory.addForm(L"Form", [](QWidget *parent) { return new Form(parent); });
        mDescription = ZelDescription::fromText(description, "test.xml", mFaults);
        mDescription.describe(mMeta, mFaults);
        const ZelUiBuild build(mMeta, mFactory, mFaults, "test.xml");
        ZelUITabPage *page = mFactory.makeTabPage();
        page->setup(mDescription.pages().front());
        page->makeLayout();
        mFactory.discardUnused();
        mPage.reset(dynamic_cast<ZelQtTabPage *>(page));
    }

    Meta mMeta;
    ZelFaultList mFaults;
    ZelDescription mDescription;
    ZelQtUiFactory mFactory;
    std::unique_ptr<ZelQtTabPage> mPage;
};

} // namespace

class tst_zelQtUiFactory : public QObject
{
    Q_OBJECT

private slots:
    void containers();
    void parts();
    void iconButton_data();
    void iconButton();
    void kindsWithoutWidgetYieldNull();
    void aBuiltPageIsTheOnlyNewTopLevelWidget();
    void nothingShowsWhileAMaskIsBuilt();
    void everyVariableOfAKnownKindHasItsWidget();
    void iconButtonsKeepTheirTipsInEveryLanguage();
    void formsAreMadeByName();
    void partsWithoutPlaceAreDeleted();
    void aThousandPartsWithoutPlaceAreDeleted();
    void partsLeaveFewSiblingsBehind();
    void layoutsWithoutPlaceAreDeleted();
};

void tst_zelQtUiFactory::containers()
{
    ZelQtUiFactory factory;
    const std::unique_ptr<ZelUITabPage> page(factory.makeTabPage());
    QVERIFY(dynamic_cast<QWidget *>(page.get())->inherits("ZelQtTabPage"));
    QVERIFY(dynamic_cast<QWidget *>(factory.makeTabContainer())->inherits("ZelQtTabContainer"));
    QVERIFY(dynamic_cast<QLayout *>(factory.makeBoard())->inherits("ZelQtBoardLayout"));
    QVERIFY(dynamic_cast<QWidget *>(factory.makeGroup())->inherits("ZelQtGroupBox"));
    QVERIFY(dynamic_cast<QLayout *>(factory.makeColumn())->inherits("ZelQtColumnLayout"));
    QVERIFY(
        dynamic_cast<QWidget *>(factory.makeDialogButtonBox())->inherits("ZelQtUIDialogButtonBox"));
}

void tst_zelQtUiFactory::parts()
{
    ZelQtUiFactory factory;
    const auto isA = [](ZelUIObject *object, const char *name) {
        const auto *widget = dynamic_cast<QWidget *>(object);
        return widget && widget->inherits(name);
    };
    QVERIFY(isA(factory.makeTextLabel(ZelUIAlignment::Left), "ZelQtAdvancedLabel"));
    QVERIFY(isA(factory.makeFormulaLabel(), "ZelQtFormulaLabel"));
    QVERIFY(isA(factory.makeUnitLabel(), "ZelQtUnitLabel"));
    QVERIFY(isA(factory.makeValueEdit(), "ZelQtValueEdit"));
    QVERIFY(isA(factory.makeSpinBox(), "ZelQtSpinBox"));
    QVERIFY(isA(factory.makeTextEdit(), "ZelQtTextEdit"));
    QVERIFY(isA(factory.makeNotepad(), "ZelQtNotepad"));
    QVERIFY(isA(factory.makeFlag(), "ZelQtFlag"));
    QVERIFY(isA(factory.makeEditButton(ZelUIEditButtonType::RADIOBUTTON), "ZelQtEditButton"));
    QVERIFY(isA(factory.makeSpacer(), "ZelQtSpacer"));
    QVERIFY(isA(factory.makeStdButtonBox(), "ZelQtStdButtonBox"));
    QVERIFY(isA(factory.makePushButton(), "ZelQtPushButton"));
    QVERIFY(isA(factory.makeComboBox(), "ZelQtComboBox"));

    const ZelUITextLabel *right = factory.makeTextLabel(ZelUIAlignment::Right);
    QCOMPARE(right->getAlignment(), ZelUIAlignment::Right);
    QCOMPARE(factory.makeEditButton(ZelUIEditButtonType::RADIOBUTTON)->editType(),
             ZelUIEditButtonType::RADIOBUTTON);
}

void tst_zelQtUiFactory::iconButton_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char *name, ZelUIPushButtonType type) {
        QTest::newRow(name) << static_cast<int>(type) << QByteArray(name);
    };
    row("ZelQtToolButton", ZelUIPushButtonType::Push);
    row("ZelQtSizeButton", ZelUIPushButtonType::Size);
    row("ZelQtConvertButton", ZelUIPushButtonType::Convert);
    row("ZelQtPlusButton", ZelUIPushButtonType::Plus);
    row("ZelQtInfoButton", ZelUIPushButtonType::Info);
    row("ZelQtOfferButton", ZelUIPushButtonType::Offer);
    row("ZelQtDatabaseButton", ZelUIPushButtonType::Database);
    row("ZelQtSettingsButton", ZelUIPushButtonType::Settings);
    row("ZelQtFileButton", ZelUIPushButtonType::File);
}

void tst_zelQtUiFactory::iconButton()
{
    QFETCH(int, type);
    QFETCH(QByteArray, name);
    ZelQtUiFactory factory;
    const auto *button =
        dynamic_cast<QWidget *>(factory.makeIconButton(static_cast<ZelUIPushButtonType>(type)));
    QVERIFY(button);
    QCOMPARE(QByteArray(button->metaObject()->className()), name);
}

void tst_zelQtUiFactory::kindsWithoutWidgetYieldNull()
{
    ZelQtUiFactory factory;
    QVERIFY(!factory.makeTable());
    QVERIFY(!factory.makeImage());
    QVERIFY(!factory.makeOutput());
    QVERIFY(!factory.makeExternalItem(L"Form"));
}

void tst_zelQtUiFactory::aBuiltPageIsTheOnlyNewTopLevelWidget()
{
    const QWidgetList before = QApplication::topLevelWidgets();
    const Built built;
    QWidgetList fresh = QApplication::topLevelWidgets();
    for (QWidget *widget : before)
        fresh.removeAll(widget);
    QCOMPARE(fresh, QWidgetList{built.mPage.get()});
}

void tst_zelQtUiFactory::nothingShowsWhileAMaskIsBuilt()
{
    class ShowCounter : public QObject
    {
    public:
        int mShown = 0;
        bool eventFilter(QObject *object, QEvent *event) override
        {
            const auto *widget = qobject_cast<QWidget *>(object);
            if (event->type() == QEvent::Show && widget && widget->isWindow())
                ++mShown;
            return false;
        }
    } counter;
    qApp->installEventFilter(&counter);
    const Built built;
    QCoreApplication::processEvents();
    QCOMPARE(counter.mShown, 0);
    QVERIFY(!built.mPage->isVisible());
}

void tst_zelQtUiFactory::everyVariableOfAKnownKindHasItsWidget()
{
    const Built built;
    QVERIFY(built.mPage->findChild<ZelQtValueEdit *>("d"));
    QVERIFY(built.mPage->findChild<ZelQtUnitLabel *>("d_unit"));
    QVERIFY(built.mPage->findChild<ZelQtValueEdit *>("dmax"));
    QVERIFY(built.mPage->findChild<ZelQtTextEdit *>("note"));
    QVERIFY(built.mPage->findChild<ZelQtNotepad *>("notes"));
    QVERIFY(built.mPage->findChild<ZelQtFlag *>("on"));
    QCOMPARE(built.mPage->findChildren<ZelQtInfoButton *>().size(), 1);

    // The optional value has a check box, and nobody else has one.
    QList<ZelQtEditButton *> checkBoxes = built.mPage->findChildren<ZelQtEditButton *>();
    QCOMPARE(checkBoxes.size(), 1);
    QCOMPARE(checkBoxes.front()->editType(), ZelUIEditButtonType::CHECKBOX);
}

void tst_zelQtUiFactory::iconButtonsKeepTheirTipsInEveryLanguage()
{
    const Built built;
    const auto *size = built.mPage->findChild<ZelQtSizeButton *>();
    const auto *info = built.mPage->findChild<ZelQtInfoButton *>();
    QVERIFY(size && info);
    const auto tips = [&] {
        built.mPage->retranslate();
        return QStringList{size->toolTip(), size->statusTip(), info->toolTip(), info->statusTip()};
    };
    QCOMPARE(tips(),
             QStringList({"Durchmesser auslegen", "Berechnet den Wert anhand von Rechenmethoden",
                          "Zusatzinfo", "Zeigt zusätzliche Informationen im Infofenster an"}));
    setZelLanguage(ZelLanguage::English);
    const QStringList english = tips();
    setZelLanguage(ZelLanguage::German);
    QCOMPARE(
        english,
        QStringList({"Size Durchmesser", "Computes the value by design methods",
                     "Additional information", "Shows additional information in the info window"}));
}

void tst_zelQtUiFactory::formsAreMadeByName()
{
    const Built built;
    const auto *form = built.mPage->findChild<Form *>();
    QVERIFY(form);
    QVERIFY(qobject_cast<ZelQtTabPage *>(form->parentWidget()));
    // The page of the unknown form stands, it is only empty.
    QCOMPARE(built.mPage->findChild<QTabWidget *>()->count(), 3);
}

void tst_zelQtUiFactory::partsWithoutPlaceAreDeleted()
{
    ZelQtUiFactory factory;
    const QPointer<QWidget> field(dynamic_cast<QWidget *>(factory.makeValueEdit()));
    QVERIFY(field);
    QVERIFY(!field->isWindow());
    factory.discardUnused();
    QVERIFY(!field);
}

void tst_zelQtUiFactory::aThousandPartsWithoutPlaceAreDeleted()
{
    ZelQtUiFactory factory;
    std::vector<QPointer<QWidget>> parts;
    for (int i = 0; i < 1000; ++i) {
        parts.emplace_back(dynamic_cast<QWidget *>(factory.makeSpacer()));
        QVERIFY(parts.back());
        QVERIFY(!parts.back()->isWindow());
    }
    factory.discardUnused();
    for (const QPointer<QWidget> &part : parts)
        QVERIFY(!part);
}

// Taking a widget away from its window walks over the whole window: with all parts of a mask below
// one widget the time of a build would grow with their square.
void tst_zelQtUiFactory::partsLeaveFewSiblingsBehind()
{
    ZelQtUiFactory factory;
    for (int i = 0; i < 1000; ++i) {
        const auto *part = dynamic_cast<QWidget *>(factory.makeSpacer());
        QVERIFY(part->window()->children().size() < 50);
    }
}

void tst_zelQtUiFactory::layoutsWithoutPlaceAreDeleted()
{
    ZelQtUiFactory factory;
    const QPointer<QLayout> board(dynamic_cast<QLayout *>(factory.makeBoard()));
    const QPointer<QLayout> used(dynamic_cast<QLayout *>(factory.makeColumn()));
    QVERIFY(board);
    QWidget widget;
    widget.setLayout(used);
    factory.discardUnused();
    QVERIFY(!board);
    QVERIFY(used);
}

QTEST_MAIN(tst_zelQtUiFactory)
#include "tst_zelQtUiFactory.moc"
