#include "recorder.h"
#include "tarvexModule.h"
#include "window.h"
#include "zelQtAdvancedLabel.h"
#include "zelQtSingleCalcVarInput.h"
#include "zelQtValueEdit.h"

#include <QVBoxLayout>
#include <QtTest>

using Line = ZelQtSingleCalcVarInput;

/// A host that tells what runs in it.
template <class Host> class ProbeHost : public Host
{
public:
    ProbeHost()
    {
        auto *layout = new QVBoxLayout(this);
        auto *box = new QWidget(this);
        layout->addWidget(mFirst);
        layout->addWidget(mSecond);
        layout->addWidget(box);
        auto *boxLayout = new QVBoxLayout(box);
        boxLayout->addWidget(mNested);
        mSecond->showSizeButton(true);
    }

    QStringList take()
    {
        QStringList events;
        events.swap(mEvents);
        return events;
    }
    /// Where the field of a line starts, in the coordinates of the line.
    static int start(const Line *line) { return line->findChild<ZelQtValueEdit *>()->x(); }

    Line *mFirst = new Line;
    Line *mSecond = new Line;
    Line *mNested = new Line;
    bool mResizing = false;

protected:
    void retranslateStrings() override
    {
        mEvents.append(QStringLiteral("texts"));
        Host::retranslateStrings();
    }
    void resizeLayout() override
    {
        mEvents.append(QStringLiteral("layout"));
        Host::resizeLayout();
        if (mResizing) {
            this->resize(this->width() + 10, this->height());
            QCoreApplication::sendPostedEvents();
        }
    }

private:
    QStringList mEvents;
};

using Page = ProbeHost<ZelQtParentWidget>;
using Dialog = ProbeHost<ZelQtParentDialog>;

/// What both hosts do with the lines inside them.
class tst_zelQtHostServices : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void showAlignsTheLines_data();
    void showAlignsTheLines();
    void resizeAlignsTheLinesAddedSince_data();
    void resizeAlignsTheLinesAddedSince();
    void layoutThatResizesEndsAfterOneRun_data();
    void layoutThatResizesEndsAfterOneRun();
    void unsizedWindowIsWideEnoughForItsPrompts_data();
    void unsizedWindowIsWideEnoughForItsPrompts();
    void sizeOfTheProgramStays_data();
    void sizeOfTheProgramStays();
    void maximizedWindowStaysSo_data();
    void maximizedWindowStaysSo();
    void pageInsideAWindowKeepsTheSizeOfItsLayout();

    void languageSetsTextsBeforeWidths_data();
    void languageSetsTextsBeforeWidths();
    void languageReachesLinesAtAnyDepth_data();
    void languageReachesLinesAtAnyDepth();

    void unitSystemReachesLinesAtAnyDepth_data();
    void unitSystemReachesLinesAtAnyDepth();

private:
    TarvexSetup mSetup;
};

/// Runs the same check over a page and a dialog.
template <class Check> static void withHost(Check check)
{
    QFETCH(bool, dialog);
    if (dialog) {
        Dialog host;
        check(host);
    } else {
        Page host;
        check(host);
    }
}

static void addHosts()
{
    QTest::addColumn<bool>("dialog");
    QTest::newRow("page") << false;
    QTest::newRow("dialog") << true;
}

void tst_zelQtHostServices::cleanup()
{
    TarvexModule::Setup = nullptr;
}

void tst_zelQtHostServices::showAlignsTheLines_data()
{
    addHosts();
}

void tst_zelQtHostServices::showAlignsTheLines()
{
    withHost([](auto &host) {
        host.resize(600, 300);
        host.show();
        QVERIFY(host.take().contains(QStringLiteral("layout")));
        QCOMPARE(host.start(host.mFirst), host.start(host.mSecond));
        // A group of its own: no button there, no room for one.
        QVERIFY(host.start(host.mNested) + 22 + 6 > host.start(host.mFirst));
    });
}

void tst_zelQtHostServices::resizeAlignsTheLinesAddedSince_data()
{
    addHosts();
}

void tst_zelQtHostServices::resizeAlignsTheLinesAddedSince()
{
    withHost([](auto &host) {
        host.resize(600, 300);
        host.show();
        auto *added = new Line(&host);
        static_cast<QVBoxLayout *>(host.layout())->insertWidget(0, added);
        QCoreApplication::sendPostedEvents();
        QVERIFY(host.start(added) != host.start(host.mSecond));
        host.take();
        host.resize(700, 300);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(host.take(), QStringList(QStringLiteral("layout")));
        QCOMPARE(host.start(added), host.start(host.mSecond));
    });
}

void tst_zelQtHostServices::layoutThatResizesEndsAfterOneRun_data()
{
    addHosts();
}

void tst_zelQtHostServices::layoutThatResizesEndsAfterOneRun()
{
    withHost([](auto &host) {
        host.resize(600, 300);
        host.show();
        host.take();
        host.mResizing = true;
        host.resize(650, 300);
        host.mResizing = false;
        QCOMPARE(host.take(), QStringList(QStringLiteral("layout")));
    });
}

void tst_zelQtHostServices::unsizedWindowIsWideEnoughForItsPrompts_data()
{
    addHosts();
}

void tst_zelQtHostServices::unsizedWindowIsWideEnoughForItsPrompts()
{
    withHost([](auto &host) {
        host.mFirst->setPrompt(QStringLiteral("A longer prompt"));
        host.mSecond->setFormula(QStringLiteral("F<sub>max, total</sub>"));
        host.show();
        QCoreApplication::sendPostedEvents();
        const auto *prompt = host.mFirst->template findChild<ZelQtAdvancedLabel *>();
        QVERIFY2(prompt->width() >= prompt->sizeHint().width(),
                 qPrintable(QString::number(prompt->width())));
        // Nobody chose that size, so that the next show may measure again.
        QVERIFY(!host.testAttribute(Qt::WA_Resized));
    });
}

void tst_zelQtHostServices::sizeOfTheProgramStays_data()
{
    addHosts();
}

void tst_zelQtHostServices::sizeOfTheProgramStays()
{
    withHost([](auto &host) {
        host.mFirst->setPrompt(QStringLiteral("A longer prompt"));
        host.resize(1000, 777);
        host.show();
        QCOMPARE(host.size(), QSize(1000, 777));
    });
}

void tst_zelQtHostServices::maximizedWindowStaysSo_data()
{
    addHosts();
}

void tst_zelQtHostServices::maximizedWindowStaysSo()
{
    withHost([](auto &host) {
        // So that the alignment changes the size that the window would have.
        host.mFirst->setPrompt(QStringLiteral("A longer prompt"));
        host.mSecond->setFormula(QStringLiteral("F<sub>max, total</sub>"));
        host.showMaximized();
        // At once, and not only when the window system has answered.
        QVERIFY(host.isMaximized());
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        QVERIFY(host.isMaximized());
        QVERIFY(host.width() > host.sizeHint().width());
    });
}

void tst_zelQtHostServices::pageInsideAWindowKeepsTheSizeOfItsLayout()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *page = new Page;
    layout->addWidget(page);
    window.resize(800, 400);
    window.show();
    QCOMPARE(page->geometry(), window.rect().marginsRemoved(layout->contentsMargins()));
}

void tst_zelQtHostServices::languageSetsTextsBeforeWidths_data()
{
    addHosts();
}

void tst_zelQtHostServices::languageSetsTextsBeforeWidths()
{
    withHost([](auto &host) {
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&host, &event);
        QCOMPARE(host.take(), QStringList({QStringLiteral("texts"), QStringLiteral("layout")}));
    });
}

void tst_zelQtHostServices::languageReachesLinesAtAnyDepth_data()
{
    addHosts();
}

void tst_zelQtHostServices::languageReachesLinesAtAnyDepth()
{
    withHost([](auto &host) {
        host.mFirst->setPrompt(QStringLiteral("Länge"));
        host.mNested->setPrompt(QStringLiteral("Breite"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&host, &event);
        const auto tips = [](const Line *line) {
            QStringList tips;
            const auto widgets = line->findChildren<QWidget *>();
            for (const QWidget *widget : widgets)
                tips.append(widget->toolTip());
            return tips;
        };
        // The buttons hear of the language after the host and keep what it set.
        QVERIFY(tips(host.mFirst).contains(QStringLiteral("Länge auslegen")));
        QVERIFY(tips(host.mNested).contains(QStringLiteral("Breite auslegen")));
    });
}

void tst_zelQtHostServices::unitSystemReachesLinesAtAnyDepth_data()
{
    QTest::addColumn<bool>("dialog");
    QTest::addColumn<bool>("keepDefault");
    QTest::addColumn<QString>("unit");
    for (const bool dialog : {false, true}) {
        const char *host = dialog ? "dialog" : "page";
        QTest::addRow("%s, unit system", host) << dialog << false << QStringLiteral("in");
        QTest::addRow("%s, own default unit", host) << dialog << true << QStringLiteral("m");
    }
}

void tst_zelQtHostServices::unitSystemReachesLinesAtAnyDepth()
{
    mSetup.mUSCustomaryUnits = 1;
    TarvexModule::Setup = &mSetup;
    withHost([](auto &host) {
        QFETCH(bool, keepDefault);
        QFETCH(QString, unit);
        for (Line *line : {host.mFirst, host.mNested}) {
            line->setDefaultUnit(QStringLiteral("m"));
            line->setCurrentUnit(QStringLiteral("cm"));
        }
        host.updateUnitSystem(keepDefault);
        QCOMPARE(host.mFirst->currentUnit(), unit);
        QCOMPARE(host.mNested->currentUnit(), unit);
    });
}

QTEST_MAIN(tst_zelQtHostServices)
#include "tst_zelQtHostServices.moc"
