#include "mainWindow.h"

#include "appLanguage.h"
#include "appUnitSystem.h"
#include "moduleCatalogue.h"
#include "modulePage.h"
#include "zelQtMessageBox.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>

namespace {

constexpr int moduleListWidth = 170;

} // namespace

MainWindow::MainWindow(AppLanguage &language, AppUnitSystem &units, ModuleCatalogue &catalogue,
                       QWidget *parent)
    : QMainWindow(parent)
    , mLanguage(language)
    , mUnits(units)
    , mCatalogue(catalogue)
    , mTabs(new QTabWidget(this))
    , mConsistency(new QLabel(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    mTabs->setTabsClosable(true);
    mTabs->setDocumentMode(true);
    setCentralWidget(mTabs);
    connect(mTabs, &QTabWidget::tabCloseRequested, this, &MainWindow::closePage);
    connect(mTabs, &QTabWidget::currentChanged, this, &MainWindow::updateActions);

    makeModuleList();
    makeFileMenu();
    makeCalculationMenu();
    makeViewMenu();
    makeHelpMenu();
    statusBar()->addPermanentWidget(mConsistency);
    connect(&mUnits, &AppUnitSystem::changed, this, &MainWindow::applyUnitSystem);

    retranslateStrings();
    updateActions();
    resizeDocks({mModuleDock}, {moduleListWidth}, Qt::Horizontal);
    resize(QSize(1360, 780).boundedTo(screen()->availableSize()));
}

MainWindow::~MainWindow() = default;

void MainWindow::makeModuleList()
{
    mModuleDock = new QDockWidget(this);
    mModuleDock->setObjectName(QStringLiteral("moduleDock"));
    mModuleDock->setFeatures(QDockWidget::DockWidgetMovable);
    mModules = new QListWidget(mModuleDock);
    mModules->setObjectName(QStringLiteral("modules"));
    mModuleDock->setWidget(mModules);
    addDockWidget(Qt::LeftDockWidgetArea, mModuleDock);
    // Return, or a double click where that is the platform's way to open.
    connect(mModules, &QListWidget::itemActivated, this, &MainWindow::openItem);
    connect(mModules, &QListWidget::currentItemChanged, this, &MainWindow::updateActions);
}

void MainWindow::makeFileMenu()
{
    mFileMenu = menuBar()->addMenu(QString());
    mOpenAction =
        mFileMenu->addAction(QString(), this, [this] { openItem(mModules->currentItem()); });
    mOpenAction->setShortcut(QKeySequence::Open);
    mFileMenu->addSeparator();
    mExampleMenu = mFileMenu->addMenu(QString());
    connect(mExampleMenu, &QMenu::aboutToShow, this, &MainWindow::fillExamples);
    mLoadAction = mFileMenu->addAction(QString(), this, &MainWindow::loadValues);
    mSaveAction = mFileMenu->addAction(QString(), this, &MainWindow::saveValues);
    mSaveAction->setShortcut(QKeySequence::Save);
    mCloseAction =
        mFileMenu->addAction(QString(), this, [this] { closePage(mTabs->currentIndex()); });
    mCloseAction->setShortcut(QKeySequence::Close);
    mFileMenu->addSeparator();
    mQuitAction = mFileMenu->addAction(QString(), this, &QWidget::close);
    mQuitAction->setShortcut(QKeySequence::Quit);
}

void MainWindow::makeCalculationMenu()
{
    mCalculationMenu = menuBar()->addMenu(QString());
    mCalculateAction = mCalculationMenu->addAction(QString(), this, &MainWindow::calculate);
    mCalculateAction->setShortcut(Qt::Key_F5);
    mDialogAction = mCalculationMenu->addAction(QString(), this, &MainWindow::openDialog);
    mDialogAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+D")));
}

void MainWindow::makeViewMenu()
{
    mViewMenu = menuBar()->addMenu(QString());
    mUnitMenu = mViewMenu->addMenu(QString());
    auto *units = new QActionGroup(this);
    mMetricAction = units->addAction(QString());
    mUsAction = units->addAction(QString());
    const auto unitActions = units->actions();
    for (QAction *action : unitActions)
        action->setCheckable(true);
    mUnitMenu->addActions(unitActions);
    (mUnits.isUsCustomary() ? mUsAction : mMetricAction)->setChecked(true);
    connect(units, &QActionGroup::triggered, this,
            [this](const QAction *action) { mUnits.setUsCustomary(action == mUsAction); });

    mLanguageMenu = mViewMenu->addMenu(QString());
    mLanguageActions = new QActionGroup(this);
    for (const ZelLanguage language : AppLanguage::offered()) {
        QAction *action = mLanguageActions->addAction(AppLanguage::name(language));
        action->setCheckable(true);
        action->setChecked(language == mLanguage.language());
        action->setData(static_cast<int>(language));
        mLanguageMenu->addAction(action);
    }
    connect(mLanguageActions, &QActionGroup::triggered, this, [this](const QAction *action) {
        mLanguage.setLanguage(static_cast<ZelLanguage>(action->data().toInt()));
    });
}

void MainWindow::makeHelpMenu()
{
    mHelpMenu = menuBar()->addMenu(QString());
    mAboutAction = mHelpMenu->addAction(QString(), this, &MainWindow::showAbout);
}

void MainWindow::retranslateStrings()
{
    const auto name = [](QAction *action, const QString &text, const QString &tip) {
        action->setText(text);
        action->setStatusTip(tip);
    };
    setWindowTitle(tr("Tarvex Workbench"));
    mModuleDock->setWindowTitle(tr("Berechnungen"));
    mFileMenu->setTitle(tr("&Datei"));
    name(mOpenAction, tr("Berechnung &öffnen"), tr("Öffnet die ausgewählte Berechnung"));
    mExampleMenu->setTitle(tr("&Beispiel laden"));
    name(mLoadAction, tr("&Werte laden..."), tr("Liest Eingabewerte aus einer Datei"));
    name(mSaveAction, tr("Werte &speichern..."), tr("Schreibt die Eingabewerte in eine Datei"));
    name(mCloseAction, tr("S&chliessen"), tr("Schliesst die Berechnung"));
    name(mQuitAction, tr("Be&enden"), tr("Beendet das Programm"));
    mCalculationMenu->setTitle(tr("&Berechnung"));
    name(mCalculateAction, tr("Be&rechnen"), tr("Berechnet mit den Werten der Maske"));
    name(mDialogAction, tr("Im &Dialog berechnen..."),
         tr("Probiert Werte in einem Dialog aus und übernimmt sie, wenn sie berechnet sind"));
    mViewMenu->setTitle(tr("&Ansicht"));
    mUnitMenu->setTitle(tr("&Einheitensystem"));
    name(mMetricAction, tr("&Metrisch"), tr("Zeigt alle Werte in metrischen Einheiten"));
    name(mUsAction, tr("&US Customary Units"), tr("Zeigt alle Werte in amerikanischen Einheiten"));
    mLanguageMenu->setTitle(tr("&Sprache"));
    mHelpMenu->setTitle(tr("&Hilfe"));
    name(mAboutAction, tr("Ü&ber..."), tr("Zeigt Angaben zum Programm"));
    fillModuleList();
    for (int i = 0; i < mTabs->count(); ++i) {
        if (const auto *page = qobject_cast<ModulePage *>(mTabs->widget(i)))
            mTabs->setTabText(i, page->title());
    }
    updateActions();
}

void MainWindow::fillModuleList()
{
    const int row = mModules->currentRow();
    mModules->clear();
    for (const ModuleEntry &entry : mCatalogue.entries()) {
        auto *item = new QListWidgetItem(entry.title(), mModules);
        item->setData(Qt::UserRole, entry.mId);
        item->setStatusTip(tr("Öffnet die Berechnung \"%1\"").arg(entry.title()));
        item->setToolTip(entry.mFile);
    }
    mModules->setCurrentRow(qMax(0, row));
}

void MainWindow::updateActions()
{
    const ModulePage *page = currentPage();
    mOpenAction->setEnabled(mModules->currentItem());
    mExampleMenu->setEnabled(page && !page->examples().isEmpty());
    for (QAction *action :
         {mLoadAction, mSaveAction, mCloseAction, mCalculateAction, mDialogAction})
        action->setEnabled(page);
    if (!page || !page->wasCalculated())
        mConsistency->setText(QString());
    else
        mConsistency->setText(page->isConsistent() ? tr("Resultate konsistent")
                                                   : tr("Resultate nicht konsistent"));
}

ModulePage *MainWindow::currentPage() const
{
    return qobject_cast<ModulePage *>(mTabs->currentWidget());
}

void MainWindow::openItem(const QListWidgetItem *item)
{
    if (item)
        openModule(item->data(Qt::UserRole).toString());
}

ModulePage *MainWindow::openModule(const QString &id)
{
    auto page = mCatalogue.open(id, this);
    if (!page)
        return nullptr;
    ModulePage *opened = page.release();
    connect(opened, &ModulePage::consistencyChanged, this, &MainWindow::updateActions);
    connect(opened, &ZelQtParentWidget::helpChanged, this, &MainWindow::showHelpTopic);
    connect(opened, qOverload<int>(&ZelQtParentWidget::infoChanged), this,
            [this](int id) { showInfoTopic(QString::number(id)); });
    connect(opened, qOverload<QString>(&ZelQtParentWidget::infoChanged), this,
            &MainWindow::showInfoTopic);
    mTabs->setCurrentIndex(mTabs->addTab(opened, opened->title()));
    updateActions();
    return opened;
}

void MainWindow::closePage(int index)
{
    auto *page = qobject_cast<ModulePage *>(mTabs->widget(index));
    if (!page || !page->mayClose())
        return;
    mTabs->removeTab(index);
    delete page;
    updateActions();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    for (int i = 0; i < mTabs->count(); ++i) {
        auto *page = qobject_cast<ModulePage *>(mTabs->widget(i));
        if (page && !page->mayClose()) {
            mTabs->setCurrentWidget(page);
            event->ignore();
            return;
        }
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QMainWindow::changeEvent(event);
}

void MainWindow::fillExamples()
{
    mExampleMenu->clear();
    ModulePage *page = currentPage();
    if (!page)
        return;
    const QStringList files = page->examples();
    for (const QString &file : files) {
        mExampleMenu->addAction(QFileInfo(file).completeBaseName(), page, [page, file] {
            page->loadValues(file);
            page->calculate();
        });
    }
}

void MainWindow::loadValues()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Werte laden"), QString(), tr("Werte (*.values)"));
    if (!file.isEmpty() && currentPage())
        currentPage()->loadValues(file);
}

void MainWindow::saveValues()
{
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Werte speichern"), currentPage()->title() + QStringLiteral(".values"),
        tr("Werte (*.values)"));
    if (!file.isEmpty() && currentPage())
        currentPage()->saveValues(file);
}

void MainWindow::calculate()
{
    if (ModulePage *page = currentPage())
        page->calculate();
}

void MainWindow::openDialog()
{
    if (ModulePage *page = currentPage())
        page->calculateInDialog();
}

void MainWindow::showAbout()
{
    ZelQtMessageBox::information(
        tr("Tarvex Workbench %1").arg(QCoreApplication::applicationVersion()) + QLatin1Char('\n')
            + tr("Berechnungen von Maschinenelementen mit Einheiten."),
        this);
}

void MainWindow::showHelpTopic(const QString &file)
{
    statusBar()->showMessage(file.isEmpty() ? tr("Zu dieser Stelle gibt es kein Hilfethema.")
                                            : tr("Hilfethema %1").arg(file));
}

void MainWindow::showInfoTopic(const QString &topic)
{
    statusBar()->showMessage(tr("Infothema %1").arg(topic));
}

void MainWindow::applyUnitSystem()
{
    (mUnits.isUsCustomary() ? mUsAction : mMetricAction)->setChecked(true);
    for (int i = 0; i < mTabs->count(); ++i) {
        if (auto *page = qobject_cast<ModulePage *>(mTabs->widget(i)))
            page->updateUnitSystem(false);
    }
}
