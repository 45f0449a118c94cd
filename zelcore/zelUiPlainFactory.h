#pragma once

#include "zelUiFactory.h"

#include <memory>
#include <vector>

class ZelUIObject;

/// Makes plain model objects of every kind and owns them all, so that a console program builds,
/// fills and reads masks without widgets. A mask must not outlive its factory.
class ZELCORE_EXPORT ZelUiPlainFactory : public ZelUiFactory
{
public:
    ZelUiPlainFactory();
    ~ZelUiPlainFactory() override;

    ZelUITabPage *makeTabPage() override;
    ZelUITabContainer *makeTabContainer() override;
    ZelUIBoard *makeBoard() override;
    ZelUIGroup *makeGroup() override;
    ZelUIColumn *makeColumn() override;
    ZelUIExternalItem *makeExternalItem(const zelWString &className) override;
    ZelUIDialogButtonBox *makeDialogButtonBox() override;
    ZelUITextLabel *makeTextLabel(ZelUIAlignment alignment) override;
    ZelUIFormulaLabel *makeFormulaLabel() override;
    ZelUIUnitLabel *makeUnitLabel() override;
    ZelUIValueEdit *makeValueEdit() override;
    ZelUISpinBox *makeSpinBox() override;
    ZelUITextEdit *makeTextEdit() override;
    ZelUINotepad *makeNotepad() override;
    ZelUIFlag *makeFlag() override;
    ZelUIEditButton *makeEditButton(ZelUIEditButtonType type) override;
    ZelUISpacer *makeSpacer() override;
    ZelUIStdButtonBox *makeStdButtonBox() override;
    ZelUIPushButton *makeIconButton(ZelUIPushButtonType type) override;
    ZelUIPushButton *makePushButton() override;
    ZelUIComboBox *makeComboBox() override;
    ZelUITable *makeTable() override;
    ZelUIImageElement *makeImage() override;
    ZelUIOutputElement *makeOutput() override;

private:
    template <class Object> Object *keep(std::unique_ptr<Object> object);

    std::vector<std::unique_ptr<ZelUIObject>> mObjects;
};
