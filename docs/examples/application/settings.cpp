#include "settings.h"

#include "zelQtConversions.h"
#include "zelQtFormeleingabe.h"
#include "zelQtMessageBox.h"
#include "zelQtParentWidget.h"

#include <QCoreApplication>

//! [settings]
Settings::Settings()
{
    TarvexModule::Setup = &mSetup;
    ZelQtFormeleingabe::setEvalFuncPnt(evaluateFraction);
    Meldung::setHandler([](MeldungsVar, MeldungsTyp, const zelWString &text) {
        ZelQtMessageBox::information(toQString(text));
        return 0;
    });
}

Settings::~Settings()
{
    Meldung::setHandler({});
    ZelQtFormeleingabe::setEvalFuncPnt(nullptr);
    TarvexModule::Setup = nullptr;
}
//! [settings]

//! [evaluator]
bool evaluateFraction(const QString &formula, double &value)
{
    bool isNumber = false;
    bool isDivisor = true;
    const double number = formula.section('/', 0, 0).toDouble(&isNumber);
    const double divisor = formula.contains('/') ? formula.section('/', 1).toDouble(&isDivisor) : 1;
    if (!isNumber || !isDivisor || divisor == 0)
        return false;
    value = number / divisor;
    return true;
}
//! [evaluator]

//! [units]
void Settings::setUsCustomary(bool us, const std::vector<ZelQtParentWidget *> &hosts)
{
    mSetup.mUSCustomaryUnits = us ? 1 : 0;
    for (ZelQtParentWidget *host : hosts)
        host->updateUnitSystem(false);
}
//! [units]

//! [language]
void Settings::setLanguage(ZelLanguage language, const QString &code, const QString &folder)
{
    setZelLanguage(language);
    QCoreApplication::removeTranslator(&mTranslator);
    if (mTranslator.load(QStringLiteral("customwidgets_") + code, folder))
        QCoreApplication::installTranslator(&mTranslator);
}
//! [language]
