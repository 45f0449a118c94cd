#include "pictureTour.h"

#include "appLanguage.h"
#include "appPalette.h"
#include "appUnitSystem.h"
#include "exampleCheck.h"
#include "mainWindow.h"
#include "maskView.h"
#include "modulePage.h"
#include "zelQtDialogButtonBox.h"
#include "zelQtFormulaLabel.h"
#include "zelQtMessageBox.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QMetaEnum>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <cstdio>

namespace {

constexpr int settleTime = 60; // ms, for the window system to draw

void settle()
{
    QTest::qWait(settleTime);
}

void rightClick(QWidget *widget)
{
    const QPoint center = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, center, widget->mapToGlobal(center));
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

PictureTour::PictureTour(MainWindow &window, AppLanguage &language, AppUnitSystem &units,
                         QString folder)
    : mWindow(window)
    , mLanguage(language)
    , mUnits(units)
    , mFolder(std::move(folder))
{
}

bool PictureTour::run()
{
    if (!QDir().mkpath(mFolder)) {
        std::fprintf(stderr, "%s can't be made\n", qPrintable(mFolder));
        return false;
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    setDarkPalette(false);
    mWindow.move(0, 0);
    settle();
    ModulePage *page = mWindow.openModule(QStringLiteral("spring"));
    if (!page)
        return false;
    const bool right = runExamples(page);
    takeMasks(page);
    takePopups(page);
    takeDialogs(page);
    takeButtonBoxes();
    takeMessageBoxes();
    return right && mComplete;
}

void PictureTour::save(const QPixmap &picture, const QString &name)
{
    const QString scale =
        qFuzzyCompare(picture.devicePixelRatio(), 1.0) ? QString() : QStringLiteral("@2x");
    const QString file = QDir(mFolder).filePath(name + scale + QStringLiteral(".png"));
    if (picture.isNull() || !picture.save(file)) {
        std::fprintf(stderr, "%s can't be written\n", qPrintable(file));
        mComplete = false;
    }
}

void PictureTour::take(QWidget *widget, const QString &name)
{
    settle();
    save(widget->grab(), name);
}

void PictureTour::takeScreen(const QString &name)
{
    settle();
    const QRect frame = mWindow.geometry();
    save(mWindow.windowHandle()->screen()->grabWindow(0, frame.x(), frame.y(), frame.width(),
                                                      frame.height()),
         name);
}

void PictureTour::takeBlocking(const QString &name, const std::function<void()> &open)
{
    bool taken = false;
    QTimer::singleShot(2 * settleTime, &mWindow, [this, name, &taken] {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *widget = popup ? popup : QApplication::activeModalWidget();
        if (!widget)
            return;
        popup ? takeScreen(name) : take(widget, name);
        taken = true;
        widget->close();
    });
    open();
    if (!taken) {
        std::fprintf(stderr, "%s did not open\n", qPrintable(name));
        mComplete = false;
    }
}

bool PictureTour::runExamples(ModulePage *page)
{
    bool right = true;
    const QStringList examples = page->examples();
    for (const QString &values : examples)
        right = runExample(page, values) && right;
    return right;
}

bool PictureTour::runExample(ModulePage *page, const QString &values)
{
    page->loadValues(values);
    page->calculate();
    QString expected = values;
    expected.replace(QStringLiteral(".values"), QStringLiteral(".expected"));
    const ExampleCheck check = checkExample(page->mask()->meta(), expected);
    std::printf("%s\n%s\n", qPrintable(values), qPrintable(check.mTable));
    return check.mRight;
}

void PictureTour::takeTabs(ModulePage *page, const QString &name)
{
    auto *tabs = page->findChild<QTabWidget *>();
    if (!tabs) {
        take(&mWindow, name);
        return;
    }
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        take(&mWindow, name + QLatin1Char('-') + tabs->widget(i)->objectName());
    }
    tabs->setCurrentIndex(0);
}

void PictureTour::takeMasks(ModulePage *page)
{
    for (const bool dark : {false, true}) {
        setDarkPalette(dark);
        for (const ZelLanguage language : AppLanguage::offered()) {
            mLanguage.setLanguage(language);
            for (const bool us : {false, true}) {
                mUnits.setUsCustomary(us);
                takeTabs(page,
                         QStringLiteral("spring-%1-%2-%3")
                             .arg(AppLanguage::code(language),
                                  us ? QStringLiteral("us") : QStringLiteral("metric"),
                                  dark ? QStringLiteral("dark") : QStringLiteral("light")));
            }
        }
    }
    setDarkPalette(false);
    mLanguage.setLanguage(ZelLanguage::German);
    mUnits.setUsCustomary(false);
    settle();
}

void PictureTour::takePopups(ModulePage *page)
{
    if (auto *field = page->findChild<ZelQtValueEdit *>(QStringLiteral("L0")))
        takeBlocking(QStringLiteral("popup-formula"), [field] { rightClick(field); });
    if (auto *label = page->findChild<ZelQtFormulaLabel *>(QStringLiteral("L0_formula")))
        takeBlocking(QStringLiteral("popup-symbol"), [label] { rightClick(label); });
    if (auto *label = page->findChild<ZelQtUnitLabel *>(QStringLiteral("L0_unit")))
        takeBlocking(QStringLiteral("popup-units"), [label] { rightClick(label); });
    if (auto *line = page->findChild<QWidget *>(QStringLiteral("tilt"))) {
        page->mask()->focusVariable(QStringLiteral("tilt"));
        settle();
        auto *field = line->findChild<ZelQtValueEdit *>();
        takeBlocking(QStringLiteral("popup-angle"), [field] { rightClick(field); });
    }
}

void PictureTour::takeDialogs(ModulePage *page)
{
    takeBlocking(QStringLiteral("dialog-calculation"), [page] { page->calculateInDialog(); });
}

void PictureTour::takeButtonBoxes()
{
    const auto modes = QMetaEnum::fromType<ZelQtDialogButtonBox::Mode>();
    for (int i = 0; i < modes.keyCount(); ++i) {
        QDialog dialog(&mWindow);
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(new ZelQtDialogButtonBox(
            static_cast<ZelQtDialogButtonBox::Mode>(modes.value(i)), &dialog));
        dialog.show();
        take(&dialog,
             QStringLiteral("buttons-%1-%2")
                 .arg(modes.value(i), 2, 10, QLatin1Char('0'))
                 .arg(QString::fromLatin1(modes.key(i)).toLower()));
    }
}

void PictureTour::takeMessageBoxes()
{
    using Box = ZelQtMessageBox;
    for (const bool dark : {false, true}) {
        setDarkPalette(dark);
        const QString suffix = dark ? QStringLiteral("-dark") : QStringLiteral("-light");
        takeBlocking(QStringLiteral("message-information") + suffix,
                     [] { Box::resultsNotConsistentInformation(); });
        takeBlocking(QStringLiteral("message-question") + suffix,
                     [] { Box::saveChangesInFileQuestion(QStringLiteral("Feder.values")); });
        takeBlocking(QStringLiteral("message-warning") + suffix,
                     [] { Box::warning(QStringLiteral("Erste Zeile\nZweite Zeile")); });
        takeBlocking(QStringLiteral("message-error") + suffix,
                     [] { Box::calculationFailedError(); });
    }
    setDarkPalette(false);
}
