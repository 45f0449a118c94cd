#pragma once

#include "zelCondition.h"

/// A flat program for a stack of numbers. A truth value is 0 or 1; NaN stands for what is unset or
/// divided by 0, and counts as false.
struct ZelCondition::Program
{
    static constexpr int maxStack = 32;

    enum class Code {
        Constant,
        Number, ///< of a variable
        Flag,
        Entry, ///< id of the entry of a list
        Set,
        Entered,
        Rows,
        TextIs, ///< variable against mTexts[mText]
        TextIsNot,
        TextsAre, ///< variable against mOther
        TextsAreNot,
        Or,
        And,
        Not,
        Equal,
        NotEqual,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
        Add,
        Subtract,
        Multiply,
        Divide,
        Negate
    };

    struct Step
    {
        Code mCode = Code::Constant;
        int mComponent = 0;
        const ZelUIVar *mVariable = nullptr;
        const ZelUIVar *mOther = nullptr;
        double mNumber = 0;
        size_t mText = 0;
    };

    std::vector<Step> mSteps;
    std::vector<zelWString> mTexts;
};
