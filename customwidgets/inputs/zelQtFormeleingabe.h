#pragma once

#include "customwidgets_export.h"

#include <QMenu>

class QLabel;
class ZelQtTextEdit;
class ZelQtValueEdit;

/// Popup of a value edit that takes a formula and stores its result in the field's current unit, as
/// an edit by the user. The library can't calculate: the application installs an evaluator.
class CUSTOMWIDGETS_EXPORT ZelQtFormeleingabe : public QMenu
{
    Q_OBJECT

public:
    /// `text` is what the formula starts with.
    ZelQtFormeleingabe(ZelQtValueEdit *edit, const QString &text);
    ~ZelQtFormeleingabe() override;

    /// The evaluator of the whole process: false for a text that is no formula. Null for none.
    static void setEvalFuncPnt(bool (*evaluate)(const QString &, double &));

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Return in the field. A formula that can't be evaluated leaves the popup open.
    void accept();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateStrings();

    QLabel *mLabel;
    ZelQtTextEdit *mFormel;
};
