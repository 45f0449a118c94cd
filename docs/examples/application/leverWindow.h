#pragma once

#include "zelMask.h"
#include "zelQtParentWidget.h"
#include "zelQtUiFactory.h"

class QLabel;

/// The mask of the lever in a window of its own.
class LeverWindow : public ZelQtParentWidget
{
    Q_OBJECT

public:
    explicit LeverWindow(const QString &description, QWidget *parent = nullptr);
    ~LeverWindow() override;

    void updateUnitSystem(bool keepDefault) override;
    const ZelFaultList &faults() const { return mFaults; }
    Meta &meta() const { return mModule->meta(); }

public Q_SLOTS:
    void calculate();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void retranslateStrings() override;

private:
    void listenTo(ZelQtParentWidget *host);
    void takeFromMask();
    void showData();
    void showState(const QString &state);

    ZelFaultList mFaults;
    std::unique_ptr<ZelLoadedModule> mModule;
    ZelQtUiFactory mFactory;
    std::unique_ptr<ZelMask> mMask;
    QWidget *mPages;
    QLabel *mState;
};
