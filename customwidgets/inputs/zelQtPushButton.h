#pragma once

#include "customwidgets_export.h"
#include "zelUIPushButton.h"

#include <QPushButton>

/// The push button of a mask. What a click does is left to the owner, who connects clicked() and,
/// for a button with a menu, triggered() of its menu.
class CUSTOMWIDGETS_EXPORT ZelQtPushButton : public QPushButton, public ZelUIPushButton
{
    Q_OBJECT

public:
    using ZelUIPushButton::setup; // the overload below would hide the inherited ones

    explicit ZelQtPushButton(QWidget *parent = nullptr);
    explicit ZelQtPushButton(ZelUIPushButtonType type, QWidget *parent = nullptr);
    explicit ZelQtPushButton(const QString &text, QWidget *parent = nullptr);
    ZelQtPushButton(const QString &iconFile, const QString &text, QWidget *parent = nullptr);
    ~ZelQtPushButton() override;

    // ZelUIPushButton
    /// The forms for a node and for a button variable end here too.
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void updateState(Meta *meta, int64_t id) override;
    void updateState(ZelUIState state) override;
    void updateState(bool enabled, bool visible) override;
    void retranslate() override;
    /// The whatsThis of the menu's action is the index of the entry, from 0, in decimal.
    void addMenuItem(const ZelUITextHandler &text, const ZelUICallFunc &function) override;

private:
    void retranslateMenu();
};
