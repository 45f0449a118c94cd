#pragma once

/// Decimals of value fields and cells unless told otherwise; the standard width follows it.
inline constexpr short zelQtDefaultDecimals = 4;
