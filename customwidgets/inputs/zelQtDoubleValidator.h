#pragma once

#include "customwidgets_export.h"

#include <QDoubleValidator>

/// Real numbers within limits. Decimal comma and decimal point both work, whatever the locale, and
/// the text always holds a point. A number beyond a limit becomes the limit, with six digits, when
/// the field is left.
class CUSTOMWIDGETS_EXPORT ZelQtDoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    /// Standard notation; no limits.
    explicit ZelQtDoubleValidator(QObject *parent = nullptr);
    ~ZelQtDoubleValidator() override;

    /// Corrects the text on the way: a comma becomes a point, a lone point "0.", and a second point
    /// goes.
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
};
