#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The candidate that is most like a misspelt word: at most a third of its letters differ, capitals
/// count half. Empty when none comes near.
std::string zelNearest(std::string_view word, const std::vector<std::string> &candidates);
