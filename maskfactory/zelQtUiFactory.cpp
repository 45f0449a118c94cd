#include "zelQtUiFactory.h"

#include "zelQtAdvancedLabel.h"
#include "zelQtBoardLayout.h"
#include "zelQtColumnLayout.h"
#include "zelQtComboBox.h"
#include "zelQtCustomButtons.h"
#include "zelQtEditButton.h"
#include "zelQtFlag.h"
#include "zelQtFormulaLabel.h"
#include "zelQtGroupBox.h"
#include "zelQtNotepad.h"
#include "zelQtPushButton.h"
#include "zelQtSpacer.h"
#include "zelQtSpinBox.h"
#include "zelQtStdButtonBox.h"
#include "zelQtTabContainer.h"
#include "zelQtTabPage.h"
#include "zelQtTextEdit.h"
#include "zelQtUIDialogButtonBox.h"
#include "zelQtUiWidget.h"
#include "zelQtUnitLabel.h"
#include "zelQtValueEdit.h"

ZelQtUiFactory::ZelQtUiFactory() = default;

ZelQtUiFactory::~ZelQtUiFactory()
{
    discardUnused();
}

void ZelQtUiFactory::addForm(const zelWString &className, FormMaker maker)
{
    mForms[className] = std::move(maker);
}

void ZelQtUiFactory::discardUnused()
{
    // Layouts first: one that nobody installed still holds widgets of the nursery.
    for (const QPointer<QLayout> &layout : mLayouts) {
        if (layout && !layout->parent())
            delete layout.data();
    }
    mLayouts.clear();
    mNurseries.clear();
}

// Parts start below a hidden widget, which layouts take them away from. A part without any parent
// would be a window, and some show themselves while they are made. Only a few share one: taking a
// widget away costs a walk over all that it leaves behind.
QWidget *ZelQtUiFactory::nursery()
{
    constexpr int fullAt = 16;
    if (mNurseries.empty() || ++mPartsInNursery > fullAt) {
        mNurseries.push_back(std::make_unique<QWidget>());
        mPartsInNursery = 1;
    }
    return mNurseries.back().get();
}

template <class Widget, class... Args> Widget *ZelQtUiFactory::part(Args &&...args)
{
    return new Widget(std::forward<Args>(args)..., nursery());
}

template <class Layout> Layout *ZelQtUiFactory::layout()
{
    auto *layout = new Layout;
    mLayouts.emplace_back(layout);
    return layout;
}

ZelUITabPage *ZelQtUiFactory::makeTabPage()
{
    return new ZelQtTabPage;
}

ZelUITabContainer *ZelQtUiFactory::makeTabContainer()
{
    return part<ZelQtTabContainer>();
}

ZelUIBoard *ZelQtUiFactory::makeBoard()
{
    return layout<ZelQtBoardLayout>();
}

ZelUIGroup *ZelQtUiFactory::makeGroup()
{
    return part<ZelQtGroupBox>();
}

ZelUIColumn *ZelQtUiFactory::makeColumn()
{
    return layout<ZelQtColumnLayout>();
}

ZelUIExternalItem *ZelQtUiFactory::makeExternalItem(const zelWString &className)
{
    const auto form = mForms.find(className);
    if (form == mForms.end())
        return nullptr;
    return form->second(nursery());
}

ZelUIDialogButtonBox *ZelQtUiFactory::makeDialogButtonBox()
{
    return part<ZelQtUIDialogButtonBox>();
}

ZelUITextLabel *ZelQtUiFactory::makeTextLabel(ZelUIAlignment alignment)
{
    return part<ZelQtAdvancedLabel>(alignment);
}

ZelUIFormulaLabel *ZelQtUiFactory::makeFormulaLabel()
{
    return part<ZelQtFormulaLabel>();
}

ZelUIUnitLabel *ZelQtUiFactory::makeUnitLabel()
{
    return part<ZelQtUnitLabel>();
}

ZelUIValueEdit *ZelQtUiFactory::makeValueEdit()
{
    return part<ZelQtValueEdit>();
}

ZelUISpinBox *ZelQtUiFactory::makeSpinBox()
{
    return part<ZelQtSpinBox>();
}

ZelUITextEdit *ZelQtUiFactory::makeTextEdit()
{
    return part<ZelQtTextEdit>();
}

ZelUINotepad *ZelQtUiFactory::makeNotepad()
{
    return part<ZelQtNotepad>();
}

ZelUIFlag *ZelQtUiFactory::makeFlag()
{
    return part<ZelQtFlag>();
}

ZelUIEditButton *ZelQtUiFactory::makeEditButton(ZelUIEditButtonType type)
{
    return part<ZelQtEditButton>(type);
}

ZelUISpacer *ZelQtUiFactory::makeSpacer()
{
    return part<ZelQtSpacer>();
}

ZelUIStdButtonBox *ZelQtUiFactory::makeStdButtonBox()
{
    return part<ZelQtStdButtonBox>();
}

ZelUIPushButton *ZelQtUiFactory::makeIconButton(ZelUIPushButtonType type)
{
    switch (type) {
    case ZelUIPushButtonType::Size:
        return part<ZelQtSizeButton>();
    case ZelUIPushButtonType::Convert:
        return part<ZelQtConvertButton>();
    case ZelUIPushButtonType::Plus:
        return part<ZelQtPlusButton>();
    case ZelUIPushButtonType::Info:
        return part<ZelQtInfoButton>();
    case ZelUIPushButtonType::Offer:
        return part<ZelQtOfferButton>();
    case ZelUIPushButtonType::Database:
        return part<ZelQtDatabaseButton>();
    case ZelUIPushButtonType::Settings:
        return part<ZelQtSettingsButton>();
    case ZelUIPushButtonType::File:
        return part<ZelQtFileButton>();
    case ZelUIPushButtonType::Push:
        break;
    }
    return part<ZelQtToolButton>();
}

ZelUIPushButton *ZelQtUiFactory::makePushButton()
{
    return part<ZelQtPushButton>();
}

ZelUIComboBox *ZelQtUiFactory::makeComboBox()
{
    return part<ZelQtComboBox>();
}
