#pragma once

#include "zelModuleRegistry.h"
#include "zelUITextHandler.h"

#include <QString>

#include <memory>
#include <vector>

class ModulePage;
class QWidget;

/// One module that was found.
struct ModuleEntry
{
    QString mId;
    QString mFile;
    ZelUITextHandler mText;

    /// In the current language.
    QString title() const;
};

/// The modules of a folder: every "<id>/<id>.xml". A description that can't be used is found too:
/// opening it tells what is wrong.
class ModuleCatalogue
{
public:
    /// `registry` holds the calculations and outlives the catalogue and its pages.
    ModuleCatalogue(const QString &folder, const ZelModuleRegistry &registry);
    ~ModuleCatalogue();

    const std::vector<ModuleEntry> &entries() const { return mEntries; }
    /// A page of its own for the module. Faults of the description are told in one message box over
    /// `window`; null when nothing of it can be used.
    std::unique_ptr<ModulePage> open(const QString &id, QWidget *window) const;

private:
    const ZelModuleRegistry &mRegistry;
    std::vector<ModuleEntry> mEntries;
};
