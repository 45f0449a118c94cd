#include "zelQtCustomButtons.h"

#include "zelQtConversions.h"
#include "zelQtWidgetHelpers_p.h"

// The buttons of fixed roles. Each constructor names its own retranslateStrings(), since a virtual
// call there would not reach a subclass anyway.

ZelQtSizeButton::ZelQtSizeButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_size.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Size);
    ZelQtSizeButton::retranslateStrings();
}

ZelQtSizeButton::~ZelQtSizeButton() = default;

void ZelQtSizeButton::setToolTipAdvanced(const QString &text)
{
    setToolTip(tr("%1 auslegen").arg(text));
}

void ZelQtSizeButton::retranslateStrings()
{
    setStatusTip(tr("Berechnet den Wert anhand von Rechenmethoden"));
}

ZelQtConvertButton::ZelQtConvertButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_convert.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Convert);
    ZelQtConvertButton::retranslateStrings();
}

ZelQtConvertButton::~ZelQtConvertButton() = default;

void ZelQtConvertButton::setToolTipAdvanced(const QString &text)
{
    setToolTip(tr("%1 umrechnen").arg(text));
}

void ZelQtConvertButton::retranslateStrings()
{
    setStatusTip(tr("Berechnet den Wert anhand von Umrechnungsformeln"));
}

ZelQtPlusButton::ZelQtPlusButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_plus.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Plus);
    ZelQtPlusButton::retranslateStrings();
}

ZelQtPlusButton::~ZelQtPlusButton() = default;

void ZelQtPlusButton::retranslateStrings()
{
    setStatusTip(tr("Zeigt zusätzliche Daten in einem Dialog an"));
}

ZelQtInfoButton::ZelQtInfoButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_info.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Info);
    ZelQtInfoButton::retranslateStrings();
    connect(this, &ZelQtInfoButton::clicked, this, &ZelQtInfoButton::emitInfoSignal);
}

ZelQtInfoButton::ZelQtInfoButton(int id, QWidget *parent)
    : ZelQtInfoButton(parent)
{
    setInfoId(id);
}

ZelQtInfoButton::ZelQtInfoButton(const QString &file, QWidget *parent)
    : ZelQtInfoButton(parent)
{
    setInfoFile(file);
}

ZelQtInfoButton::ZelQtInfoButton(const QList<int> &ids, QWidget *parent)
    : ZelQtInfoButton(parent)
{
    setInfoIds(std::vector<int>(ids.begin(), ids.end()));
}

ZelQtInfoButton::ZelQtInfoButton(const QList<QString> &files, QWidget *parent)
    : ZelQtInfoButton(parent)
{
    std::vector<zelWString> names;
    for (const QString &file : files)
        names.emplace_back(file.toStdWString());
    setInfoFiles(names);
}

ZelQtInfoButton::~ZelQtInfoButton() = default;

QString ZelQtInfoButton::currentInfoFile() const
{
    return toQString(ZelUIPushButton::currentInfoFile());
}

void ZelQtInfoButton::setInfoFile(const QString &file)
{
    ZelUIPushButton::setInfoFile(file.toStdWString());
}

void ZelQtInfoButton::setCurrentIndex(int index)
{
    setInfoIndex(index);
}

void ZelQtInfoButton::retranslateStrings()
{
    setToolTip(tr("Zusatzinfo"));
    setStatusTip(tr("Zeigt zusätzliche Informationen im Infofenster an"));
}

void ZelQtInfoButton::emitInfoSignal()
{
    // The index isn't checked: the caller keeps it inside the list.
    const auto index = static_cast<size_t>(mInfoIndex);
    if (!mInfoIds.empty()) {
        const int id = mInfoIds[index];
        if (!notifyHostInfoChanged(this, id))
            Q_EMIT infoChanged(id);
        return;
    }
    const QString file = toQString(mInfoFiles.empty() ? mInfoFile : mInfoFiles[index]);
    if (!notifyHostInfoChanged(this, file))
        Q_EMIT infoChanged(file);
}

ZelQtOfferButton::ZelQtOfferButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_offer.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Offer);
    ZelQtOfferButton::retranslateStrings();
}

ZelQtOfferButton::~ZelQtOfferButton() = default;

void ZelQtOfferButton::retranslateStrings()
{
    setToolTip(tr("Angebot für ein Werkzeug anfragen"));
    setStatusTip(tr("Fragt ein Angebot für ein Werkzeug an"));
}

ZelQtDatabaseButton::ZelQtDatabaseButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_database.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Database);
    ZelQtDatabaseButton::retranslateStrings();
}

ZelQtDatabaseButton::~ZelQtDatabaseButton() = default;

void ZelQtDatabaseButton::retranslateStrings()
{
    setToolTip(tr("Datenbank bearbeiten"));
    setStatusTip(tr("Bearbeitet den Eintrag in der Datenbank"));
}

ZelQtSettingsButton::ZelQtSettingsButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_settings.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::Settings);
    ZelQtSettingsButton::retranslateStrings();
}

ZelQtSettingsButton::~ZelQtSettingsButton() = default;

void ZelQtSettingsButton::setToolTipAdvanced(const QString &text)
{
    setToolTip(text.isEmpty() ? tr("Spezifische Einstellungen")
                              : tr("Spezifische Einstellungen für %1").arg(text));
}

void ZelQtSettingsButton::retranslateStrings()
{
    setStatusTip(tr("Zeigt spezifische Einstellungen für den Wert in einem Dialog an"));
}

ZelQtFileButton::ZelQtFileButton(QWidget *parent)
    : ZelQtToolButton(QStringLiteral(":/button_file.svg"), parent)
{
    setPushButtonType(ZelUIPushButtonType::File);
}

ZelQtFileButton::~ZelQtFileButton() = default;
