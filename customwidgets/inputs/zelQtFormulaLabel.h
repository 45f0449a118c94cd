#pragma once

#include "zelQtLabel.h"
#include "zelUIFormulaLabel.h"

/// The formula symbol of a quantity. A right click shows it enlarged.
class CUSTOMWIDGETS_EXPORT ZelQtFormulaLabel : public ZelQtLabel, public ZelUIFormulaLabel
{
    Q_OBJECT

public:
    using ZelUIFormulaLabel::setup; // the overload below would hide the inherited ones

    explicit ZelQtFormulaLabel(QWidget *parent = nullptr);
    explicit ZelQtFormulaLabel(const QString &text, QWidget *parent = nullptr);
    ~ZelQtFormulaLabel() override;

    /// Width of the model's symbol in pixels, whatever text is on show.
    int formulaWidth() const;

    /// Without the reserve of the other labels for rich text.
    QSize sizeHint() const override;

    // ZelUIFormulaLabel
    void setup(ZelUIMultiVar *variable, AttrMap &attributes) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
};
