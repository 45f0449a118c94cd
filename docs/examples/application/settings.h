#pragma once

#include "tarvexModule.h"
#include "zelLanguage.h"

#include <QTranslator>

#include <vector>

class ZelQtParentWidget;

/// What a program sets once for all its masks.
class Settings
{
public:
    Settings();
    ~Settings();

    void setLanguage(ZelLanguage language, const QString &code, const QString &folder);
    void setUsCustomary(bool us, const std::vector<ZelQtParentWidget *> &hosts);

private:
    TarvexSetup mSetup;
    QTranslator mTranslator;
};

/// Evaluates "3/16" and plain numbers.
bool evaluateFraction(const QString &formula, double &value);
