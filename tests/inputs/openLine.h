#pragma once

#include "recorder.h"
#include "zelQtCalcVarInput.h"
#include "zelQtCustomButtons.h"
#include "zelQtValueEdit.h"

#include <QVector>

/// A line with its children and its protected operations in the open.
template <class Line> class OpenLine : public Line
{
public:
    using Line::Line;

    using Line::adjustButtonAreaWidth;
    using Line::adjustFormulaWidth;
    using Line::adjustInputWidth;
    using Line::adjustPromptWidth;
    using Line::adjustUnitWidth;
    using Line::inputWidth;

    using Line::mConvertButton;
    using Line::mDatabaseButton;
    using Line::mEditButton;
    using Line::mFormula;
    using Line::mInfoButton;
    using Line::mLayout;
    using Line::mOfferButton;
    using Line::mPlusButton;
    using Line::mPrompt;
    using Line::mSettingsButton;
    using Line::mSizeButton;
    using Line::mSpacer;
    using Line::mUnit;

    /// In the order of the layout, which is that of making them, too.
    QVector<QWidget *> smallButtons() const
    {
        return {mSizeButton,     mConvertButton, mPlusButton, mDatabaseButton,
                mSettingsButton, mInfoButton,    mOfferButton};
    }

    /// First, second and third field.
    QVector<ZelQtValueEdit *> fields() const
    {
        const auto found =
            this->template findChildren<ZelQtValueEdit *>(QString(), Qt::FindDirectChildrenOnly);
        return QVector<ZelQtValueEdit *>(found.begin(), found.end());
    }
};

/// The base with an input that is a record: what the line asks of it stands in a recorder.
class ProbeLine : public OpenLine<ZelQtCalcVarInput>
{
public:
    using OpenLine::OpenLine;

    bool isEditable() const override { return mEditable; }
    QString defaultUnit() override { return mDefaultUnit; }

    QStringList take() { return mRecorder.take(); }

    EventRecorder mRecorder;
    bool mEditable = false;
    QString mDefaultUnit;
    int mInputWidth = 0;

protected:
    void changeInputUnit(const QString &unit) override
    {
        mRecorder.add(QStringLiteral("unit '%1' at '%2'").arg(unit, currentUnit()));
    }
    void setInputEditable(bool editable) override
    {
        mEditable = editable;
        mRecorder.add(editable ? QStringLiteral("input open") : QStringLiteral("input closed"));
    }
    int inputWidth() const override { return mInputWidth; }
    void adjustPromptWidth(int width) override
    {
        record("prompt", width);
        ZelQtCalcVarInput::adjustPromptWidth(width);
    }
    void adjustFormulaWidth(int width) override
    {
        record("formula", width);
        ZelQtCalcVarInput::adjustFormulaWidth(width);
    }
    void adjustInputWidth(int width) override { record("input", width); }
    void adjustUnitWidth(int width) override
    {
        record("unit", width);
        ZelQtCalcVarInput::adjustUnitWidth(width);
    }
    void adjustButtonAreaWidth(int width) override
    {
        record("buttons", width);
        ZelQtCalcVarInput::adjustButtonAreaWidth(width);
    }

private:
    void record(const char *column, int width)
    {
        mRecorder.add(QStringLiteral("%1 %2").arg(QLatin1String(column)).arg(width));
    }
};
