#pragma once

#include "tarvexModule.h"

#include <QObject>

/// The unit system of the whole program. It owns the settings that the model looks at.
class AppUnitSystem : public QObject
{
    Q_OBJECT

public:
    /// Metric, and the settings of the model from now on.
    explicit AppUnitSystem(QObject *parent = nullptr);
    ~AppUnitSystem() override;

    bool isUsCustomary() const { return mSetup.mUSCustomaryUnits != 0; }
    void setUsCustomary(bool us);

Q_SIGNALS:
    /// Only when it became another one.
    void changed();

private:
    TarvexSetup mSetup;
};
