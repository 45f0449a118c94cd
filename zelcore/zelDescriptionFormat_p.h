#pragma once

#include <string_view>

// The hand-written half of the page about descriptions: descriptionFormat.md, compiled in.
std::string_view zelDescriptionFormatText();
