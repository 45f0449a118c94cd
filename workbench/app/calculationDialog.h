#pragma once

#include "zelModuleRegistry.h"
#include "zelQtParentDialog.h"

class MaskView;
class MessagePanel;
class ZelQtDialogButtonBox;

/// The mask of a module in a dialog that is accepted only on calculated values: a change greys out
/// "Übernehmen" until the next calculation. It works on a copy of the module's data.
class CalculationDialog : public ZelQtParentDialog
{
    Q_OBJECT

public:
    CalculationDialog(const std::string &description, const ZelModuleRegistry &registry,
                      QWidget *parent = nullptr);
    ~CalculationDialog() override;

    /// Values in the text form.
    void setValues(const std::string &values);
    std::string values() const;
    ZelQtDialogButtonBox *buttonBox() const { return mButtonBox; }
    MaskView *mask() const { return mMask; }

    void updateUnitSystem(bool keepDefault) override;

public Q_SLOTS:
    void calculate() override;

protected:
    void retranslateStrings() override;

private:
    std::unique_ptr<ZelLoadedModule> mModule;
    MaskView *mMask;
    MessagePanel *mMessages;
    ZelQtDialogButtonBox *mButtonBox;
    ZelCalcResult mResult;
};
