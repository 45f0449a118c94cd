#pragma once

#include "zelQtLineEdit.h"
#include "zelUITextEdit.h"

/// One line of text of a mask, bound to a text variable. The model base holds the text, the field
/// only shows it, and shows nothing while the element is disabled. Text of several lines is
/// ZelQtNotepad's job.
class CUSTOMWIDGETS_EXPORT ZelQtTextEdit : public ZelQtLineEdit, public ZelUITextEdit
{
    Q_OBJECT

public:
    using ZelUITextEdit::setup; // the overloads below would hide the inherited ones

    explicit ZelQtTextEdit(QWidget *parent = nullptr);
    explicit ZelQtTextEdit(const QString &text, QWidget *parent = nullptr);
    ~ZelQtTextEdit() override;

    // ZelUITextEdit
    void setup(ZelUIVarFuncText *variable, AttrMap &attributes, int kind) override;
    void setup(ZelUIVarString *variable, AttrMap &attributes, int kind) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;
    void retranslate() override;

private:
    void finishSetup(const ZelUIVar *variable);
};
