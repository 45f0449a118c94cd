#pragma once

#include "customwidgets_export.h"

#include <QMenu>

class QGridLayout;
class QLabel;
class ZelQtTextEdit;
class ZelQtValueEdit;

/// Popup of a value edit that takes an angle in degrees, minutes and seconds and stores it as an
/// edit by the user.
class CUSTOMWIDGETS_EXPORT ZelQtWinkeleingabe : public QMenu
{
    Q_OBJECT

public:
    /// `degrees` is what the fields start with.
    ZelQtWinkeleingabe(ZelQtValueEdit *edit, double degrees);
    ~ZelQtWinkeleingabe() override;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Return in one of the fields.
    void accept();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    ZelQtTextEdit *addField(QGridLayout *layout, int row, const QString &name, int top,
                            QLabel *label, const QString &sign);
    void showAngle(double degrees);
    void retranslateStrings();

    QLabel *mGradLabel;
    QLabel *mMinutenLabel;
    QLabel *mSekundenLabel;
    ZelQtTextEdit *mGrad;
    ZelQtTextEdit *mMinuten;
    ZelQtTextEdit *mSekunden;
    int mTabPosition = 0;
};
