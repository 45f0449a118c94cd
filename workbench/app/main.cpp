#include "appLanguage.h"
#include "appUnitSystem.h"
#include "dataFolder.h"
#include "formulaEvaluator.h"
#include "mainWindow.h"
#include "messages.h"
#include "moduleCatalogue.h"
#include "pictureTour.h"
#include "springModule.h"
#include "zelQtFormeleingabe.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

void registerModules(ZelModuleRegistry &registry)
{
    registry.add<SpringModule>(L"SpringModule");
}

} // namespace

int main(int argc, char **argv)
{
    // Icons stay sharp on screens of high resolution.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarvex-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption pictures(
        QStringLiteral("pictures"),
        QStringLiteral("Works through the examples, leaves pictures and "
                       "results in <folder> and ends."),
        QStringLiteral("folder"));
    parser.addOption(pictures);
    parser.process(application);

    ZelModuleRegistry registry;
    registerModules(registry);
    AppLanguage language;
    AppUnitSystem units;
    showModelMessages();
    ZelQtFormeleingabe::setEvalFuncPnt(evaluateFormulaForField);
    ModuleCatalogue catalogue(dataFolder() + QStringLiteral("/modules"), registry);
    MainWindow window(language, units, catalogue);
    window.show();

    if (parser.isSet(pictures)) {
        PictureTour tour(window, language, units, parser.value(pictures));
        return tour.run() ? 0 : 1;
    }
    if (catalogue.entries().size() == 1)
        window.openModule(catalogue.entries().front().mId);
    return QApplication::exec();
}
