#pragma once

#include "zelModuleRegistry.h"
#include "zelQtParentWidget.h"

class MaskView;
class MessagePanel;

/// Host of one open module: its mask and the messages of its last calculation.
class ModulePage : public ZelQtParentWidget
{
    Q_OBJECT

public:
    /// Faults found while building the mask are appended. `registry` outlives the page.
    ModulePage(std::unique_ptr<ZelLoadedModule> module, const ZelModuleRegistry &registry,
               ZelFaultList &faults, QWidget *parent = nullptr);
    ~ModulePage() override;

    QString title() const;
    /// The files with example values, by full path.
    QStringList examples() const;
    /// Results belong to the values that show.
    bool isConsistent() const { return mConsistent; }
    bool wasCalculated() const { return mCalculated; }
    const ZelCalcResult &lastResult() const { return mResult; }
    MaskView *mask() const { return mMask; }

    /// Reads values; faults are told in a message box and change nothing but their own line.
    bool loadValues(const QString &file);
    bool saveValues(const QString &file);
    /// Asks about changes that were not saved; false when the user wants to stay.
    bool mayClose();

    void updateUnitSystem(bool keepDefault) override;

public Q_SLOTS:
    void calculate();
    /// Tries values out in a dialog and takes them over when it was accepted.
    void calculateInDialog();

Q_SIGNALS:
    void consistencyChanged();

protected:
    void retranslateStrings() override;

private:
    void setConsistent(bool consistent);
    void changed();

    std::unique_ptr<ZelLoadedModule> mModule;
    const ZelModuleRegistry &mRegistry;
    MaskView *mMask;
    MessagePanel *mMessages;
    ZelCalcResult mResult;
    bool mConsistent = false;
    bool mCalculated = false;
    bool mModified = false;
};
