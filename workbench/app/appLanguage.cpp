#include "appLanguage.h"

#include "dataFolder.h"

#include <QCoreApplication>
#include <QLibraryInfo>

AppLanguage::AppLanguage(QObject *parent)
    : QObject(parent)
{
    setLanguage(ZelLanguage::German);
}

AppLanguage::~AppLanguage() = default;

QString AppLanguage::name(ZelLanguage language)
{
    switch (language) {
    case ZelLanguage::German:
        return QStringLiteral("Deutsch");
    case ZelLanguage::English:
        return QStringLiteral("English");
    default:
        return QString();
    }
}

QString AppLanguage::code(ZelLanguage language)
{
    static const char *const codes[] = {"de", "en", "fr", "it", "es", "ru", "pt", "zh", "ja"};
    return QLatin1String(codes[static_cast<int>(language)]);
}

std::vector<ZelLanguage> AppLanguage::offered()
{
    return {ZelLanguage::German, ZelLanguage::English};
}

void AppLanguage::install(const QString &file, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    mTranslators.push_back(std::move(translator));
}

void AppLanguage::setLanguage(ZelLanguage language)
{
    mLanguage = language;
    setZelLanguage(language);
    mTranslators.clear();
    const QString suffix = code(language);
    const QString translations = dataFolder() + QStringLiteral("/translations");
    // Qt's own texts are English in the sources, ours are German: each is translated where it has
    // to.
    install(QStringLiteral("qtbase_") + suffix,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("customwidgets_") + suffix, translations);
    install(QStringLiteral("workbench_") + suffix, translations);
    Q_EMIT changed(language);
}
