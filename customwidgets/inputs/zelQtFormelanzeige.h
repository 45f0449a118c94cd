#pragma once

#include "customwidgets_export.h"

#include <QMenu>

class ZelQtFormulaLabel;

/// Popup that shows the text of a formula label at twice its size. Child of the label.
class CUSTOMWIDGETS_EXPORT ZelQtFormelanzeige : public QMenu
{
    Q_OBJECT

public:
    explicit ZelQtFormelanzeige(ZelQtFormulaLabel *label);
    ~ZelQtFormelanzeige() override;

public Q_SLOTS:
    void accept();
};
