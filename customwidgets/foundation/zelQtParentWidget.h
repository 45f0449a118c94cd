#pragma once

#include "customwidgets_export.h"
#include "zelQtAuthorItInterface.h"

#include <QWidget>

/// Host of a mask that is a page, a tab or a box: the point at which the inside of a mask meets the
/// application. Children report to the nearest host above them, and the application listens to it.
class CUSTOMWIDGETS_EXPORT ZelQtParentWidget : public QWidget, public ZelQtAuthorItInterface
{
    Q_OBJECT

public:
    explicit ZelQtParentWidget(QWidget *parent = nullptr);
    explicit ZelQtParentWidget(int authorItCode, QWidget *parent = nullptr);
    ~ZelQtParentWidget() override;

    /// The composite inputs below take the default units of the unit system, with `keepDefault`
    /// those of their variables.
    virtual void updateUnitSystem(bool keepDefault);

Q_SIGNALS:
    /// A value of the mask changed by the user; editing may go on. Raised before the signal of the
    /// widget itself.
    void valueChanged();
    /// Editing of a value was committed. Raised before the signal of the widget itself.
    void valueConfirmed();
    /// The user asked for the info topic of a number, or of a file.
    void infoChanged(int id);
    void infoChanged(QString file);
    /// The user pressed F1; the file is empty when nothing in focus has a topic.
    void helpChanged(QString file);
    /// A link that closes the page was clicked. Raised by the application.
    void closeLinkClicked();
    /// The page was translated. Raised by the application.
    void retranslated();

public Q_SLOTS:
    // Each raises the signal of the same name, so that children can be wired to the host.
    void emitValueChanged();
    void emitValueConfirmed();
    void emitInfoChanged(int id);
    void emitInfoChanged(QString file);
    void emitHelpChanged(QString file);

protected:
    /// For subclasses that give their widgets help codes; empty here, nobody calls it but they.
    virtual void setAuthorItCodes();
    /// Aligns the composite inputs below.
    virtual void resizeLayout();
    /// Called at a change of the language, before resizeLayout(); may run twice for one change.
    virtual void retranslateStrings();

    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void alignLines();

    bool mAligning = false;
};
