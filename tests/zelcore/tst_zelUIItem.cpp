#include "mask.h"
#include "zelUIEditButton.h"
#include "zelUIFormulaLabel.h"
#include "zelUIMultiVar.h"
#include "zelUIPushButton.h"
#include "zelUITextLabel.h"
#include "zelUIUnitLabel.h"
#include "zelUIValueEdit.h"

#include <QtTest>

class tst_zelUIItem : public QObject
{
    Q_OBJECT
private slots:
    void itemNamesAreUniqueInALine();
    void itemWithoutNameHasNoItemName();
};

void tst_zelUIItem::itemNamesAreUniqueInALine()
{
    ZelUIMultiVar variable(L"d", ZelDimensions::Millimetre, 3);
    AttrMap attributes;
    ZelUIValueEdit first;
    ZelUIValueEdit second;
    ZelUIValueEdit third;
    first.setup(&variable, attributes, 0);
    second.setup(&variable, attributes, 1);
    third.setup(&variable, attributes, 2);
    ZelUIUnitLabel unit;
    unit.setup(&variable, attributes);
    ZelUIFormulaLabel formula;
    formula.setup(&variable, attributes);
    ZelUITextLabel label;
    static_cast<ZelUIObject &>(label).setup(&variable, attributes);
    ZelUIEditButton button;
    button.setup(&variable, attributes, 1);
    ZelUIPushButton size(ZelUIPushButtonType::Size);
    static_cast<ZelUIObject &>(size).setup(&variable, attributes);

    QStringList names;
    for (ZelUIItem *item : std::initializer_list<ZelUIItem *>{&first, &second, &third, &unit,
                                                              &formula, &label, &button, &size})
        names << toText(item->getItemName());
    QCOMPARE(
        names,
        QStringList({"d", "d_2", "d_3", "d_unit", "d_formula", "d_label", "d_2_edit", "d_size"}));
}

void tst_zelUIItem::itemWithoutNameHasNoItemName()
{
    ZelUIUnitLabel unit;
    QVERIFY(unit.getItemName().empty());
}

QTEST_GUILESS_MAIN(tst_zelUIItem)
#include "tst_zelUIItem.moc"
