#include "zelUiFactory.h"

ZelUiFactory::ZelUiFactory() = default;
ZelUiFactory::~ZelUiFactory() = default;

ZelUITabPage *ZelUiFactory::makeTabPage()
{
    return nullptr;
}

ZelUITabContainer *ZelUiFactory::makeTabContainer()
{
    return nullptr;
}

ZelUIBoard *ZelUiFactory::makeBoard()
{
    return nullptr;
}

ZelUIGroup *ZelUiFactory::makeGroup()
{
    return nullptr;
}

ZelUIColumn *ZelUiFactory::makeColumn()
{
    return nullptr;
}

ZelUIExternalItem *ZelUiFactory::makeExternalItem(const zelWString &)
{
    return nullptr;
}

ZelUIDialogButtonBox *ZelUiFactory::makeDialogButtonBox()
{
    return nullptr;
}

ZelUITextLabel *ZelUiFactory::makeTextLabel(ZelUIAlignment)
{
    return nullptr;
}

ZelUIFormulaLabel *ZelUiFactory::makeFormulaLabel()
{
    return nullptr;
}

ZelUIUnitLabel *ZelUiFactory::makeUnitLabel()
{
    return nullptr;
}

ZelUIValueEdit *ZelUiFactory::makeValueEdit()
{
    return nullptr;
}

ZelUISpinBox *ZelUiFactory::makeSpinBox()
{
    return nullptr;
}

ZelUITextEdit *ZelUiFactory::makeTextEdit()
{
    return nullptr;
}

ZelUINotepad *ZelUiFactory::makeNotepad()
{
    return nullptr;
}

ZelUIFlag *ZelUiFactory::makeFlag()
{
    return nullptr;
}

ZelUIEditButton *ZelUiFactory::makeEditButton(ZelUIEditButtonType)
{
    return nullptr;
}

ZelUISpacer *ZelUiFactory::makeSpacer()
{
    return nullptr;
}

ZelUIStdButtonBox *ZelUiFactory::makeStdButtonBox()
{
    return nullptr;
}

ZelUIPushButton *ZelUiFactory::makeIconButton(ZelUIPushButtonType)
{
    return nullptr;
}

ZelUIPushButton *ZelUiFactory::makePushButton()
{
    return nullptr;
}

ZelUIComboBox *ZelUiFactory::makeComboBox()
{
    return nullptr;
}

ZelUITable *ZelUiFactory::makeTable()
{
    return nullptr;
}

ZelUIImageElement *ZelUiFactory::makeImage()
{
    return nullptr;
}

ZelUIOutputElement *ZelUiFactory::makeOutput()
{
    return nullptr;
}
