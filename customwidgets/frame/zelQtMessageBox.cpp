#include "zelQtMessageBox.h"

#include <QApplication>
#include <QPixmap>
#include <QPointer>

namespace {

constexpr QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
constexpr QMessageBox::StandardButtons yesNoCancel = yesNo | QMessageBox::Cancel;

QString withArgument(const QString &text, const QString &argument)
{
    return text.arg(argument, 0, QLatin1Char(' '));
}

// Lines are translated one by one, so that the second one can be shared.
QString twoLines(const QString &first, const QString &second)
{
    return first + QLatin1Char('\n') + second;
}

QString iconFile(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral(":/msgInfo.svg");
    case QMessageBox::Warning:
        return QStringLiteral(":/msgWarning.svg");
    case QMessageBox::Critical:
        return QStringLiteral(":/msgCritical.svg");
    case QMessageBox::Question:
        return QStringLiteral(":/msgQuestion.svg");
    default:
        return QString();
    }
}

} // namespace

QString ZelQtMessageBox::checkLineBreak(const QString &text)
{
    QString result = text;
    return result.replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

int ZelQtMessageBox::show(QMessageBox::Icon icon, const QString &text, QWidget *parent,
                          QMessageBox::StandardButtons buttons)
{
    // The box can outlive the override cursor of a calculation that it interrupts, so the arrow is
    // a level of its own, and exactly this level goes at the end.
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    // On the heap: it goes with its parent when that is deleted while it is open. The answer is
    // then 0, which is no button.
    const QPointer<QMessageBox> box(
        new QMessageBox(parent ? parent : QApplication::activeWindow()));
    const QString file = iconFile(icon);
    if (!file.isEmpty())
        box->setIconPixmap(QPixmap(file));
    QString title;
    switch (icon) {
    case QMessageBox::Information:
        title = tr("Information");
        break;
    case QMessageBox::Warning:
        title = tr("Warnung");
        break;
    case QMessageBox::Critical:
        title = tr("Fehler");
        break;
    case QMessageBox::Question:
        title = tr("Frage");
        break;
    default:
        title = tr("Meldung");
        break;
    }
    box->setWindowTitle(title);
    box->setText(checkLineBreak(text));
    box->setStandardButtons(buttons);
    const int answer = box->exec();
    delete box.data();
    QGuiApplication::restoreOverrideCursor();
    return answer;
}

int ZelQtMessageBox::information(const QString &text, QWidget *parent)
{
    return show(QMessageBox::Information, text, parent, QMessageBox::Ok);
}

int ZelQtMessageBox::information(const wchar_t *text, QWidget *parent)
{
    return information(QString::fromWCharArray(text), parent);
}

int ZelQtMessageBox::question(const QString &text, QWidget *parent)
{
    return questionCustomized(text, yesNo, parent);
}

int ZelQtMessageBox::question(const wchar_t *text, QWidget *parent)
{
    return question(QString::fromWCharArray(text), parent);
}

int ZelQtMessageBox::questionWithCancel(const QString &text, QWidget *parent)
{
    return questionCustomized(text, yesNoCancel, parent);
}

int ZelQtMessageBox::questionWithCancel(const wchar_t *text, QWidget *parent)
{
    return questionWithCancel(QString::fromWCharArray(text), parent);
}

int ZelQtMessageBox::questionCustomized(const QString &text, QMessageBox::StandardButtons buttons,
                                        QWidget *parent)
{
    return show(QMessageBox::Question, text, parent, buttons);
}

int ZelQtMessageBox::questionCustomized(const wchar_t *text, QMessageBox::StandardButtons buttons,
                                        QWidget *parent)
{
    return questionCustomized(QString::fromWCharArray(text), buttons, parent);
}

int ZelQtMessageBox::warning(const QString &text, QWidget *parent)
{
    return show(QMessageBox::Warning, text, parent, QMessageBox::Ok);
}

int ZelQtMessageBox::warning(const wchar_t *text, QWidget *parent)
{
    return warning(QString::fromWCharArray(text), parent);
}

int ZelQtMessageBox::error(const QString &text, QWidget *parent)
{
    return show(QMessageBox::Critical, text, parent, QMessageBox::Ok);
}

int ZelQtMessageBox::error(const wchar_t *text, QWidget *parent)
{
    return error(QString::fromWCharArray(text), parent);
}

int ZelQtMessageBox::saveChangesInFileQuestion(const QString &file, QWidget *parent)
{
    return questionWithCancel(
        withArgument(tr("Möchten Sie die Änderungen in \"%1\" speichern?"), file), parent);
}

int ZelQtMessageBox::openModuleNotPossibleInformation(QWidget *parent)
{
    return information(tr("Diese Aktion ist bei geöffnetem Berechnungsmodul nicht möglich!"),
                       parent);
}

int ZelQtMessageBox::databasesInUseInformation(QWidget *parent)
{
    return information(tr("Die Datenbanken (udb-Verzeichnis) werden bereits verwendet.<br>"
                          "Vermutlich ist ein weiteres Tarvex oder Morlune aktiv."),
                       parent);
}

int ZelQtMessageBox::resultsNotConsistentInformation(QWidget *parent)
{
    return information(tr("Die Resultate sind nicht konsistent!<br>"
                          "Führen Sie zuerst die Berechnung aus."),
                       parent);
}

int ZelQtMessageBox::specialResultsNotConsistentInformation(QWidget *parent)
{
    return information(tr("Protokolle aus Spezialberechnungstabs stehen nur zur Verfügung wenn "
                          "die Berechnung in diesen Spezialtabs durchgeführt wurde."),
                       parent);
}

int ZelQtMessageBox::resultsNotConsistentQuestion(QWidget *parent)
{
    return question(tr("Die Resultate sind nicht konsistent!<br>"
                       "Möchten Sie die Aktion dennoch durchführen?"),
                    parent);
}

int ZelQtMessageBox::resultsAreConsistentQuestion(QWidget *parent)
{
    return question(tr("Die Resultate sind konsistent.<br>"
                       "Möchten Sie wirklich neu rechnen?"),
                    parent);
}

int ZelQtMessageBox::calculationFailedError(QWidget *parent)
{
    return error(tr("Ein unbestimmter Fehler ist aufgetreten!<br>"
                    "Die Berechnung wurde abgebrochen."),
                 parent);
}

int ZelQtMessageBox::emailFailedError(QWidget *parent)
{
    return error(tr("Ein Fehler ist aufgetreten.<br>"
                    "E-Mail kann nicht gesendet werden."),
                 parent);
}

int ZelQtMessageBox::nothingSelectedError(QWidget *parent)
{
    return error(tr("Sie haben keinen Eintrag markiert!<br>"
                    "Bitte treffen Sie eine Auswahl."),
                 parent);
}

int ZelQtMessageBox::fileNotFoundError(const QString &file, QWidget *parent)
{
    return error(withArgument(tr("Datei \"%1\" konnte nicht gefunden werden."), file), parent);
}

int ZelQtMessageBox::dynamicFileError(const QString &file, QWidget *parent)
{
    return error(
        withArgument(tr("Fehler beim Lesen der dynamischen Beschreibungsdatei \"%1\"."), file),
        parent);
}

int ZelQtMessageBox::dynamicElementError(const QString &element, QWidget *parent)
{
    return error(withArgument(tr("Das Element \"%1\" ist im Metasystem nicht vorhanden."), element),
                 parent);
}

int ZelQtMessageBox::savingFailedError(const QString &what, QWidget *parent)
{
    return error(withArgument(tr("%1 konnte nicht gespeichert werden."), what), parent);
}

int ZelQtMessageBox::rpuFileNotFoundInformation(const QString &file, QWidget *parent)
{
    return information(
        twoLines(
            withArgument(tr("Benutzerdefinierte Protokollvorlage \"%1\" nicht gefunden."), file),
            tr("Es wird die Tarvex-Protokollvorlage verwendet!")),
        parent);
}

int ZelQtMessageBox::rptFileNotFoundError(const QString &file, QWidget *parent)
{
    return error(twoLines(withArgument(tr("Tarvex-Protokollvorlage \"%1\" nicht gefunden."), file),
                          tr("Das Protokoll konnte nicht erstellt werden!")),
                 parent);
}

int ZelQtMessageBox::tmpFileNotFoundError(const QString &file, QWidget *parent)
{
    return error(twoLines(withArgument(tr("Tarvex-Temporärdatei \"%1\" nicht gefunden."), file),
                          tr("Das Protokoll konnte nicht erstellt werden!")),
                 parent);
}

int ZelQtMessageBox::reportFailedError(QWidget *parent)
{
    return error(tr("Bei der Erstellung des Protokolls ist ein Fehler aufgetreten."), parent);
}

int ZelQtMessageBox::specialCalcReportNotInitialised(QWidget *parent)
{
    return information(tr("Bitte zuerst die Berechnung durchführen."), parent);
}
