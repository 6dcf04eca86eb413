// ColorArithmetic: shades, channel by channel, of colours 0x00BBGGRR.
#pragma once

#include <windows.h>

namespace controls {

/// Subtracts `amount` (-255..255) from each channel; the result stays within 0..255.
[[nodiscard]] COLORREF Darken(COLORREF color, int amount);

/// Adds `amount` to each channel; the result stays within 0..255.
[[nodiscard]] COLORREF Shift(COLORREF color, int amount);

/// Adds `fraction` of the full range to each channel, rounded to nearest; negative fractions darken.
[[nodiscard]] COLORREF ShiftByFraction(COLORREF color, double fraction);

/// Mixes toward white by `amount` of 255.
[[nodiscard]] COLORREF Tint(COLORREF color, int amount);

/// The mean of both, rounded to nearest.
[[nodiscard]] COLORREF Mix(COLORREF first, COLORREF second);

/// By what the eye makes of red, green and blue.
[[nodiscard]] bool IsLighter(COLORREF color, COLORREF than);

}  // namespace controls
