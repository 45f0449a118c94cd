#include "moduleCatalogue.h"

#include "faultBox.h"
#include "modulePage.h"
#include "zelQtConversions.h"
#include "zelQtMessageBox.h"

#include <QDir>

#include <algorithm>

QString ModuleEntry::title() const
{
    return mText.empty() ? mId : toQString(mText.getText());
}

ModuleCatalogue::ModuleCatalogue(const QString &folder, const ZelModuleRegistry &registry)
    : mRegistry(registry)
{
    const QDir modules(folder);
    const QStringList ids = modules.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &id : ids) {
        ModuleEntry entry;
        entry.mId = id;
        entry.mFile = modules.filePath(id + QLatin1Char('/') + id + QStringLiteral(".xml"));
        if (!QFile::exists(entry.mFile))
            continue;
        // The faults are told when the module is opened.
        ZelFaultList faults;
        const ZelDescription description =
            ZelDescription::fromFile(entry.mFile.toStdString(), faults);
        entry.mText.setup(description.root());
        mEntries.push_back(std::move(entry));
    }
}

ModuleCatalogue::~ModuleCatalogue() = default;

std::unique_ptr<ModulePage> ModuleCatalogue::open(const QString &id, QWidget *window) const
{
    const auto entry = std::find_if(mEntries.begin(), mEntries.end(),
                                    [&id](const ModuleEntry &one) { return one.mId == id; });
    if (entry == mEntries.end()) {
        ZelQtMessageBox::dynamicElementError(id, window);
        return nullptr;
    }
    ZelFaultList faults;
    auto module = zelLoadModule(entry->mFile.toStdString(), mRegistry, faults);
    std::unique_ptr<ModulePage> page;
    if (module && !module->mDescription.isEmpty())
        page = std::make_unique<ModulePage>(std::move(module), mRegistry, faults);
    showFaults(faults, window);
    return page;
}
