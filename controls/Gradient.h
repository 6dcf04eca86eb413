// Gradient: ramps of colour over a rectangle.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace controls {

/// `steps + 1` colours from `first` to `last`, by integer division in each channel. With 0 steps one colour: the mean of both.
[[nodiscard]] std::vector<COLORREF> ColorRamp(COLORREF first, COLORREF last, int steps);

/// Fills the rectangle with a gradient. `direction` 2: from `first` at the left; 4: from `first` at the top; 3 and 5: out and back in
/// two halves, side by side and one above the other; all others: from `first` at the bottom left to `last` at the top right.
/// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-stretchdibits
void DrawGradient(HDC dc, int left, int top, int width, int height, COLORREF first, COLORREF last, std::int32_t direction);

}  // namespace controls
