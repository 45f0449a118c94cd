#pragma once

#include <QList>

class ZelQtCalcVarInput;

/// The common column widths of a group of lines, in pixels.
class ZelQtLineAlignment
{
public:
    int mPrompt = 0;
    int mFormula = 0;
    int mInput = 0;
    int mUnit = 0;
    int mButtons = 0;

    /// Widens the columns to what a line wants.
    void add(const ZelQtCalcVarInput *line, bool withPrompt);
    /// To be called when all lines were added: a group without inputs keeps room for some.
    void finish();
    void apply(ZelQtCalcVarInput *line, bool withPrompt) const;
    /// The columns left of the unit, which the line then hides.
    void applyToHeader(ZelQtCalcVarInput *line, bool withPrompt) const;

private:
    static void relayout(ZelQtCalcVarInput *line);
};
