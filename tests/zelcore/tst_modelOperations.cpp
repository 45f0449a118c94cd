#include "zelDomNode.h"
#include "zelUIBoard.h"
#include "zelUIColumn.h"
#include "zelUIComboBox.h"
#include "zelUIDialogButtonBox.h"
#include "zelUIEditButton.h"
#include "zelUIFlag.h"
#include "zelUIFormulaLabel.h"
#include "zelUIImageElement.h"
#include "zelUINotepad.h"
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

#include <QtTest>
#include <cstring>

// The virtual operations of the model classes: the compiler checks the signatures that are written
// out here, the test their order, which is part of the interface too.

namespace {

using Slots = QVector<int>;

/// Place of a virtual operation in the table of its class, -1 for one that is not virtual. Member
/// pointers are laid out as the Itanium ABI says, which GCC and Clang follow.
template <class Operation> int slot(Operation operation)
{
    std::ptrdiff_t parts[2];
    static_assert(sizeof operation == sizeof parts);
    std::memcpy(parts, &operation, sizeof parts);
#ifdef __aarch64__
    const bool isVirtual = (parts[1] & 1) != 0;
    const std::ptrdiff_t offset = parts[0];
#else
    const bool isVirtual = (parts[0] & 1) != 0;
    const std::ptrdiff_t offset = parts[0] - 1;
#endif
    return isVirtual ? static_cast<int>(offset / std::ptrdiff_t(sizeof(void *))) : -1;
}

// Opens a protected operation to the pointer below.
struct OpenTable : ZelUITable
{
    using ZelUITable::setItemModelData;
};

Slots objectSlots()
{
    return {slot<void (ZelUIObject::*)()>(&ZelUIObject::retranslate),
            slot<void (ZelUIObject::*)(ZelUIVar *, AttrMap &)>(&ZelUIObject::setup),
            slot<void (ZelUIObject::*)(const AttrMap &)>(&ZelUIObject::setup),
            slot<void (ZelUIObject::*)(ZelUIVar *)>(&ZelUIObject::setup),
            slot<void (ZelUIObject::*)(Meta *, int64_t)>(&ZelUIObject::updateState)};
}

Slots itemSlots()
{
    return objectSlots()
        + Slots{slot<zelWString (ZelUIItem::*)()>(&ZelUIItem::getItemName),
                slot<void (ZelUIItem::*)(Meta *, int64_t)>(&ZelUIItem::setData),
                slot<void (ZelUIItem::*)(Meta *, int64_t)>(&ZelUIItem::getData)};
}

Slots inputSlots()
{
    using Input = ZelUIInput;
    return itemSlots()
        + Slots{slot<void (Input::*)(Meta *)>(&Input::setPriority),
                slot<ZelUIInputStruct *(Input::*)() const>(&Input::toInputStruct),
                slot<bool (Input::*)(Meta *, int64_t, const zelWString &, bool &)>(
                    &Input::setUserInput),
                slot<zelWString (Input::*)()>(&Input::getRenderedData)};
}

Slots valueEditSlots()
{
    using Edit = ZelUIValueEdit;
    return inputSlots()
        + Slots{slot<void (Edit::*)(ZelUIMultiVar *, AttrMap &, int)>(&Edit::setup),
                slot<void (Edit::*)(ZelDimensions::Unit)>(&Edit::setDefaultUnit),
                slot<void (Edit::*)(ZelDimensions::Unit)>(&Edit::setCurrentUnit),
                slot<void (Edit::*)(double, double, bool)>(&Edit::setRange),
                slot<void (Edit::*)(double)>(&Edit::setBottom),
                slot<void (Edit::*)(double)>(&Edit::setTop)};
}

Slots spinBoxSlots()
{
    using Box = ZelUISpinBox;
    return valueEditSlots()
        + Slots{slot<void (Box::*)(ZelUIMultiVar *, AttrMap &, int, double)>(&Box::setup),
                slot<void (Box::*)(double)>(&Box::setStep)};
}

Slots textEditSlots()
{
    using Edit = ZelUITextEdit;
    return inputSlots()
        + Slots{slot<void (Edit::*)(ZelUIVarFuncText *, AttrMap &, int)>(&Edit::setup),
                slot<void (Edit::*)(ZelUIVarString *, AttrMap &, int)>(&Edit::setup)};
}

Slots comboBoxSlots()
{
    using Box = ZelUIComboBox;
    return inputSlots()
        + Slots{slot<void (Box::*)(ZelUIVarLS *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarLubList *, AttrMap &, bool, bool)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarMatList *, AttrMap &, bool)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarRealFuncList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarRealList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarDBFuncList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarDBList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarFuncListDynamic *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarFuncList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(ZelUIVarList *, AttrMap &, int)>(&Box::setup),
                slot<void (Box::*)(Meta *, int64_t, short, short)>(&Box::setData),
                slot<void (Box::*)(short &)>(&Box::getData)};
}

Slots editButtonSlots()
{
    using Button = ZelUIEditButton;
    return itemSlots()
        + Slots{slot<void (Button::*)(ZelUIMultiVar *, AttrMap &, int)>(&Button::setup),
                slot<ZelUIEditButtonStruct (Button::*)()>(&Button::toEditButtonStruct),
                slot<void (Button::*)(ZelUIEditButtonType)>(&Button::setEditType)};
}

Slots flagSlots()
{
    using Flag = ZelUIFlag;
    return itemSlots()
        + Slots{slot<void (Flag::*)(ZelUIVarTable *, AttrMap &)>(&Flag::setup),
                slot<void (Flag::*)(ZelUIVarBool *, AttrMap &)>(&Flag::setup),
                slot<ZelUIFlagStruct (Flag::*)()>(&Flag::toFlagStruct),
                slot<void (Flag::*)(ZelUIFlagType)>(&Flag::setFlagType)};
}

Slots unitLabelSlots()
{
    using Label = ZelUIUnitLabel;
    return itemSlots()
        + Slots{slot<void (Label::*)(ZelUIMultiVar *, AttrMap &)>(&Label::setup),
                slot<bool (Label::*)(ZelDimensions::Unit, bool)>(&Label::setUnit)};
}

Slots formulaLabelSlots()
{
    using Label = ZelUIFormulaLabel;
    return itemSlots() + Slots{slot<void (Label::*)(ZelUIMultiVar *, AttrMap &)>(&Label::setup)};
}

Slots textLabelSlots()
{
    using Label = ZelUITextLabel;
    return itemSlots()
        + Slots{slot<void (Label::*)(const ZelDomNode *)>(&Label::setup),
                slot<void (Label::*)(ZelUIVarText *, AttrMap &, int)>(&Label::setup)};
}

Slots notepadSlots()
{
    return itemSlots()
        + Slots{slot<void (ZelUINotepad::*)(ZelUIVarMultilineString *, AttrMap &)>(
            &ZelUINotepad::setup)};
}

Slots pushButtonSlots()
{
    using Button = ZelUIPushButton;
    return itemSlots()
        + Slots{
            slot<void (Button::*)(bool, bool)>(&Button::updateState),
            slot<void (Button::*)(ZelUIState)>(&Button::updateState),
            slot<void (Button::*)(ZelUIVarTable *, AttrMap &, ZelUIButtonData *)>(&Button::setup),
            slot<void (Button::*)(ZelUIVarLubList *, AttrMap &, bool, bool)>(&Button::setup),
            slot<void (Button::*)(ZelUIVarTextButton *, AttrMap &)>(&Button::setup),
            slot<void (Button::*)(const ZelDomNode *)>(&Button::setup),
            slot<ZelUIPushButtonStruct (Button::*)()>(&Button::toPushButtonStruct),
            slot<ZelUIInfoStruct (Button::*)()>(&Button::toInfoStruct),
            slot<bool (Button::*)(const zelWString &)>(&Button::addIconFile),
            slot<void (Button::*)(const ZelUITextHandler &, const ZelUICallFunc &)>(
                &Button::addMenuItem)};
}

Slots tableSlots()
{
    using Table = ZelUITable;
    return itemSlots()
        + Slots{slot<void (Table::*)(Meta *, ZelUIVarTable *, AttrMap &)>(&Table::setup),
                slot<void (Table::*)(Meta *, const ZelDomNode *)>(&Table::setup),
                slot<void (Table::*)(ZelUIState)>(&Table::updateState),
                slot<void (Table::*)(bool)>(&Table::updateUnitSystem),
                slot<ZelUITableStruct (Table::*)()>(&Table::toTableStruct),
                slot<void (Table::*)(Meta *, int64_t)>(&OpenTable::setItemModelData),
                slot<bool (Table::*)()>(&Table::addRow),
                slot<bool (Table::*)()>(&Table::deleteRows),
                slot<bool (Table::*)()>(&Table::resetRows),
                slot<bool (Table::*)()>(&Table::addColumn),
                slot<bool (Table::*)()>(&Table::deleteColumns),
                slot<bool (Table::*)()>(&Table::resetColumns)};
}

Slots spacerSlots()
{
    return objectSlots()
        + Slots{slot<void (ZelUISpacer::*)(ZelUIState)>(&ZelUISpacer::updateState)};
}

Slots stdButtonBoxSlots()
{
    return objectSlots()
        + Slots{slot<void (ZelUIStdButtonBox::*)(bool)>(&ZelUIStdButtonBox::updateState)};
}

Slots elementSlots()
{
    using Element = ZelUIElement;
    return objectSlots()
        + Slots{slot<void (Element::*)(Meta *, int64_t)>(&Element::setData),
                slot<void (Element::*)(Meta *, int64_t)>(&Element::getData),
                slot<void (Element::*)(bool)>(&Element::updateUnitSystem),
                slot<void (Element::*)(bool)>(&Element::resetUnits),
                slot<ZelUIElementStruct *(Element::*)() const>(&Element::toElementStruct)};
}

Slots imageElementSlots()
{
    using View = ZelUIViewElement;
    return elementSlots()
        + Slots{slot<void (View::*)(const ZelDomNode *)>(&View::setup),
                slot<bool (View::*)() const>(&View::isExpanding),
                slot<void (ZelUIImageElement::*)(ZelUIVarImage *, AttrMap &)>(
                    &ZelUIImageElement::setup)};
}

Slots dialogButtonBoxSlots()
{
    using Box = ZelUIDialogButtonBox;
    return elementSlots()
        + Slots{slot<void (Box::*)(const ZelDomNode *)>(&Box::setup),
                slot<void (Box::*)(bool)>(&Box::updateCalcState),
                slot<int (Box::*)(ZelUIPushButton *, Box::ButtonRole)>(&Box::addPushButton)};
}

Slots containerSlots()
{
    using Container = ZelUIContainer;
    return objectSlots()
        + Slots{slot<void (Container::*)(const ZelDomNode *)>(&Container::setup),
                slot<void (Container::*)(Meta *, int64_t)>(&Container::setData)};
}

Slots layoutItemSlots()
{
    return containerSlots()
        + Slots{slot<ZelUILayoutItemStruct *(ZelUILayoutItem::*)() const>(
            &ZelUILayoutItem::toLayoutItemStruct)};
}

Slots boardSlots()
{
    using Board = ZelUIBoard;
    return layoutItemSlots()
        + Slots{slot<void (Board::*)(bool)>(&Board::makeLayout),
                slot<void (Board::*)(const ZelDomNode *)>(&Board::makeLayout)};
}

Slots tabContainerSlots()
{
    return layoutItemSlots()
        + Slots{slot<void (ZelUITabContainer::*)(ZelUITabPage *)>(&ZelUITabContainer::addTab)};
}

Slots tabPageSlots()
{
    using Top = ZelUITopLayout;
    using Page = ZelUITabPage;
    return containerSlots()
        + Slots{slot<ZelUILayoutStruct *(Top::*)() const>(&Top::toLayoutStruct),
                slot<void (Top::*)(ZelUILayoutItem *)>(&Top::addLayoutItem),
                slot<void (Top::*)()>(&Top::finishLayout),
                slot<void (Page::*)()>(&Page::makeLayout),
                slot<ZelUITabStruct *(Page::*)() const>(&Page::toTabStruct)};
}

Slots columnSlots()
{
    using Column = ZelUIColumn;
    return containerSlots()
        + Slots{
            slot<bool (Column::*)(bool) const>(&Column::containsViews),
            slot<bool (Column::*)(bool) const>(&Column::containsExpandingViews),
            slot<ZelUIColumnStruct *(Column::*)() const>(&Column::toColumnStruct),
            slot<void (Column::*)(ZelUIStdElement *)>(&Column::addStdElement),
            slot<void (Column::*)(ZelUIMatElement *)>(&Column::addMatElement),
            slot<void (Column::*)(ZelUILubElement *)>(&Column::addLubElement),
            slot<void (Column::*)(ZelUILSElement *)>(&Column::addLSElement),
            slot<void (Column::*)(ZelUIFileElement *)>(&Column::addFileElement),
            slot<void (Column::*)(ZelUITextElement *)>(&Column::addTextElement),
            slot<void (Column::*)(ZelUIFlagElement *)>(&Column::addFlagElement),
            slot<void (Column::*)(ZelUITableElement *, bool, int)>(&Column::addTableElement),
            slot<void (Column::*)(ZelUIViewElement *, bool, int)>(&Column::addViewElement),
            slot<void (Column::*)(ZelUINotepadElement *, bool, int)>(&Column::addNotepadElement),
            slot<void (Column::*)(ZelUIButtonBox *)>(&Column::addButtonElement),
            slot<void (Column::*)()>(&Column::finishLayout),
            slot<bool (Column::*)()>(&Column::isContentVisible)};
}

} // namespace

class tst_modelOperations : public QObject
{
    Q_OBJECT
private slots:
    void virtualOperationsStandInTheirOrder_data();
    void virtualOperationsStandInTheirOrder();
    void anOperationThatIsNotVirtualWouldShow();
};

void tst_modelOperations::virtualOperationsStandInTheirOrder_data()
{
    QTest::addColumn<Slots>("operations");
    QTest::newRow("ZelUIObject") << objectSlots();
    QTest::newRow("ZelUIItem") << itemSlots();
    QTest::newRow("ZelUIInput") << inputSlots();
    QTest::newRow("ZelUIValueEdit") << valueEditSlots();
    QTest::newRow("ZelUISpinBox") << spinBoxSlots();
    QTest::newRow("ZelUITextEdit") << textEditSlots();
    QTest::newRow("ZelUIComboBox") << comboBoxSlots();
    QTest::newRow("ZelUIEditButton") << editButtonSlots();
    QTest::newRow("ZelUIFlag") << flagSlots();
    QTest::newRow("ZelUIUnitLabel") << unitLabelSlots();
    QTest::newRow("ZelUIFormulaLabel") << formulaLabelSlots();
    QTest::newRow("ZelUITextLabel") << textLabelSlots();
    QTest::newRow("ZelUINotepad") << notepadSlots();
    QTest::newRow("ZelUIPushButton") << pushButtonSlots();
    QTest::newRow("ZelUITable") << tableSlots();
    QTest::newRow("ZelUISpacer") << spacerSlots();
    QTest::newRow("ZelUIStdButtonBox") << stdButtonBoxSlots();
    QTest::newRow("ZelUIElement") << elementSlots();
    QTest::newRow("ZelUIImageElement") << imageElementSlots();
    QTest::newRow("ZelUIDialogButtonBox") << dialogButtonBoxSlots();
    QTest::newRow("ZelUIContainer") << containerSlots();
    QTest::newRow("ZelUILayoutItem") << layoutItemSlots();
    QTest::newRow("ZelUIBoard") << boardSlots();
    QTest::newRow("ZelUITabContainer") << tabContainerSlots();
    QTest::newRow("ZelUITabPage") << tabPageSlots();
    QTest::newRow("ZelUIColumn") << columnSlots();
}

// Each class continues its base. Further operations of this implementation may stand between.
void tst_modelOperations::virtualOperationsStandInTheirOrder()
{
    QFETCH(Slots, operations);
    QVERIFY(operations.first() >= 0);
    for (int i = 1; i < operations.size(); ++i)
        QVERIFY2(operations[i] > operations[i - 1], qPrintable(QString::number(i)));
}

void tst_modelOperations::anOperationThatIsNotVirtualWouldShow()
{
    QCOMPARE(slot<zelWString (ZelUIObject::*)() const>(&ZelUIObject::getName), -1);
}

QTEST_APPLESS_MAIN(tst_modelOperations)
#include "tst_modelOperations.moc"
