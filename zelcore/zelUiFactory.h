#pragma once

#include "zelUITypes.h"
#include "zelcore_export.h"

class ZelUIBoard;
class ZelUIColumn;
class ZelUIComboBox;
class ZelUIDialogButtonBox;
class ZelUIEditButton;
class ZelUIExternalItem;
class ZelUIFlag;
class ZelUIFormulaLabel;
class ZelUIGroup;
class ZelUIImageElement;
class ZelUINotepad;
class ZelUIOutputElement;
class ZelUIPushButton;
class ZelUISpacer;
class ZelUISpinBox;
class ZelUIStdButtonBox;
class ZelUITabContainer;
class ZelUITabPage;
class ZelUITable;
class ZelUITextEdit;
class ZelUITextLabel;
class ZelUIUnitLabel;
class ZelUIValueEdit;

/// Makes the objects of a mask, one operation for each kind. Null means that this factory does not
/// know the kind: the part is left out and the rest of the mask shows. Who owns the objects is the
/// factory's matter; whoever builds a mask through it never deletes them.
class ZELCORE_EXPORT ZelUiFactory
{
public:
    ZelUiFactory();
    virtual ~ZelUiFactory();
    ZelUiFactory(const ZelUiFactory &) = delete;
    ZelUiFactory &operator=(const ZelUiFactory &) = delete;

    // Containers
    virtual ZelUITabPage *makeTabPage();
    virtual ZelUITabContainer *makeTabContainer();
    virtual ZelUIBoard *makeBoard();
    virtual ZelUIGroup *makeGroup();
    virtual ZelUIColumn *makeColumn();
    /// A form by the name of its class.
    virtual ZelUIExternalItem *makeExternalItem(const zelWString &className);
    virtual ZelUIDialogButtonBox *makeDialogButtonBox();

    // Parts of lines
    virtual ZelUITextLabel *makeTextLabel(ZelUIAlignment alignment);
    virtual ZelUIFormulaLabel *makeFormulaLabel();
    virtual ZelUIUnitLabel *makeUnitLabel();
    virtual ZelUIValueEdit *makeValueEdit();
    virtual ZelUISpinBox *makeSpinBox();
    virtual ZelUITextEdit *makeTextEdit();
    virtual ZelUINotepad *makeNotepad();
    virtual ZelUIFlag *makeFlag();
    virtual ZelUIEditButton *makeEditButton(ZelUIEditButtonType type);
    virtual ZelUISpacer *makeSpacer();
    virtual ZelUIStdButtonBox *makeStdButtonBox();
    /// A small icon button at the end of a line.
    virtual ZelUIPushButton *makeIconButton(ZelUIPushButtonType type);
    /// A button with a text.
    virtual ZelUIPushButton *makePushButton();
    virtual ZelUIComboBox *makeComboBox();

    // Views
    virtual ZelUITable *makeTable();
    virtual ZelUIImageElement *makeImage();
    virtual ZelUIOutputElement *makeOutput();
};
