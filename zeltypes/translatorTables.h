#pragma once

#include <string_view>

// The built-in tables of the two pools: number and nine texts a line, see Translator.
std::string_view zelPoolTable();
std::string_view zelPoolUiTable();
