#include "springMessages.h"

#include "springChecks.h"

#include <array>
#include <stdexcept>

using Arguments = ZelCalcRun::Arguments;
using enum SpringMessage;

namespace {

struct Row
{
    SpringMessage mMessage;
    SpringMessageText mText;
};

constexpr std::array rows{
    Row{NotFinite, {"notFinite", "%1 ist keine endliche Zahl."}},
    Row{NotPositive, {"notPositive", "%1 muss größer als 0 sein."}},
    Row{PermissibleStressMissing,
        {"permissibleStressMissing",
         "Für warmgeformte Federn ist die zulässige Schubspannung τ_zul einzugeben."}},
    Row{CoilTooSmall,
        {"coilTooSmall",
         "Der mittlere Windungsdurchmesser D = %1 muss größer sein als der Drahtdurchmesser "
         "d = %2."}},
    Row{LargestWireTooSmall,
        {"largestWireTooSmall",
         "Der größte Drahtdurchmesser d_max = %1 darf nicht kleiner sein als der "
         "Drahtdurchmesser d = %2."}},
    Row{TotalCoilsTooFew,
        {"totalCoilsTooFew",
         "Die Gesamtzahl der Windungen n_t = %1 muss größer sein als die Zahl der federnden "
         "Windungen n = %2."}},
    Row{GradeNotAvailable,
        {"gradeNotAvailable",
         "Draht der Sorte %1 gibt es von %2 bis %3, nicht mit dem Durchmesser d = %4."}},
    Row{FreeLengthTooSmall,
        {"freeLengthTooSmall",
         "Die Länge der unbelasteten Feder L_0 = %1 muss größer sein als die Blocklänge "
         "L_c = %2."}},
    Row{RangeOutOfOrder,
        {"rangeOutOfOrder",
         "Die Arbeitspunkte liegen falsch zueinander: Es muss L_0 ≥ L_1 ≥ L_2 und "
         "0 ≤ F_1 ≤ F_2 sein."}},
    Row{BeyondSolidLength,
        {"beyondSolidLength",
         "Die Feder lässt sich nicht auf L_2 = %1 zusammendrücken: Ihre Blocklänge ist "
         "L_c = %2."}},
    Row{OutOfNumberRange,
        {"outOfNumberRange", "Mit diesen Maßen wird ein Ergebnis zu groß oder zu klein."}},
    Row{CoilsMayTouch,
        {"coilsMayTouch",
         "Die Windungen können sich im Betrieb berühren: L_2 = %1 ist kürzer als die kleinste "
         "nutzbare Länge L_n = %2."}},
    Row{SpringIndexUnusual,
        {"springIndexUnusual",
         "Das Wickelverhältnis w = %1 ist ungewöhnlich; üblich ist %2 bis %3."}},
    Row{FewActiveCoils,
        {"fewActiveCoils",
         "Die Feder hat nur n = %1 federnde Windungen; üblich sind mindestens %2."}},
    Row{WireDiameterUnusual,
        {"wireDiameterUnusual",
         "Der Drahtdurchmesser d = %1 ist ungewöhnlich; üblich ist für kaltgeformte Federn bis "
         "%2, für warmgeformte %3 bis %4."}},
    Row{CoilDiameterLarge,
        {"coilDiameterLarge",
         "Der mittlere Windungsdurchmesser D = %1 ist ungewöhnlich groß; kaltgeformte Federn "
         "haben höchstens %2."}},
    Row{FreeLengthLarge,
        {"freeLengthLarge",
         "Die Länge der unbelasteten Feder L_0 = %1 ist ungewöhnlich groß; kaltgeformte Federn "
         "haben höchstens %2."}},
    Row{SeatingUnusual,
        {"seatingUnusual", "Der Lagerungsbeiwert ν = %1 liegt nicht zwischen %2 und %3."}},
    Row{TemperatureUnusual,
        {"temperatureUnusual", "Die Betriebstemperatur T = %1 liegt nicht zwischen %2 und %3."}},
    Row{SolidStressTooHigh,
        {"solidStressTooHigh",
         "Die Feder darf nicht bis zur Blocklänge zusammengedrückt werden: Die Schubspannung "
         "τ_c = %1 ist größer als die zulässige τ_zul = %2."}},
    Row{SecondStressTooHigh,
        {"secondStressTooHigh",
         "Die Schubspannung im zweiten Arbeitspunkt τ_2 = %1 ist größer als die zulässige "
         "τ_zul = %2."}},
    Row{MayBuckle,
        {"mayBuckle",
         "Die Feder kann ausknicken (s_K/s_2 = %1) und ist durch einen Dorn oder eine Hülse zu "
         "führen."}},
};

// Rows are found by position.
constexpr bool isInOrder()
{
    for (size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<size_t>(rows[i].mMessage) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder() && rows.back().mMessage == MayBuckle);

ZelMessageArgument millimetres(double length)
{
    return {length, "mm"};
}

ZelMessageArgument celsius(double temperature)
{
    return {temperature, "°C", 1};
}

ZelMessageArgument stress(double value)
{
    return {value, "N/mm²", 1};
}

} // namespace

// Symbols read the same in all languages.
static const char *symbol(SpringField field)
{
    switch (field) {
    case SpringField::WireDiameter:
        return "d";
    case SpringField::LargestWireDiameter:
        return "d_max";
    case SpringField::CoilDiameter:
        return "D";
    case SpringField::ActiveCoils:
        return "n";
    case SpringField::TotalCoils:
        return "n_t";
    case SpringField::FreeLength:
        return "L_0";
    case SpringField::Grade: // its values
        return "E, ρ, R_m";
    case SpringField::ShearModulus:
        return "G";
    case SpringField::ElasticModulus:
        return "E";
    case SpringField::Density:
        return "ρ";
    case SpringField::TensileStrength:
        return "R_m";
    case SpringField::Seating:
        return "ν";
    case SpringField::FirstLength:
        return "L_1";
    case SpringField::SecondLength:
        return "L_2";
    case SpringField::FirstForce:
        return "F_1";
    case SpringField::SecondForce:
        return "F_2";
    case SpringField::PermissibleStress:
        return "τ_zul";
    case SpringField::Temperature:
        return "T";
    }
    return "";
}

static Arguments gradeArguments(const SpringInput &input)
{
    const auto &grade = std::get<WireGrade>(input.mMaterial);
    return {grade.mName.c_str(), millimetres(grade.mSmallestDiameter),
            millimetres(grade.mLargestDiameter), millimetres(input.mWireDiameter)};
}

// L_2 of either kind of working range.
static double secondLength(const SpringInput &input)
{
    SpringInput lengths = input;
    changeSpringRange(lengths, SpringRange::Lengths);
    return lengths.mSecondLength;
}

static Arguments wireArguments(const SpringInput &input)
{
    const SpringLimits hot = springLimits(SpringCoiling::Hot);
    return {millimetres(input.mWireDiameter),
            millimetres(springLimits(SpringCoiling::Cold).mLargestWire),
            millimetres(hot.mSmallestWire), millimetres(hot.mLargestWire)};
}

static Arguments errorArguments(const SpringFinding &finding, const SpringInput &input)
{
    switch (finding.mCode) {
    case NotFinite:
    case NotPositive:
        return {symbol(finding.mFields.front())};
    case CoilTooSmall:
        return {millimetres(input.mCoilDiameter), millimetres(input.mWireDiameter)};
    case LargestWireTooSmall:
        return {millimetres(input.mLargestWireDiameter.value_or(0)),
                millimetres(input.mWireDiameter)};
    case TotalCoilsTooFew:
        return {input.mTotalCoils.value_or(0), input.mActiveCoils};
    case GradeNotAvailable:
        return gradeArguments(input);
    case FreeLengthTooSmall:
        return {millimetres(input.mFreeLength), millimetres(springSolidLength(input))};
    case BeyondSolidLength:
        return {millimetres(secondLength(input)), millimetres(springSolidLength(input))};
    default:
        return {};
    }
}

static Arguments warningArguments(SpringMessage message, const SpringInput &input,
                                  const SpringValues &values)
{
    const SpringLimits limits = springLimits(input.mCoiling);
    switch (message) {
    case CoilsMayTouch:
        return {millimetres(values.mSecond.mLength), millimetres(values.mUsable.mLength)};
    case SpringIndexUnusual:
        return {values.mIndex, limits.mSmallestIndex, limits.mLargestIndex};
    case FewActiveCoils:
        return {input.mActiveCoils, limits.mFewestActiveCoils};
    case WireDiameterUnusual:
        return wireArguments(input);
    case CoilDiameterLarge:
        return {millimetres(input.mCoilDiameter), millimetres(SpringLimits::largestCoil)};
    case FreeLengthLarge:
        return {millimetres(input.mFreeLength), millimetres(SpringLimits::largestFreeLength)};
    case SeatingUnusual:
        return {input.mSeating, SpringLimits::smallestSeating, SpringLimits::largestSeating};
    case TemperatureUnusual:
        return {celsius(input.mTemperature), celsius(SpringLimits::lowestTemperature),
                celsius(SpringLimits::highestTemperature)};
    case SolidStressTooHigh:
        return {stress(values.mSolid.mStress), stress(values.mPermissibleStress)};
    case SecondStressTooHigh:
        return {stress(values.mSecond.mStress), stress(values.mPermissibleStress)};
    case MayBuckle:
        return {values.mBucklingRatio.value_or(0)};
    default:
        return {};
    }
}

const SpringMessageText &springMessageText(SpringMessage message)
{
    return rows.at(static_cast<size_t>(message)).mText;
}

Arguments springMessageArguments(const SpringFinding &finding, const SpringInput &input,
                                 const SpringValues *values)
{
    return values ? warningArguments(finding.mCode, input, *values)
                  : errorArguments(finding, input);
}
