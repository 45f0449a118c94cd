#pragma once

/// The colours of the program: those of the style, or white on dark grey.
void setDarkPalette(bool dark);
