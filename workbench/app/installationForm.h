#pragma once

#include "zelQtUiWidget.h"

class Meta;
class ZelQtCalcVarInput;
class ZelQtDoubleCalcVarInput;
class ZelQtSingleCalcVarInput;
class ZelQtTripleCalcVarInput;
class ZelUIVar;

/// How a compression spring fits into its surroundings: clearance to the sleeve round it, weight
/// along an inclined axis, the lengths it is installed with and the room it stands in. Written by
/// hand; it stands in the mask of the spring as one external item and works on the module's values.
class InstallationForm : public ZelQtUiWidget
{
    Q_OBJECT

public:
    using ZelQtUiWidget::getData;
    using ZelQtUiWidget::setData;

    /// `meta` belongs to the module and outlives the form.
    InstallationForm(Meta &meta, QWidget *parent);
    ~InstallationForm() override;

public Q_SLOTS:
    void setData() override;
    void getData() override;

protected:
    void retranslateStrings() override;
    void resizeLayout() override;

private:
    void makeLines();
    QList<ZelQtCalcVarInput *> lines() const;
    void showFit();
    double value(const char *name, int component = 0) const;
    bool isKnown(const char *name) const;
    void store(const char *name, int component, double value) const;
    const ZelUIVar *variable(const char *name) const;

    Meta &mMeta;
    ZelQtSingleCalcVarInput *mSleeve;
    ZelQtSingleCalcVarInput *mClearance;
    ZelQtSingleCalcVarInput *mTilt;
    ZelQtSingleCalcVarInput *mWeight;
    ZelQtDoubleCalcVarInput *mLengths;
    ZelQtTripleCalcVarInput *mRoom;
};
