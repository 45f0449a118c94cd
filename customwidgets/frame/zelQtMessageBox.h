#pragma once

#include "customwidgets_export.h"

#include <QMessageBox>
#include <QObject>

/// All questions and reports to the user in a modal box, so that a message has one wording and one
/// set of buttons everywhere. Everything is static; no object is ever made, and QObject is only a
/// base for the translations.
///
/// Each function returns the code of the pressed QMessageBox::StandardButton. A null parent stands
/// for the active window. "\n" in a text becomes a line break in markup too; texts that look like
/// markup are shown as such.
class CUSTOMWIDGETS_EXPORT ZelQtMessageBox : public QObject
{
    Q_OBJECT

public:
    // General messages
    static int information(const QString &text, QWidget *parent = nullptr);
    static int information(const wchar_t *text, QWidget *parent = nullptr);
    /// Yes, No.
    static int question(const QString &text, QWidget *parent = nullptr);
    static int question(const wchar_t *text, QWidget *parent = nullptr);
    /// Yes, No, Cancel.
    static int questionWithCancel(const QString &text, QWidget *parent = nullptr);
    static int questionWithCancel(const wchar_t *text, QWidget *parent = nullptr);
    static int questionCustomized(const QString &text, QMessageBox::StandardButtons buttons,
                                  QWidget *parent = nullptr);
    static int questionCustomized(const wchar_t *text, QMessageBox::StandardButtons buttons,
                                  QWidget *parent = nullptr);
    static int warning(const QString &text, QWidget *parent = nullptr);
    static int warning(const wchar_t *text, QWidget *parent = nullptr);
    static int error(const QString &text, QWidget *parent = nullptr);
    static int error(const wchar_t *text, QWidget *parent = nullptr);

    // Standard messages: files and results
    /// Yes, No, Cancel.
    static int saveChangesInFileQuestion(const QString &file, QWidget *parent = nullptr);
    static int openModuleNotPossibleInformation(QWidget *parent = nullptr);
    static int databasesInUseInformation(QWidget *parent = nullptr);
    static int resultsNotConsistentInformation(QWidget *parent = nullptr);
    static int specialResultsNotConsistentInformation(QWidget *parent = nullptr);
    /// Yes, No.
    static int resultsNotConsistentQuestion(QWidget *parent = nullptr);
    /// Yes, No.
    static int resultsAreConsistentQuestion(QWidget *parent = nullptr);

    // Standard messages: errors
    static int calculationFailedError(QWidget *parent = nullptr);
    static int emailFailedError(QWidget *parent = nullptr);
    static int nothingSelectedError(QWidget *parent = nullptr);
    static int fileNotFoundError(const QString &file, QWidget *parent = nullptr);
    static int dynamicFileError(const QString &file, QWidget *parent = nullptr);
    static int dynamicElementError(const QString &element, QWidget *parent = nullptr);
    /// `what` could not be saved.
    static int savingFailedError(const QString &what, QWidget *parent = nullptr);

    // Standard messages: reports
    static int rpuFileNotFoundInformation(const QString &file, QWidget *parent = nullptr);
    static int rptFileNotFoundError(const QString &file, QWidget *parent = nullptr);
    static int tmpFileNotFoundError(const QString &file, QWidget *parent = nullptr);
    static int reportFailedError(QWidget *parent = nullptr);
    static int specialCalcReportNotInitialised(QWidget *parent = nullptr);

private:
    friend class tst_zelQtMessageBox;

    ZelQtMessageBox() = default;

    static QString checkLineBreak(const QString &text);
    static int show(QMessageBox::Icon icon, const QString &text, QWidget *parent,
                    QMessageBox::StandardButtons buttons);
};
