#pragma once

#include "maskfactory_export.h"
#include "zelUiFactory.h"

#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QLayout;
class QWidget;
class ZelQtUiWidget;

/// Yields the widget for each node of a description; null for the kinds that have no widget yet,
/// which a mask then leaves out.
///
/// Pages are made without parent and belong to whoever asked for the build, as soon as he gives
/// them one. Everything else ends up below its page. Parts that no layout took are deleted by
/// discardUnused(), at the latest with the factory: as widgets without parent they would open as
/// windows.
class MASKFACTORY_EXPORT ZelQtUiFactory : public ZelUiFactory
{
public:
    using FormMaker = std::function<ZelQtUiWidget *(QWidget *parent)>;

    ZelQtUiFactory();
    ~ZelQtUiFactory() override;

    /// Announces a form written by hand under the name that descriptions use.
    void addForm(const zelWString &className, FormMaker maker);
    /// To be called when the layouts of all pages are made.
    void discardUnused();

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

private:
    QWidget *nursery();
    template <class Widget, class... Args> Widget *part(Args &&...args);
    template <class Layout> Layout *layout();

    std::vector<std::unique_ptr<QWidget>> mNurseries;
    int mPartsInNursery = 0; // of the last one
    std::vector<QPointer<QLayout>> mLayouts;
    std::map<zelWString, FormMaker> mForms;
};
