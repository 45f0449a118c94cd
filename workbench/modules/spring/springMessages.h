#pragma once

#include "springCalculation.h"
#include "zelCalcRun.h"

#include <string>
#include <string_view>

/// What the user reads about a finding.
struct SpringMessageText
{
    std::string_view mCode; ///< for programs and tests: "coilTooSmall"
    std::string_view mGerman; ///< UTF-8, %1 and so on for the arguments; spring.tsv translates it
};

/// The text of a kind of message.
const SpringMessageText &springMessageText(SpringMessage message);

/// The numbers in the text, with units. `values` is null where the spring was refused.
ZelCalcRun::Arguments springMessageArguments(const SpringFinding &finding, const SpringInput &input,
                                             const SpringValues *values);
