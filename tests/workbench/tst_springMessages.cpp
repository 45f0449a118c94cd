#include "springExamples.h"
#include "springMessages.h"
#include "springModuleSupport.h"
#include "tarvexModule.h"
#include "zelLanguage.h"
#include "zelTextTable.h"

#include <QtTest>

using namespace SpringTest;

// Numbers in default units by variable.
using Values = QVector<QPair<QString, double>>;
Q_DECLARE_METATYPE(Values)

class tst_springMessages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyMessageHasGermanAndEnglish_data();
    void everyMessageHasGermanAndEnglish();
    void codesAreUnique();
    void messageOfASpring_data();
    void messageOfASpring();
    void everyMessageIsTried();
    void aMessageColoursItsFields();
    void aSpringThatIsRightAgainColoursNothing();
    void textFollowsLanguageAndUnitSystem();

private:
    std::unique_ptr<ZelLoadedModule> mSpring;
    TarvexSetup mSetup;

    Meta &meta() const { return mSpring->meta(); }
    void set(const QString &name, double value) const;
    ZelCalcMessage messageOf(const ZelCalcResult &result, const QString &code) const;
};

namespace {
/// A change of an example, and the message that it brings up.
struct Row
{
    const char *mName;
    QString mExample;
    Values mChanges;
    QString mCode;
    QString mText;
    QStringList mVariables;
};
} // namespace

static constexpr int messageCount = static_cast<int>(SpringMessage::MayBuckle) + 1;

static QString german(int message)
{
    return QString::fromUtf8(springMessageText(static_cast<SpringMessage>(message)).mGerman.data());
}

static QString code(int message)
{
    return QString::fromUtf8(springMessageText(static_cast<SpringMessage>(message)).mCode.data());
}

static QStringList placeholders(const QString &text)
{
    QStringList found;
    auto matches = QRegularExpression("%[1-9]").globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    found.sort();
    return found;
}

void tst_springMessages::init()
{
    mSpring = load();
    TarvexModule::Setup = &mSetup;
}

void tst_springMessages::cleanup()
{
    mSetup = {};
    TarvexModule::Setup = nullptr;
    setZelLanguage(ZelLanguage::German);
}

// Lists by the number of their entry, optional variables with their check box.
void tst_springMessages::set(const QString &name, double value) const
{
    const ZelUIVar &found = variable(meta(), name);
    if (found.storage() == ZelVarStorage::Integer)
        meta().setInteger(found, 0, 0, static_cast<int64_t>(value), ZelOrigin::Load);
    else
        meta().setReal(found, 0, 0, value, ZelOrigin::Load);
    meta().setOptionChecked(found, 0, true, ZelOrigin::Load);
}

ZelCalcMessage tst_springMessages::messageOf(const ZelCalcResult &result, const QString &code) const
{
    for (const ZelCalcMessage &message : result.mMessages) {
        if (QString::fromStdString(message.mCode) == code)
            return message;
    }
    return {};
}

void tst_springMessages::everyMessageHasGermanAndEnglish_data()
{
    QTest::addColumn<QString>("german");
    for (int message = 0; message < messageCount; ++message)
        QTest::newRow(qPrintable(code(message))) << german(message);
}

void tst_springMessages::everyMessageHasGermanAndEnglish()
{
    QFETCH(QString, german);
    ZelFaultList faults;
    const ZelTextTable texts = ZelTextTable::fromText(
        fileContent(SPRING_DIR "/spring.tsv").toStdString(), "spring.tsv", faults);
    QVERIFY(faults.empty());
    const zelWString key = german.toStdWString();
    QVERIFY(!german.isEmpty());
    QVERIFY(texts.isTranslated(key, ZelLanguage::German));
    QVERIFY(texts.isTranslated(key, ZelLanguage::English));
    const QString english = toText(texts.text(key, {}, ZelLanguage::English));
    QVERIFY(english != german);
    QCOMPARE(placeholders(english), placeholders(german));
}

void tst_springMessages::codesAreUnique()
{
    QStringList all;
    for (int message = 0; message < messageCount; ++message)
        all << code(message);
    QCOMPARE(all.removeDuplicates(), 0);
    QVERIFY(!all.contains(QString()));
}

static QVector<Row> messageRows()
{
    QVector<Row> rows;
    const auto row = [&rows](const char *name, const char *example, const Values &changes,
                             const char *code, const char *text, const QStringList &variables) {
        rows.append({name, example, changes, code, QString::fromUtf8(text), variables});
    };
    const double infinity = std::numeric_limits<double>::infinity();
    row("infinite", "S1", {{"L0", infinity}}, "notFinite", "L_0 ist keine endliche Zahl.", {"L0"});
    row("d", "S1", {{"d", 0}}, "notPositive", "d muss größer als 0 sein.", {"d"});
    row("R_m", "S1", {{"Rm", 0}}, "notPositive", "R_m muss größer als 0 sein.", {"Rm"});
    row("n_t", "S1", {{"nt", 0}}, "notPositive", "n_t muss größer als 0 sein.", {"nt"});
    row("heat", "S2", {{"T", 5000}}, "notPositive", "G muss größer als 0 sein.", {"G", "T"});
    row("no stress", "S1", {{"coiling", 2}}, "permissibleStressMissing",
        "Für warmgeformte Federn ist die zulässige Schubspannung τ_zul einzugeben.", {"tau_zul"});
    row("D", "S1", {{"D", 6.5}}, "coilTooSmall",
        "Der mittlere Windungsdurchmesser D = 6,5 mm muss größer sein als der Drahtdurchmesser "
        "d = 7 mm.",
        {"D", "d"});
    row("d_max", "S1", {{"dmax", 6.975}}, "largestWireTooSmall",
        "Der größte Drahtdurchmesser d_max = 6,975 mm darf nicht kleiner sein als der "
        "Drahtdurchmesser d = 7 mm.",
        {"dmax", "d"});
    row("n_t and n", "S1", {{"nt", 7.5}}, "totalCoilsTooFew",
        "Die Gesamtzahl der Windungen n_t = 7,5 muss größer sein als die Zahl der federnden "
        "Windungen n = 8.",
        {"nt", "n"});
    row("grade", "S2", {{"d", 0.25}}, "gradeNotAvailable",
        "Draht der Sorte SH gibt es von 0,3 mm bis 20 mm, nicht mit dem Durchmesser d = 0,25 mm.",
        {"grade", "d"});
    row("L_0", "S1", {{"L0", 65}}, "freeLengthTooSmall",
        "Die Länge der unbelasteten Feder L_0 = 65 mm muss größer sein als die Blocklänge "
        "L_c = 70 mm.",
        {"L0"});
    const char *order =
        "Die Arbeitspunkte liegen falsch zueinander: Es muss L_0 ≥ L_1 ≥ L_2 und 0 ≤ F_1 ≤ F_2 "
        "sein.";
    row("lengths", "S2", {{"L1", 45}}, "rangeOutOfOrder", order, {"L1", "L2"});
    row("forces", "S1", {{"F1", 1300}}, "rangeOutOfOrder", order, {"F1", "F2"});
    row("length below solid", "S2", {{"L2", 20}}, "beyondSolidLength",
        "Die Feder lässt sich nicht auf L_2 = 20 mm zusammendrücken: Ihre Blocklänge ist "
        "L_c = 23,75 mm.",
        {"L2"});
    // 2000 N / 41,203 N/mm
    row("force above solid", "S1", {{"F2", 2000}}, "beyondSolidLength",
        "Die Feder lässt sich nicht auf L_2 = 61,46 mm zusammendrücken: Ihre Blocklänge ist "
        "L_c = 70 mm.",
        {"F2"});
    row("tiny", "S1", {{"d", 1e-150}, {"D", 1e-149}}, "outOfNumberRange",
        "Mit diesen Maßen wird ein Ergebnis zu groß oder zu klein.", {"d", "D", "n", "L0"});
    row("touching", "S2", {{"D", 21}, {"L2", 28}}, "coilsMayTouch",
        "Die Windungen können sich im Betrieb berühren: L_2 = 28 mm ist kürzer als die kleinste "
        "nutzbare Länge L_n = 29,539 mm.",
        {"L2"});
    row("index", "S2", {{"d", 5.5}, {"L2", 61.5}}, "springIndexUnusual",
        "Das Wickelverhältnis w = 3,636 ist ungewöhnlich; üblich ist 4 bis 20.", {"D", "d"});
    row("few coils", "S2", {{"n", 1.5}}, "fewActiveCoils",
        "Die Feder hat nur n = 1,5 federnde Windungen; üblich sind mindestens 2.", {"n"});
    row("wire", "S1", {{"d", 21}, {"D", 150}, {"L0", 400}}, "wireDiameterUnusual",
        "Der Drahtdurchmesser d = 21 mm ist ungewöhnlich; üblich ist für kaltgeformte Federn bis "
        "20 mm, für warmgeformte 8 mm bis 100 mm.",
        {"d"});
    row("wide", "S1", {{"d", 18}, {"D", 210}, {"L0", 400}}, "coilDiameterLarge",
        "Der mittlere Windungsdurchmesser D = 210 mm ist ungewöhnlich groß; kaltgeformte Federn "
        "haben höchstens 200 mm.",
        {"D"});
    row("long", "S1", {{"L0", 631}}, "freeLengthLarge",
        "Die Länge der unbelasteten Feder L_0 = 631 mm ist ungewöhnlich groß; kaltgeformte Federn "
        "haben höchstens 630 mm.",
        {"L0"});
    row("seating", "S1", {{"nu", 2.5}}, "seatingUnusual",
        "Der Lagerungsbeiwert ν = 2,5 liegt nicht zwischen 0,5 und 2.", {"nu"});
    row("hot", "S2", {{"T", 130.5}}, "temperatureUnusual",
        "Die Betriebstemperatur T = 130,5 °C liegt nicht zwischen -40 °C und 120 °C.", {"T"});
    row("solid stress", "S1", {{"Rm", 900}}, "solidStressTooHigh",
        "Die Feder darf nicht bis zur Blocklänge zusammengedrückt werden: Die Schubspannung "
        "τ_c = 513,9 N/mm² ist größer als die zulässige τ_zul = 504 N/mm².",
        {"L0"});
    row("second stress", "S1", {{"Rm", 600}}, "secondStressTooHigh",
        "Die Schubspannung im zweiten Arbeitspunkt τ_2 = 389,8 N/mm² ist größer als die zulässige "
        "τ_zul = 336 N/mm².",
        {"F2"});
    row("buckling", "S2", {}, "mayBuckle",
        "Die Feder kann ausknicken (s_K/s_2 = 0,783) und ist durch einen Dorn oder eine Hülse zu "
        "führen.",
        {"L0", "L2"});
    return rows;
}

void tst_springMessages::messageOfASpring_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<Values>("changes");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("variables");
    for (const Row &row : messageRows())
        QTest::newRow(row.mName) << row.mExample << row.mChanges << row.mCode << row.mText
                                 << row.mVariables;
}

void tst_springMessages::messageOfASpring()
{
    QFETCH(QString, example);
    QFETCH(Values, changes);
    QFETCH(QString, code);
    readExample(meta(), example);
    for (const auto &[name, value] : changes)
        set(name, value);
    const ZelCalcResult result = mSpring->mModule->run(0);
    const ZelCalcMessage message = messageOf(result, code);
    QVERIFY2(!message.mCode.empty(), qPrintable(codes(result).join(' ')));
    QTEST(toText(message.text()), "text");
    QStringList variables;
    for (const zelWString &name : message.mVariables)
        variables << toText(name);
    QTEST(variables, "variables");
    const bool isError = message.mSeverity == ZelMessageSeverity::Error;
    QCOMPARE(result.mSucceeded, !isError);
}

void tst_springMessages::everyMessageIsTried()
{
    QStringList tried;
    for (const Row &row : messageRows())
        tried << row.mCode;
    for (int message = 0; message < messageCount; ++message)
        QVERIFY2(tried.contains(code(message)), qPrintable(code(message)));
}

void tst_springMessages::aMessageColoursItsFields()
{
    readExample(meta(), "S2");
    mSpring->mModule->run(0);
    QCOMPARE(meta().messageState(variable(meta(), "L2"), 0), 2);
    QCOMPARE(meta().messageState(variable(meta(), "L1"), 0), 0);
    set("D", 2);
    mSpring->mModule->run(0);
    QCOMPARE(meta().messageState(variable(meta(), "D"), 0), 1);
    QCOMPARE(meta().messageState(variable(meta(), "d"), 0), 1);
    QCOMPARE(meta().messageState(variable(meta(), "L2"), 0), 0);
}

void tst_springMessages::aSpringThatIsRightAgainColoursNothing()
{
    readExample(meta(), "S1");
    set("D", 2);
    mSpring->mModule->run(0);
    set("D", 42);
    mSpring->mModule->run(0);
    for (const auto &candidate : meta().variables())
        QCOMPARE(meta().messageState(*candidate, 0), 0);
}

void tst_springMessages::textFollowsLanguageAndUnitSystem()
{
    readExample(meta(), "S2");
    set("D", 21);
    set("L2", 28);
    const ZelCalcMessage message = messageOf(mSpring->mModule->run(0), "coilsMayTouch");
    QVERIFY(!message.mCode.empty());
    setZelLanguage(ZelLanguage::English);
    QCOMPARE(toText(message.text()),
             QStringLiteral("The coils may touch in use: L_2 = 28 mm is shorter than the smallest "
                            "usable length L_n = 29.539 mm."));
    mSetup.mUSCustomaryUnits = 1;
    QCOMPARE(toText(message.text()),
             QStringLiteral("The coils may touch in use: L_2 = 1.102 in is shorter than the "
                            "smallest usable length L_n = 1.163 in."));
}

QTEST_APPLESS_MAIN(tst_springMessages)
#include "tst_springMessages.moc"
