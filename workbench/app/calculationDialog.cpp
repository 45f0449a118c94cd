#include "calculationDialog.h"

#include "maskView.h"
#include "messagePanel.h"
#include "zelQtDialogButtonBox.h"
#include "zelTextForm.h"

#include <QScreen>
#include <QVBoxLayout>

namespace {

// The faults of the file were told when the module was opened.
std::unique_ptr<ZelLoadedModule> load(const std::string &description,
                                      const ZelModuleRegistry &registry)
{
    ZelFaultList faults;
    return zelLoadModule(description, registry, faults);
}

MaskView *makeMask(ZelLoadedModule &module, QWidget *parent)
{
    ZelFaultList faults;
    return new MaskView(module, faults, parent);
}

} // namespace

CalculationDialog::CalculationDialog(const std::string &description,
                                     const ZelModuleRegistry &registry, QWidget *parent)
    : ZelQtParentDialog(parent)
    , mModule(load(description, registry))
    , mMask(makeMask(*mModule, this))
    , mMessages(new MessagePanel(this))
    , mButtonBox(new ZelQtDialogButtonBox(ZelQtDialogButtonBox::CALC_OK_CANCEL, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mMask, 1);
    layout->addWidget(mMessages);
    layout->addWidget(mButtonBox);
    mMessages->hide();
    connect(mMask, &MaskView::valueChanged, this, &ZelQtParentDialog::emitValueChanged);
    connect(mMask, &MaskView::valueConfirmed, this, &ZelQtParentDialog::emitValueConfirmed);
    connect(mMessages, &MessagePanel::variableRequested, mMask, &MaskView::focusVariable);
    setupDialogButtonBox();
    resize(sizeHint().boundedTo(screen()->availableSize() * 9 / 10));
}

CalculationDialog::~CalculationDialog()
{
    // The mask reads the module, which goes first otherwise.
    delete mMask;
}

void CalculationDialog::setValues(const std::string &values)
{
    ZelFaultList faults;
    zelReadValues(mModule->meta(), values, mModule->mDescription.fileName(), faults);
    mMask->refresh();
}

std::string CalculationDialog::values() const
{
    return zelWriteValues(mModule->meta(), false);
}

void CalculationDialog::calculate()
{
    mResult = mMask->calculate();
    mMessages->showMessages(mResult.mMessages);
    if (mResult.mSucceeded)
        mButtonBox->permitAccept();
}

void CalculationDialog::updateUnitSystem(bool keepDefault)
{
    mMask->updateUnitSystem(keepDefault);
    ZelQtParentDialog::updateUnitSystem(keepDefault);
}

void CalculationDialog::retranslateStrings()
{
    ZelQtParentDialog::retranslateStrings();
    mMask->retranslate();
    mMessages->showMessages(mResult.mMessages);
}
