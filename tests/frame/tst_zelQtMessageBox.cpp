#include "zelQtMessageBox.h"

#include "modal.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

// What the open box showed, taken down just before it was answered.
struct Seen
{
    QString mTitle;
    QString mText;
    QMessageBox::StandardButtons mButtons;
    QPixmap mPixmap;
    Qt::CursorShape mCursor = Qt::BlankCursor;
    QWidget *mParent = nullptr;
};

// Arms an answer to the next modal box; the shared struct is filled when the box is up.
std::shared_ptr<Seen> answerWith(QMessageBox::StandardButton button)
{
    auto seen = std::make_shared<Seen>();
    QTimer::singleShot(0, qApp, [seen, button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        seen->mTitle = box->windowTitle();
        seen->mText = box->text();
        seen->mButtons = box->standardButtons();
        seen->mPixmap = box->iconPixmap();
        seen->mParent = box->parentWidget();
        if (const QCursor *cursor = QGuiApplication::overrideCursor())
            seen->mCursor = cursor->shape();
        if (QAbstractButton *pressed = box->button(button))
            pressed->click();
        else
            box->done(QMessageBox::NoButton);
    });
    return seen;
}

using Call = std::function<int(QWidget *)>;
constexpr QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
constexpr QMessageBox::StandardButtons yesNoCancel = yesNo | QMessageBox::Cancel;

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)

class tst_zelQtMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void message_data();
    void message();
    void unknownKindHasNoPictureAndTitleMeldung();
    void lineBreaksBecomeMarkup();
    void answersWithThePressedButton_data();
    void answersWithThePressedButton();
    void escapeAnswersNoOrCancel_data();
    void escapeAnswersNoOrCancel();
    void arrowCursorLiesOverTheBoxAlone();
    void nullParentMeansTheActiveWindow();
    void parentMayGoWhileTheBoxIsOpen();
    void markupIsGuessedSoATagInAFileNameIsMeantToShowAsMarkup();
};

void tst_zelQtMessageBox::message_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");

    const auto row = [](const char *name, const char *title, const QString &text,
                        QMessageBox::StandardButtons buttons, const Call &call) {
        QTest::newRow(name) << call << QString::fromUtf8(title) << text << buttons;
    };
    const QMessageBox::StandardButtons ok = QMessageBox::Ok;
    using Box = ZelQtMessageBox;
    const QString file = QStringLiteral("a.txt");

    row("information", "Information", "t", ok, [](QWidget *p) { return Box::information("t", p); });
    row("information, wide", "Information", "t", ok,
        [](QWidget *p) { return Box::information(L"t", p); });
    row("question", "Frage", "t", yesNo, [](QWidget *p) { return Box::question("t", p); });
    row("question, wide", "Frage", "t", yesNo, [](QWidget *p) { return Box::question(L"t", p); });
    row("question with cancel", "Frage", "t", yesNoCancel,
        [](QWidget *p) { return Box::questionWithCancel("t", p); });
    row("question with cancel, wide", "Frage", "t", yesNoCancel,
        [](QWidget *p) { return Box::questionWithCancel(L"t", p); });
    row("question customized", "Frage", "t", QMessageBox::Retry | QMessageBox::Ignore,
        [](QWidget *p) {
            return Box::questionCustomized("t", QMessageBox::Retry | QMessageBox::Ignore, p);
        });
    row("question customized, wide", "Frage", "t", QMessageBox::Retry | QMessageBox::Ignore,
        [](QWidget *p) {
            return Box::questionCustomized(L"t", QMessageBox::Retry | QMessageBox::Ignore, p);
        });
    row("warning", "Warnung", "t", ok, [](QWidget *p) { return Box::warning("t", p); });
    row("warning, wide", "Warnung", "t", ok, [](QWidget *p) { return Box::warning(L"t", p); });
    row("error", "Fehler", "t", ok, [](QWidget *p) { return Box::error("t", p); });
    row("error, wide", "Fehler", "t", ok, [](QWidget *p) { return Box::error(L"t", p); });

    row("save changes", "Frage", "Möchten Sie die Änderungen in \"a.txt\" speichern?", yesNoCancel,
        [=](QWidget *p) { return Box::saveChangesInFileQuestion(file, p); });
    row("open module", "Information",
        "Diese Aktion ist bei geöffnetem Berechnungsmodul nicht möglich!", ok,
        [](QWidget *p) { return Box::openModuleNotPossibleInformation(p); });
    row("databases in use", "Information",
        "Die Datenbanken (udb-Verzeichnis) werden bereits verwendet.<br>Vermutlich ist ein "
        "weiteres Tarvex oder Morlune aktiv.",
        ok, [](QWidget *p) { return Box::databasesInUseInformation(p); });
    row("results not consistent", "Information",
        "Die Resultate sind nicht konsistent!<br>Führen Sie zuerst die Berechnung aus.", ok,
        [](QWidget *p) { return Box::resultsNotConsistentInformation(p); });
    row("special results", "Information",
        "Protokolle aus Spezialberechnungstabs stehen nur zur Verfügung wenn die Berechnung in "
        "diesen Spezialtabs durchgeführt wurde.",
        ok, [](QWidget *p) { return Box::specialResultsNotConsistentInformation(p); });
    row("results not consistent, question", "Frage",
        "Die Resultate sind nicht konsistent!<br>Möchten Sie die Aktion dennoch durchführen?",
        yesNo, [](QWidget *p) { return Box::resultsNotConsistentQuestion(p); });
    row("results consistent, question", "Frage",
        "Die Resultate sind konsistent.<br>Möchten Sie wirklich neu rechnen?", yesNo,
        [](QWidget *p) { return Box::resultsAreConsistentQuestion(p); });
    row("calculation failed", "Fehler",
        "Ein unbestimmter Fehler ist aufgetreten!<br>Die Berechnung wurde abgebrochen.", ok,
        [](QWidget *p) { return Box::calculationFailedError(p); });
    row("email failed", "Fehler",
        "Ein Fehler ist aufgetreten.<br>E-Mail kann nicht gesendet werden.", ok,
        [](QWidget *p) { return Box::emailFailedError(p); });
    row("nothing selected", "Fehler",
        "Sie haben keinen Eintrag markiert!<br>Bitte treffen Sie eine Auswahl.", ok,
        [](QWidget *p) { return Box::nothingSelectedError(p); });
    row("file not found", "Fehler", "Datei \"a.txt\" konnte nicht gefunden werden.", ok,
        [=](QWidget *p) { return Box::fileNotFoundError(file, p); });
    row("dynamic file", "Fehler", "Fehler beim Lesen der dynamischen Beschreibungsdatei \"a.txt\".",
        ok, [=](QWidget *p) { return Box::dynamicFileError(file, p); });
    row("dynamic element", "Fehler", "Das Element \"a.txt\" ist im Metasystem nicht vorhanden.", ok,
        [=](QWidget *p) { return Box::dynamicElementError(file, p); });
    row("saving failed", "Fehler", "a.txt konnte nicht gespeichert werden.", ok,
        [=](QWidget *p) { return Box::savingFailedError(file, p); });
    row("rpu file", "Information",
        "Benutzerdefinierte Protokollvorlage \"a.txt\" nicht gefunden.<br>Es wird die "
        "Tarvex-Protokollvorlage verwendet!",
        ok, [=](QWidget *p) { return Box::rpuFileNotFoundInformation(file, p); });
    row("rpt file", "Fehler",
        "Tarvex-Protokollvorlage \"a.txt\" nicht gefunden.<br>Das Protokoll konnte nicht erstellt "
        "werden!",
        ok, [=](QWidget *p) { return Box::rptFileNotFoundError(file, p); });
    row("tmp file", "Fehler",
        "Tarvex-Temporärdatei \"a.txt\" nicht gefunden.<br>Das Protokoll konnte nicht erstellt "
        "werden!",
        ok, [=](QWidget *p) { return Box::tmpFileNotFoundError(file, p); });
    row("report failed", "Fehler", "Bei der Erstellung des Protokolls ist ein Fehler aufgetreten.",
        ok, [](QWidget *p) { return Box::reportFailedError(p); });
    row("special report", "Information", "Bitte zuerst die Berechnung durchführen.", ok,
        [](QWidget *p) { return Box::specialCalcReportNotInitialised(p); });
}

void tst_zelQtMessageBox::message()
{
    QFETCH(Call, call);
    QFETCH(QString, title);
    const QHash<QString, QString> icons{{"Information", ":/msgInfo.svg"},
                                        {"Warnung", ":/msgWarning.svg"},
                                        {"Fehler", ":/msgCritical.svg"},
                                        {"Frage", ":/msgQuestion.svg"}};
    QWidget parent;
    const auto seen = answerWith(QMessageBox::Ok);
    call(&parent);
    QCOMPARE(seen->mTitle, title);
    QTEST(seen->mText, "text");
    QTEST(seen->mButtons, "buttons");
    QCOMPARE(seen->mParent, &parent);
    const QPixmap icon(icons.value(title));
    QVERIFY(!icon.isNull());
    QCOMPARE(seen->mPixmap.toImage(), icon.toImage());
}

void tst_zelQtMessageBox::unknownKindHasNoPictureAndTitleMeldung()
{
    const auto seen = answerWith(QMessageBox::Apply);
    QCOMPARE(ZelQtMessageBox::show(QMessageBox::NoIcon, "t", nullptr, QMessageBox::Apply),
             int(QMessageBox::Apply));
    QCOMPARE(seen->mTitle, QString("Meldung"));
    QVERIFY(seen->mPixmap.isNull());
}

void tst_zelQtMessageBox::lineBreaksBecomeMarkup()
{
    const auto seen = answerWith(QMessageBox::Ok);
    ZelQtMessageBox::information("a\nb\nc");
    QCOMPARE(seen->mText, QString("a<br>b<br>c"));
}

void tst_zelQtMessageBox::answersWithThePressedButton_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("button");
    const Call question = [](QWidget *) { return ZelQtMessageBox::question("t"); };
    const Call withCancel = [](QWidget *) { return ZelQtMessageBox::questionWithCancel("t"); };
    QTest::newRow("question, yes") << question << int(QMessageBox::Yes);
    QTest::newRow("question, no") << question << int(QMessageBox::No);
    QTest::newRow("with cancel, yes") << withCancel << int(QMessageBox::Yes);
    QTest::newRow("with cancel, no") << withCancel << int(QMessageBox::No);
    QTest::newRow("with cancel, cancel") << withCancel << int(QMessageBox::Cancel);
}

void tst_zelQtMessageBox::answersWithThePressedButton()
{
    QFETCH(Call, call);
    QFETCH(int, button);
    answerWith(static_cast<QMessageBox::StandardButton>(button));
    QCOMPARE(call(nullptr), button);
}

void tst_zelQtMessageBox::escapeAnswersNoOrCancel_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("answer");
    QTest::newRow("ok") << Call([](QWidget *) { return ZelQtMessageBox::error("t"); })
                        << int(QMessageBox::Ok);
    QTest::newRow("yes, no") << Call([](QWidget *) { return ZelQtMessageBox::question("t"); })
                             << int(QMessageBox::No);
    QTest::newRow("yes, no, cancel")
        << Call([](QWidget *) { return ZelQtMessageBox::questionWithCancel("t"); })
        << int(QMessageBox::Cancel);
}

void tst_zelQtMessageBox::escapeAnswersNoOrCancel()
{
    QFETCH(Call, call);
    QTimer::singleShot(0, qApp, [] {
        if (QWidget *box = QApplication::activeModalWidget())
            QTest::keyClick(box, Qt::Key_Escape);
    });
    QTEST(call(nullptr), "answer");
}

void tst_zelQtMessageBox::arrowCursorLiesOverTheBoxAlone()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    const auto seen = answerWith(QMessageBox::Ok);
    ZelQtMessageBox::warning("t");
    QCOMPARE(seen->mCursor, Qt::ArrowCursor);

    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
    QGuiApplication::restoreOverrideCursor();
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_zelQtMessageBox::nullParentMeansTheActiveWindow()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto seen = answerWith(QMessageBox::Ok);
    ZelQtMessageBox::information("t");
    QCOMPARE(seen->mParent, &window);
}

void tst_zelQtMessageBox::parentMayGoWhileTheBoxIsOpen()
{
    QPointer<QWidget> parent(new QWidget);
    const auto box = onModal<QMessageBox>([&](QMessageBox *) { delete parent.data(); });
    QCOMPARE(ZelQtMessageBox::question("t", parent), 0);
    QVERIFY(box.ran());
    QVERIFY(!parent);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_zelQtMessageBox::markupIsGuessedSoATagInAFileNameIsMeantToShowAsMarkup()
{
    const auto seen = answerWith(QMessageBox::Ok);
    ZelQtMessageBox::fileNotFoundError("a<b>.txt");
    QCOMPARE(seen->mText, QString("Datei \"a<b>.txt\" konnte nicht gefunden werden."));
}

QTEST_MAIN(tst_zelQtMessageBox)
#include "tst_zelQtMessageBox.moc"
