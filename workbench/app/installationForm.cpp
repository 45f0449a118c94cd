#include "installationForm.h"

#include "meta.h"
#include "zelQtDoubleCalcVarInput.h"
#include "zelQtTripleCalcVarInput.h"

#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr double standardGravity = 9.80665; // m/s², exact by definition
constexpr int noMessage = 0;
constexpr int errorMessage = 1;

// Default units of the variables: mm, degrees, g.
constexpr double gramsPerKilogram = 1000;

} // namespace

InstallationForm::InstallationForm(Meta &meta, QWidget *parent)
    : ZelQtUiWidget(parent)
    , mMeta(meta)
    , mSleeve(new ZelQtSingleCalcVarInput(this))
    , mClearance(new ZelQtSingleCalcVarInput(this))
    , mTilt(new ZelQtSingleCalcVarInput(this))
    , mWeight(new ZelQtSingleCalcVarInput(this))
    , mLengths(new ZelQtDoubleCalcVarInput(this))
    , mRoom(new ZelQtTripleCalcVarInput(this))
{
    makeLines();
    InstallationForm::retranslateStrings();
}

InstallationForm::~InstallationForm() = default;

void InstallationForm::makeLines()
{
    // The lines keep their natural width at the left.
    auto *row = new QHBoxLayout(this);
    auto *layout = new QVBoxLayout;
    row->addLayout(layout);
    row->addStretch();
    const auto add = [&](ZelQtSingleCalcVarInput *line, const char *name, const char *unit,
                         const char *formula, int decimals) {
        line->setObjectName(QString::fromLatin1(name));
        line->setDefaultUnit(QString::fromUtf8(unit));
        line->setFormula(QString::fromUtf8(formula));
        line->setDefaultDecimals(decimals);
        layout->addWidget(line);
        connect(line, &ZelQtCalcVarInput::inputValueConfirmed, this, [this] {
            getData();
            showFit();
        });
    };
    add(mSleeve, "sleeve", "mm", "D<sub>H</sub>", 3);
    add(mClearance, "clearance", "mm", "s<sub>H</sub>", 3);
    add(mTilt, "tilt", "°", "φ", 2);
    add(mWeight, "weight", "N", "F<sub>G</sub>", 4);
    add(mLengths, "lengths", "mm", "L<sub>1</sub>, L<sub>2</sub>", 3);
    add(mRoom, "room", "mm", "l × b × h", 2);
    layout->addStretch();

    mSleeve->setBottom(0);
    mTilt->setRange(0, 180);
    mClearance->setEditable(false);
    mWeight->setEditable(false);
}

void InstallationForm::retranslateStrings()
{
    mSleeve->setPrompt(tr("Hülsendurchmesser"));
    mClearance->setPrompt(tr("Spiel zur Hülse bei Blocklänge"));
    mTilt->setPrompt(tr("Neigung der Federachse zur Senkrechten"));
    mWeight->setPrompt(tr("Gewichtskraft längs der Federachse"));
    mLengths->setPrompt(tr("Einbaulängen"));
    mRoom->setPrompt(tr("Bauraum (Länge, Breite, Höhe)"));
    ZelQtUiWidget::retranslateStrings();
    // A form in a mask passes language changes by, so it aligns its lines itself.
    resizeLayout();
}

QList<ZelQtCalcVarInput *> InstallationForm::lines() const
{
    return {mSleeve, mClearance, mTilt, mWeight, mLengths, mRoom};
}

void InstallationForm::resizeLayout()
{
    ZelQtCalcVarInput::checkVBoxSize(lines(), true);
}

const ZelUIVar *InstallationForm::variable(const char *name) const
{
    return mMeta.variable(zelWString::fromUtf8(name));
}

double InstallationForm::value(const char *name, int component) const
{
    const ZelUIVar *known = variable(name);
    return known && mMeta.isSet(*known, 0, component) ? mMeta.real(*known, 0, component) : 0;
}

bool InstallationForm::isKnown(const char *name) const
{
    const ZelUIVar *known = variable(name);
    return known && mMeta.isSet(*known, 0);
}

void InstallationForm::store(const char *name, int component, double value) const
{
    const ZelUIVar *known = variable(name);
    if (!known || mMeta.real(*known, 0, component) == value)
        return;
    mMeta.setReal(*known, 0, component, value, ZelOrigin::User);
    mMeta.noteTyped(*known, 0);
}

void InstallationForm::setData()
{
    const QString defaultUnit;
    mSleeve->setWert(value("DH"), defaultUnit);
    mTilt->setWert(value("phi"), defaultUnit);
    mLengths->setWert(value("L1"), value("L2"), defaultUnit);
    mRoom->setWert(value("room", 0), value("room", 1), value("room", 2), defaultUnit);
    showFit();
}

void InstallationForm::getData()
{
    const QString defaultUnit;
    double first = 0;
    double second = 0;
    double third = 0;
    mSleeve->getWert(first, defaultUnit);
    store("DH", 0, first);
    mTilt->getWert(first, defaultUnit);
    store("phi", 0, first);
    mLengths->getWert(first, second, defaultUnit);
    store("L1", 0, first);
    store("L2", 0, second);
    mRoom->getWert(first, second, third, defaultUnit);
    store("room", 0, first);
    store("room", 1, second);
    store("room", 2, third);
}

// What follows from the values: empty while the spring isn't calculated, red where it doesn't fit.
void InstallationForm::showFit()
{
    const QString defaultUnit;
    const bool calculated = isKnown("De");
    mClearance->setActive(calculated && value("DH") > 0);
    mWeight->setActive(calculated);
    const double outside = value("De") + value("DDe");
    const double clearance = value("DH") - outside;
    mClearance->setWert(clearance, defaultUnit);
    mClearance->setMessageState(clearance < 0 ? errorMessage : noMessage);

    const double tilt = value("phi") * M_PI / 180;
    mWeight->setWert(value("mass") / gramsPerKilogram * standardGravity * std::cos(tilt),
                     defaultUnit);

    // A side that nobody entered is no fault.
    const auto state = [calculated](double side, double needed) {
        return calculated && side > 0 && side < needed ? errorMessage : noMessage;
    };
    const double narrowSide = qMin(value("room", 1), value("room", 2));
    mRoom->setMessageState(state(value("room", 0), value("L1")), noMessage,
                           state(narrowSide, outside));
}
