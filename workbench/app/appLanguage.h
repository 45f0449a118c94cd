#pragma once

#include "zelLanguage.h"

#include <QObject>
#include <QTranslator>

#include <memory>
#include <vector>

/// The language of the whole program: texts of the widgets, of Qt and of the model at once.
class AppLanguage : public QObject
{
    Q_OBJECT

public:
    /// German, the source language, until another one is chosen.
    explicit AppLanguage(QObject *parent = nullptr);
    ~AppLanguage() override;

    ZelLanguage language() const { return mLanguage; }
    /// All windows hear QEvent::LanguageChange; changed() comes after that was posted.
    void setLanguage(ZelLanguage language);
    /// Name of the language in itself.
    static QString name(ZelLanguage language);
    /// Code of the translation files, "de" for German.
    static QString code(ZelLanguage language);
    /// The languages with complete texts.
    static std::vector<ZelLanguage> offered();

Q_SIGNALS:
    void changed(ZelLanguage language);

private:
    void install(const QString &file, const QString &folder);

    ZelLanguage mLanguage = ZelLanguage::German;
    std::vector<std::unique_ptr<QTranslator>> mTranslators;
};
