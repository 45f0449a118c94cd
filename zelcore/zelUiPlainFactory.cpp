#include "zelUiPlainFactory.h"

#include "zelUIBoard.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIEditButton.h"
#include "zelUIExternalItem.h"
#include "zelUIFlag.h"
#include "zelUIFormulaLabel.h"
#include "zelUIGroup.h"
#include "zelUIImageElement.h"
#include "zelUINotepad.h"
#include "zelUIOutputElement.h"
#include "zelUIPushButton.h"
#include "zelUISpacer.h"
#include "zelUISpinBox.h"
#include "zelUIStdButtonBox.h"
#include "zelUITabContainer.h"
#include "zelUITabPage.h"
#include "zelUITable.h"
#include "zelUITextEdit.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"

ZelUiPlainFactory::ZelUiPlainFactory() = default;
ZelUiPlainFactory::~ZelUiPlainFactory() = default;

template <class Object> Object *ZelUiPlainFactory::keep(std::unique_ptr<Object> object)
{
    Object *plain = object.get();
    mObjects.push_back(std::move(object));
    return plain;
}

ZelUITabPage *ZelUiPlainFactory::makeTabPage()
{
    return keep(std::make_unique<ZelUITabPage>());
}

ZelUITabContainer *ZelUiPlainFactory::makeTabContainer()
{
    return keep(std::make_unique<ZelUITabContainer>());
}

ZelUIBoard *ZelUiPlainFactory::makeBoard()
{
    return keep(std::make_unique<ZelUIBoard>());
}

ZelUIGroup *ZelUiPlainFactory::makeGroup()
{
    return keep(std::make_unique<ZelUIGroup>());
}

ZelUIColumn *ZelUiPlainFactory::makeColumn()
{
    return keep(std::make_unique<ZelUIColumn>());
}

ZelUIExternalItem *ZelUiPlainFactory::makeExternalItem(const zelWString &)
{
    return keep(std::make_unique<ZelUIExternalItem>());
}

ZelUIDialogButtonBox *ZelUiPlainFactory::makeDialogButtonBox()
{
    return keep(std::make_unique<ZelUIDialogButtonBox>());
}

ZelUITextLabel *ZelUiPlainFactory::makeTextLabel(ZelUIAlignment alignment)
{
    return keep(std::make_unique<ZelUITextLabel>(alignment));
}

ZelUIFormulaLabel *ZelUiPlainFactory::makeFormulaLabel()
{
    return keep(std::make_unique<ZelUIFormulaLabel>());
}

ZelUIUnitLabel *ZelUiPlainFactory::makeUnitLabel()
{
    return keep(std::make_unique<ZelUIUnitLabel>());
}

ZelUIValueEdit *ZelUiPlainFactory::makeValueEdit()
{
    return keep(std::make_unique<ZelUIValueEdit>());
}

ZelUISpinBox *ZelUiPlainFactory::makeSpinBox()
{
    return keep(std::make_unique<ZelUISpinBox>());
}

ZelUITextEdit *ZelUiPlainFactory::makeTextEdit()
{
    return keep(std::make_unique<ZelUITextEdit>());
}

ZelUINotepad *ZelUiPlainFactory::makeNotepad()
{
    return keep(std::make_unique<ZelUINotepad>());
}

ZelUIFlag *ZelUiPlainFactory::makeFlag()
{
    return keep(std::make_unique<ZelUIFlag>());
}

ZelUIEditButton *ZelUiPlainFactory::makeEditButton(ZelUIEditButtonType type)
{
    return keep(std::make_unique<ZelUIEditButton>(type));
}

ZelUISpacer *ZelUiPlainFactory::makeSpacer()
{
    return keep(std::make_unique<ZelUISpacer>());
}

ZelUIStdButtonBox *ZelUiPlainFactory::makeStdButtonBox()
{
    return keep(std::make_unique<ZelUIStdButtonBox>());
}

ZelUIPushButton *ZelUiPlainFactory::makeIconButton(ZelUIPushButtonType type)
{
    return keep(std::make_unique<ZelUIPushButton>(type));
}

ZelUIPushButton *ZelUiPlainFactory::makePushButton()
{
    return keep(std::make_unique<ZelUIPushButton>());
}

ZelUIComboBox *ZelUiPlainFactory::makeComboBox()
{
    return keep(std::make_unique<ZelUIComboBox>());
}

ZelUITable *ZelUiPlainFactory::makeTable()
{
    return keep(std::make_unique<ZelUITable>());
}

ZelUIImageElement *ZelUiPlainFactory::makeImage()
{
    return keep(std::make_unique<ZelUIImageElement>());
}

ZelUIOutputElement *ZelUiPlainFactory::makeOutput()
{
    return keep(std::make_unique<ZelUIOutputElement>());
}
