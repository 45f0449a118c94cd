#pragma once

#include "customwidgets_export.h"

#include <QIntValidator>

/// Whole numbers within limits, digits only in every language. A number beyond a limit becomes the
/// limit when the field is left.
class CUSTOMWIDGETS_EXPORT ZelQtIntValidator : public QIntValidator
{
    Q_OBJECT

public:
    explicit ZelQtIntValidator(QObject *parent = nullptr);
    ~ZelQtIntValidator() override;

    void fixup(QString &input) const override;
};
