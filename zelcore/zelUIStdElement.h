#pragma once

#include "zelDimensions.h"
#include "zelUIElement.h"

class ZelUIEditButton;
class ZelUIFormulaLabel;
class ZelUIInput;
class ZelUISpacer;
class ZelUIStdButtonBox;
class ZelUITextLabel;
class ZelUIUnitLabel;
class ZelUIValueEdit;
class ZelUiBuild;

/// The ordinary line: label, symbol, one or more inputs, edit buttons, unit, icon buttons. Every
/// part can be missing. Parts are not owned.
class ZELCORE_EXPORT ZelUIStdElement : public ZelUIElement
{
public:
    ZelUIStdElement();
    ~ZelUIStdElement() override;

    using ZelUIElement::setup;

    /// One variable with all its components in a line. The attributes are those of the <var> node.
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    /// Several <var> nodes in a <line>.
    void modelSetupLine(const ZelDomNode *line);

    void modelMakeParts() override;
    void updateState(Meta *meta, int64_t id) override;
    /// Before the parts are filled, the unit label takes the unit of the line's first number.
    void setData(Meta *meta, int64_t id) override;
    void updateUnitSystem(bool keepDefault) override;
    void resetUnits(bool keepDefault) override;

    /// Makes parts put in by hand known to the walks; the build calls it itself.
    void modelAdoptParts();
    /// Shows all numbers of the line in `unit`, sets their limits again and remembers the unit in
    /// the Meta of the last setData. The unit label calls it after it took the unit itself.
    void modelSetUnit(ZelDimensions::Unit unit);

    ZelUITextLabel *mLabel = nullptr;
    ZelUIFormulaLabel *mFormulaLabel = nullptr;
    std::vector<ZelUIInput *> mInputs;
    std::vector<ZelUIEditButton *> mEditButtons;
    ZelUISpacer *mSpacer = nullptr;
    ZelUIUnitLabel *mUnitLabel = nullptr;
    ZelUIStdButtonBox *mIconBox = nullptr;

protected:
    void modelForget(ZelUIObject *child) override;

private:
    struct Announced;
    struct Entry;

    void announce(ZelUIVar *variable, const AttrMap &attributes, const ZelDomNode *node);
    bool makeInputs(ZelUiBuild &build, Announced &announced);
    void makeEditButtons(ZelUiBuild &build, const Announced &announced);
    void makeLabels(ZelUiBuild &build, const Announced &announced);
    void makeUnitLabel(ZelUiBuild &build, const Announced &announced);
    void makeIconBox(ZelUiBuild &build, const Announced &announced);
    bool showsAnInput(const Meta &meta, int64_t id) const;
    void syncUnit(const Meta &meta, int64_t id);

    std::unique_ptr<Announced> mAnnounced;
    std::vector<ZelUIValueEdit *> mNumbers;
    Meta *mMeta = nullptr;
    int64_t mId = 0;
    bool mHidesWithInputs = false;
};
