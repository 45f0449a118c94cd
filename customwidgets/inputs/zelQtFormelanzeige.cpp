#include "zelQtFormelanzeige.h"

#include "zelQtFormulaLabel.h"

#include <QVBoxLayout>

static QFont enlarged(QFont font)
{
    // A font that was given in pixels has no point size.
    if (font.pointSizeF() > 0)
        font.setPointSizeF(2 * font.pointSizeF());
    else
        font.setPixelSize(2 * font.pixelSize());
    return font;
}

ZelQtFormelanzeige::ZelQtFormelanzeige(ZelQtFormulaLabel *label)
    : QMenu(label)
{
    auto *formula = new ZelQtLabel(label->text(), this);
    formula->setFont(enlarged(label->font()));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(formula);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

ZelQtFormelanzeige::~ZelQtFormelanzeige() = default;

void ZelQtFormelanzeige::accept()
{
    hide();
}
