#pragma once

#include <QMainWindow>

#include <memory>

class AppLanguage;
class AppUnitSystem;
class ModuleCatalogue;
class ModulePage;
class QActionGroup;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QTabWidget;

/// The main window of the workbench: the modules that were found on the left, the open ones as
/// tabs, menus for values, calculation, units and language, and the status bar with its tips.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Language, unit system and catalogue belong to the application and outlive the window.
    MainWindow(AppLanguage &language, AppUnitSystem &units, ModuleCatalogue &catalogue,
               QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens a module in a tab of its own and brings it to the front; its faults are shown in a
    /// message box. Null when nothing of it could be used.
    ModulePage *openModule(const QString &id);
    /// Null when no module is open.
    ModulePage *currentPage() const;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeModuleList();
    void makeFileMenu();
    void makeCalculationMenu();
    void makeViewMenu();
    void makeHelpMenu();
    void retranslateStrings();
    void updateActions();
    void fillModuleList();
    void fillExamples();

    void openItem(const QListWidgetItem *item);
    void closePage(int index);
    void loadValues();
    void saveValues();
    void calculate();
    void openDialog();
    void showAbout();
    void showHelpTopic(const QString &file);
    void showInfoTopic(const QString &topic);
    void applyUnitSystem();

    AppLanguage &mLanguage;
    AppUnitSystem &mUnits;
    ModuleCatalogue &mCatalogue;
    QTabWidget *mTabs;
    QDockWidget *mModuleDock = nullptr;
    QListWidget *mModules = nullptr;
    QLabel *mConsistency;

    QMenu *mFileMenu = nullptr;
    QMenu *mExampleMenu = nullptr;
    QMenu *mCalculationMenu = nullptr;
    QMenu *mViewMenu = nullptr;
    QMenu *mUnitMenu = nullptr;
    QMenu *mLanguageMenu = nullptr;
    QMenu *mHelpMenu = nullptr;
    QAction *mOpenAction = nullptr;
    QAction *mLoadAction = nullptr;
    QAction *mSaveAction = nullptr;
    QAction *mCloseAction = nullptr;
    QAction *mQuitAction = nullptr;
    QAction *mCalculateAction = nullptr;
    QAction *mDialogAction = nullptr;
    QAction *mMetricAction = nullptr;
    QAction *mUsAction = nullptr;
    QActionGroup *mLanguageActions = nullptr;
    QAction *mAboutAction = nullptr;
};
