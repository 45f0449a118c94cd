#pragma once

#include "zelUIVarKinds.h"

/// Which of several groups of variables is entered; the variables of the other groups are computed.
/// Its entries are the alternatives, the value is the entry's id, from 1 in the order of the
/// description.
class ZELMATH_EXPORT ZelUIVarChoice : public ZelUIVarList
{
public:
    enum By {
        Switch, ///< radio buttons pick; what is not picked is read-only
        Typing ///< typing picks; all stay open, what is not picked has low priority
    };

    explicit ZelUIVarChoice(zelWString name);
    ~ZelUIVarChoice() override;
    /// The initial alternative; the first one when none is given.
    double initialNumber(int component) const override;

    bool contains(short alternative, const ZelUIVar *variable) const;
    /// True when some alternative holds the variable.
    bool contains(const ZelUIVar *variable) const;
    /// True when no variable stands in two alternatives: then a radio button can stand for each.
    bool isDisjoint() const;

    By mBy = Switch;
    /// The variables of each alternative, in the order of mEntries.
    std::vector<std::vector<const ZelUIVar *>> mAlternatives;
};
