#pragma once

#include "zelMask.h"
#include "zelQtUiFactory.h"

#include <QWidget>

class ZelQtParentWidget;
class ZelQtUiWidget;
class ZelQtValueEdit;

/// The mask of a loaded module: its pages, and what happens when the user confirms a value. It is
/// no host itself; the page or dialog round it passes on what it reports.
class MaskView : public QWidget
{
    Q_OBJECT

public:
    /// `module` must outlive the view. Faults found while building are appended.
    MaskView(ZelLoadedModule &module, ZelFaultList &faults, QWidget *parent = nullptr);
    ~MaskView() override;

    /// Shows the module's data.
    void refresh();
    /// Commits the edit under way, calculates and shows the results.
    ZelCalcResult calculate();
    void retranslate();
    void updateUnitSystem(bool keepDefault);
    /// The widget of a variable's first component gets the focus, on whatever page it stands.
    void focusVariable(const QString &name);

    Meta &meta() const { return mMask->meta(); }
    /// Room for the largest page without scrolling.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A value changed in some field; editing may go on.
    void valueChanged();
    /// An edit was committed; the module's data hold it.
    void valueConfirmed();
    void infoChanged(int id);
    void infoChanged(QString file);

private:
    void placePages();
    void listenTo(ZelQtParentWidget *host);
    void takeFromMask();
    void takeFromForm(ZelQtUiWidget *form);
    void showMessageStates();
    void fillForms();

    ZelQtUiFactory mFactory;
    std::unique_ptr<ZelMask> mMask;
    QWidget *mContent = nullptr;
    QList<ZelQtUiWidget *> mForms;
    QList<ZelQtValueEdit *> mFields;
};
