#pragma once

#include "customwidgets_export.h"
#include "zelUINotepad.h"

#include <QTextEdit>

/// Text of several lines of a mask, bound to a text variable whose text holds no tags. Tab leaves
/// the field. Changes are reported whoever makes them, and confirmed when the field loses the
/// focus; a variable that blocks updates changes nothing about it.
class CUSTOMWIDGETS_EXPORT ZelQtNotepad : public QTextEdit, public ZelUINotepad
{
    Q_OBJECT

public:
    using ZelUINotepad::setup; // the overload below would hide the inherited ones

    explicit ZelQtNotepad(QWidget *parent = nullptr);
    ~ZelQtNotepad() override;

    // ZelUINotepad
    void setup(ZelUIVarMultilineString *variable, AttrMap &attributes) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;

Q_SIGNALS:
    /// The text changed, by the user or by setData(); after the signal of the host.
    void valueChanged();
    /// The field lost the focus after a change; after the signal of the host.
    void valueConfirmed();

public Q_SLOTS:
    /// Confirms a pending change at once.
    void ensureValueConfirmed();

protected Q_SLOTS:
    void needsToBeConfirmed();
    void emitValueChanged();
    void emitValueConfirmed();

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool mNeedsConfirm = false;
};
