// Gradient: ramps of colour over a rectangle.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace controls {

enum GradientDirectionValue : std::int32_t {
    GradientDiagonal = 1,
    GradientHorizontal = 2,
    GradientMirrored = 3,  // two halves side by side, out and back
    GradientVertical = 4,
    GradientMirroredVertical = 5,  // one half above the other
    GradientDiagonal6 = 6,         // the same as 1
    GradientDiagonal7 = 7,
};

/// `steps + 1` colours from `first` to `last`, by integer division in each channel. With 0 steps one colour: the mean of both.
[[nodiscard]] std::vector<COLORREF> ColorRamp(COLORREF first, COLORREF last, int steps);

/// Fills the rectangle with a gradient. `direction` 2 begins with `first` at the left and 4 at the top; 3 and 5 go out and back; all
/// others begin at the bottom left and end with `last` at the top right.
/// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-stretchdibits
void DrawGradient(HDC dc, int left, int top, int width, int height, COLORREF first, COLORREF last, std::int32_t direction);

}  // namespace controls
