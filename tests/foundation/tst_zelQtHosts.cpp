#include "recorder.h"
#include "window.h"
#include "zelQtStackedWidget.h"
#include "zelQtWidget.h"
#include "zelUIObject.h"

#include <QLineEdit>
#include <QtTest>

class tst_zelQtHosts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    // help codes
    void helpFileOfACode_data();
    void helpFileOfACode();
    void helpCodeStartsWithoutTopic();
    void helpCodeIsCopied();
    void ownFileIgnoresAnOverriddenCode();

    // F1
    void helpOfTheNearestTopic_data();
    void helpOfTheNearestTopic();
    void modelObjectAnswersWhereThereIsNoInterface();
    void interfaceIsAskedInsteadOfItsModelObject();
    void helpWithoutTopicIsEmptyOnPurpose();
    void helpWithoutFocusIsEmpty();
    void everyHostUpTheChainAsksForHelp();
    void helpKeyWithModifiers_data();
    void helpKeyWithModifiers();
    void handledKeysGoOnToTheParent();

    // keys of the dialog
    void calculateKeyWorksWithoutModifiersOnly();
    void pageKnowsHelpAlone();
    void otherKeysKeepTheirMeaningInADialog();

    // language
    void languageChangeTranslatesThenAligns();
    void otherEventsDoNotTranslate();
    void hostIsTranslatedBeforeItsChildren();

    // slots
    void slotsRaiseTheSignalOfTheSameName();
    void defaultsDoNothing();

    void dialogRemovesAllOverrideCursors();

    // plain shells
    void stackTakesTheSizeOfItsLargestPage();
    void flaggedStackTakesTheSizeOfTheCurrentPage();
};

namespace {

/// A line edit that is a model object with a help code.
class ModelField : public QLineEdit, public ZelUIObject
{
public:
    using QLineEdit::QLineEdit;
};

/// The same with a help code of its own.
class HelpField : public ModelField, public ZelQtAuthorItInterface
{
public:
    using ModelField::ModelField;
};

/// Notes the calls of the virtual operations.
template <class Host> class NotingHost : public RecordedHost<Host>
{
public:
    using RecordedHost<Host>::RecordedHost;

protected:
    void retranslateStrings() override { this->mRecorder.add(QStringLiteral("retranslate")); }
    void resizeLayout() override { this->mRecorder.add(QStringLiteral("resize")); }
};

class CalculatingDialog : public RecordedDialog
{
public:
    void calculate() override { mRecorder.add(QStringLiteral("calculate")); }
};

} // namespace

void tst_zelQtHosts::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_zelQtHosts::cleanup()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void tst_zelQtHosts::helpFileOfACode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("file");
    QTest::newRow("topic") << 123 << "123.htm";
    QTest::newRow("first topic") << 1 << "1.htm";
    QTest::newRow("zero is none") << 0 << "";
    QTest::newRow("start value is none") << -1 << "";
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "2147483647.htm";
}

void tst_zelQtHosts::helpFileOfACode()
{
    QFETCH(int, code);
    QFETCH(QString, file);
    QCOMPARE(ZelQtAuthorItInterface::authorItFile(code), file);
    QCOMPARE(ZelQtAuthorItInterface(code).authorItFile(), file);
}

void tst_zelQtHosts::helpCodeStartsWithoutTopic()
{
    QCOMPARE(ZelQtAuthorItInterface().authorItCode(), -1);
    QCOMPARE(ZelQtWidget().authorItCode(), -1);
    QCOMPARE(ZelQtParentWidget().authorItCode(), -1);
    QCOMPARE(ZelQtParentWidget(17).authorItCode(), 17);
    QCOMPARE(ZelQtParentDialog().authorItCode(), -1);
}

void tst_zelQtHosts::helpCodeIsCopied()
{
    const ZelQtAuthorItInterface source(17);
    const ZelQtAuthorItInterface copy(source);
    QCOMPARE(copy.authorItCode(), 17);
    ZelQtAuthorItInterface assigned;
    assigned = source;
    QCOMPARE(assigned.authorItCode(), 17);
    assigned.setAuthorItCode(3);
    QCOMPARE(assigned.authorItCode(), 3);
}

void tst_zelQtHosts::ownFileIgnoresAnOverriddenCode()
{
    class Overriding : public ZelQtAuthorItInterface
    {
    public:
        int authorItCode() const override { return 99; }
    };
    Overriding help;
    help.setAuthorItCode(5);
    QCOMPARE(help.authorItFile(), QStringLiteral("5.htm"));
}

void tst_zelQtHosts::helpOfTheNearestTopic_data()
{
    QTest::addColumn<int>("fieldCode");
    QTest::addColumn<int>("pageCode");
    QTest::addColumn<QString>("file");
    QTest::newRow("own topic") << 7 << 123 << "7.htm";
    QTest::newRow("code 0 leaves it to the page") << 0 << 123 << "123.htm";
    QTest::newRow("code -1 leaves it to the page") << -1 << 123 << "123.htm";
    QTest::newRow("nobody has a topic") << -1 << 0 << "";
}

void tst_zelQtHosts::helpOfTheNearestTopic()
{
    QFETCH(int, fieldCode);
    QFETCH(int, pageCode);
    QFETCH(QString, file);
    RecordedPage page;
    page.ZelQtAuthorItInterface::setAuthorItCode(pageCode);
    ZelQtWidget field(&page);
    field.setAuthorItCode(fieldCode);
    field.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(showAndActivate(&page) && focus(&field));
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged(%1)").arg(file)));
}

void tst_zelQtHosts::modelObjectAnswersWhereThereIsNoInterface()
{
    RecordedPage page;
    ModelField box(&page);
    box.ZelUIObject::setAuthorItCode(7);
    ZelQtWidget field(&box);
    field.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(showAndActivate(&page) && focus(&field));
    QCOMPARE(field.authorItCode(), -1);
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged(7.htm)")));
}

void tst_zelQtHosts::interfaceIsAskedInsteadOfItsModelObject()
{
    RecordedPage page;
    page.setAuthorItCode(123);
    HelpField field(&page);
    field.ZelUIObject::setAuthorItCode(7);
    QVERIFY(showAndActivate(&page) && focus(&field));
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged(123.htm)")));
    field.ZelQtAuthorItInterface::setAuthorItCode(8);
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged(8.htm)")));
}

void tst_zelQtHosts::helpWithoutTopicIsEmptyOnPurpose()
{
    RecordedDialog dialog;
    QLineEdit field(&dialog);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("host helpChanged()")));
}

void tst_zelQtHosts::helpWithoutFocusIsEmpty()
{
    RecordedPage page;
    page.setAuthorItCode(5);
    QVERIFY(showAndActivate(&page));
    page.setFocusPolicy(Qt::NoFocus);
    page.clearFocus();
    QVERIFY(!QApplication::focusWidget());
    QTest::keyClick(&page, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged()")));
}

void tst_zelQtHosts::everyHostUpTheChainAsksForHelp()
{
    RecordedDialog dialog;
    RecordedPage page(&dialog);
    page.setAuthorItCode(5);
    QLineEdit field(&page);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(page.take(), QStringList(QStringLiteral("host helpChanged(5.htm)")));
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("host helpChanged(5.htm)")));
}

void tst_zelQtHosts::helpKeyWithModifiers_data()
{
    QTest::addColumn<bool>("inDialog");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("helps");
    QTest::newRow("page, none") << false << int(Qt::NoModifier) << true;
    QTest::newRow("page, Shift, which is meant") << false << int(Qt::ShiftModifier) << true;
    QTest::newRow("page, Control") << false << int(Qt::ControlModifier) << true;
    QTest::newRow("dialog, none") << true << int(Qt::NoModifier) << true;
    QTest::newRow("dialog, Shift, which is meant") << true << int(Qt::ShiftModifier) << false;
    QTest::newRow("dialog, Control") << true << int(Qt::ControlModifier) << false;
}

void tst_zelQtHosts::helpKeyWithModifiers()
{
    QFETCH(bool, inDialog);
    QFETCH(int, modifiers);
    QFETCH(bool, helps);
    RecordedPage page;
    RecordedDialog dialog;
    QWidget *host = inDialog ? static_cast<QWidget *>(&dialog) : &page;
    QVERIFY(showAndActivate(host));
    QTest::keyClick(host, Qt::Key_F1, Qt::KeyboardModifiers(modifiers));
    const QStringList events = inDialog ? dialog.take() : page.take();
    QCOMPARE(events.size(), helps ? 1 : 0);
}

void tst_zelQtHosts::handledKeysGoOnToTheParent()
{
    class Parent : public QWidget
    {
    public:
        QList<int> mKeys;

    protected:
        void keyPressEvent(QKeyEvent *event) override { mKeys.append(event->key()); }
    };
    Parent parent;
    ZelQtParentWidget page(&parent);
    QTest::keyClick(&page, Qt::Key_F1);
    QTest::keyClick(&page, Qt::Key_A);
    QCOMPARE(parent.mKeys, QList<int>({Qt::Key_F1, Qt::Key_A}));
}

void tst_zelQtHosts::calculateKeyWorksWithoutModifiersOnly()
{
    CalculatingDialog dialog;
    QLineEdit field(&dialog);
    QVERIFY(showAndActivate(&dialog) && focus(&field));
    QTest::keyClick(&field, Qt::Key_F5);
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("calculate")));
    QTest::keyClick(&field, Qt::Key_F5, Qt::ShiftModifier);
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtHosts::pageKnowsHelpAlone()
{
    CalculatingDialog dialog;
    RecordedPage page(&dialog);
    QTest::keyClick(&page, Qt::Key_F5);
    QCOMPARE(page.take(), QStringList());
    QCOMPARE(dialog.take(), QStringList(QStringLiteral("calculate")));
}

void tst_zelQtHosts::otherKeysKeepTheirMeaningInADialog()
{
    RecordedDialog dialog;
    QVERIFY(showAndActivate(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_zelQtHosts::languageChangeTranslatesThenAligns()
{
    const QStringList expected{QStringLiteral("retranslate"), QStringLiteral("resize")};
    NotingHost<ZelQtParentWidget> page;
    NotingHost<ZelQtParentDialog> dialog;
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page, &event);
    QCOMPARE(page.take(), expected);
    QCoreApplication::sendEvent(&dialog, &event);
    QCOMPARE(dialog.take(), expected);
}

void tst_zelQtHosts::otherEventsDoNotTranslate()
{
    NotingHost<ZelQtParentWidget> page;
    NotingHost<ZelQtParentDialog> dialog;
    for (const QEvent::Type type :
         {QEvent::FontChange, QEvent::StyleChange, QEvent::LocaleChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&page, &event);
        QCoreApplication::sendEvent(&dialog, &event);
    }
    QCOMPARE(page.take(), QStringList());
    QCOMPARE(dialog.take(), QStringList());
}

void tst_zelQtHosts::hostIsTranslatedBeforeItsChildren()
{
    NotingHost<ZelQtParentWidget> page;
    class Child : public QWidget
    {
    public:
        Child(QWidget *parent, EventRecorder *recorder)
            : QWidget(parent)
            , mRecorder(recorder)
        {
        }

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::LanguageChange)
                mRecorder->add(QStringLiteral("child"));
        }

    private:
        EventRecorder *mRecorder;
    };
    const Child child(&page, &page.mRecorder);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page, &event);
    QCOMPARE(page.take(),
             QStringList({QStringLiteral("retranslate"), QStringLiteral("resize"),
                          QStringLiteral("child")}));
}

template <class Host> static QStringList eventsOfAllSlots(Host &host)
{
    host.emitValueChanged();
    host.emitValueConfirmed();
    host.emitInfoChanged(7);
    host.emitInfoChanged(QStringLiteral("a.htm"));
    host.emitHelpChanged(QStringLiteral("b.htm"));
    return host.take();
}

void tst_zelQtHosts::slotsRaiseTheSignalOfTheSameName()
{
    const QStringList expected{
        QStringLiteral("host valueChanged"), QStringLiteral("host valueConfirmed"),
        QStringLiteral("host infoChanged(7)"), QStringLiteral("host infoChanged(a.htm)"),
        QStringLiteral("host helpChanged(b.htm)")};
    RecordedPage page;
    QCOMPARE(eventsOfAllSlots(page), expected);
    RecordedDialog dialog;
    QCOMPARE(eventsOfAllSlots(dialog), expected);
}

void tst_zelQtHosts::defaultsDoNothing()
{
    RecordedDialog dialog;
    dialog.calculate();
    dialog.createProtokoll();
    dialog.updateUnitSystem(true);
    RecordedPage page;
    page.updateUnitSystem(false);
    QCOMPARE(dialog.take() + page.take(), QStringList());
}

void tst_zelQtHosts::dialogRemovesAllOverrideCursors()
{
    for (int i = 0; i < 3; ++i)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QVERIFY(QGuiApplication::overrideCursor());
    const ZelQtParentDialog dialog;
    QVERIFY(!QGuiApplication::overrideCursor());
}

static QWidget *fixedPage(int width, int height)
{
    class Page : public QWidget
    {
    public:
        explicit Page(QSize size)
            : mSize(size)
        {
        }
        QSize sizeHint() const override { return mSize; }
        QSize minimumSizeHint() const override { return mSize / 2; }

    private:
        QSize mSize;
    };
    return new Page(QSize(width, height));
}

void tst_zelQtHosts::stackTakesTheSizeOfItsLargestPage()
{
    ZelQtStackedWidget stack;
    QVERIFY(!stack.sizeHintFlag());
    stack.addWidget(fixedPage(40, 20));
    stack.addWidget(fixedPage(200, 100));
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(stack.sizeHint(), QSize(200, 100));
    QCOMPARE(stack.minimumSizeHint(), QSize(100, 50));
}

void tst_zelQtHosts::flaggedStackTakesTheSizeOfTheCurrentPage()
{
    ZelQtStackedWidget stack(true);
    QVERIFY(stack.sizeHintFlag());
    stack.addWidget(fixedPage(40, 20));
    stack.addWidget(fixedPage(200, 100));
    QCOMPARE(stack.sizeHint(), QSize(40, 20));
    QCOMPARE(stack.minimumSizeHint(), QSize(20, 10));
    stack.setCurrentIndex(1);
    QCOMPARE(stack.sizeHint(), QSize(200, 100));
    stack.setCurrentIndex(0);
    stack.setSizeHintFlag(false);
    QCOMPARE(stack.sizeHint(), QSize(200, 100));
}

QTEST_MAIN(tst_zelQtHosts)
#include "tst_zelQtHosts.moc"
