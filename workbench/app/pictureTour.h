#pragma once

#include <QPixmap>
#include <QString>

#include <functional>

class AppLanguage;
class AppUnitSystem;
class MainWindow;
class ModulePage;
class QWidget;

/// Works through the modules and their examples as a user would and leaves a picture of everything
/// that can be seen: masks in both languages, unit systems and palettes, popups, dialogs and
/// message boxes. It prints the results of the examples beside the expected values.
class PictureTour
{
public:
    /// All must outlive the tour; `folder` is made when it isn't there.
    PictureTour(MainWindow &window, AppLanguage &language, AppUnitSystem &units, QString folder);

    /// False when a picture could not be written or a result was not the expected one.
    bool run();

private:
    void takeMasks(ModulePage *page);
    void takeTabs(ModulePage *page, const QString &name);
    void takePopups(ModulePage *page);
    void takeDialogs(ModulePage *page);
    void takeButtonBoxes();
    void takeMessageBoxes();
    bool runExamples(ModulePage *page);
    bool runExample(ModulePage *page, const QString &values);

    void take(QWidget *widget, const QString &name);
    void takeScreen(const QString &name);
    /// Runs `open`, which blocks in a popup or dialog, takes its picture and closes it.
    void takeBlocking(const QString &name, const std::function<void()> &open);
    void save(const QPixmap &picture, const QString &name);

    MainWindow &mWindow;
    AppLanguage &mLanguage;
    AppUnitSystem &mUnits;
    QString mFolder;
    bool mComplete = true;
};
