// Gradient: a ramp is laid out as a 32-bit bottom-up image and drawn at once.
#include "controls/Gradient.h"

#include "base/Handles.h"
#include "controls/ColorArithmetic.h"
#include "controls/Pixels.h"
#include "host/DibInfo.h"

#include <algorithm>

namespace controls {

namespace {

/// The image stands on its head, as GDI's images do: its first row is the lowest. Every row is a part of the ramp or one of its colours.
void DrawRamp(HDC dc, int left, int top, int width, int height, const std::vector<COLORREF>& ramp, std::int32_t direction)
{
    std::vector<std::uint32_t> steps(ramp.size());
    std::ranges::transform(ramp, steps.begin(), AsPixel);
    Pixels pixels(width, height);
    for (int row = 0; row < height; ++row) {
        if (direction == GradientVertical)
            std::fill_n(pixels.Row(row), width, steps[static_cast<std::size_t>(height - 1 - row)]);
        else
            std::copy_n(steps.begin() + (direction == GradientHorizontal ? 0 : row), width, pixels.Row(row));
    }
    const BITMAPINFO info = host::DibInfo(width, height);
    StretchDIBits(dc, left, top, width, height, 0, 0, width, height, pixels.values.data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

}  // namespace

std::vector<COLORREF> ColorRamp(COLORREF first, COLORREF last, int steps)
{
    if (steps <= 0)
        return {Mix(first, last)};
    const auto between = [steps](int from, int to, int step) { return from + (to - from) * step / steps; };
    std::vector<COLORREF> ramp;
    for (int step = 0; step <= steps; ++step) {
        ramp.push_back(RGB(between(GetRValue(first), GetRValue(last), step), between(GetGValue(first), GetGValue(last), step),
                           between(GetBValue(first), GetBValue(last), step)));
    }
    return ramp;
}

void DrawGradient(HDC dc, int left, int top, int width, int height, COLORREF first, COLORREF last, std::int32_t direction)
{
    if (width <= 0 || height <= 0)
        return;
    if (first == last) {
        const base::BrushHandle brush(CreateSolidBrush(first));
        const RECT area{left, top, left + width, top + height};
        FillRect(dc, &area, brush.Get());
        return;
    }
    if (direction == GradientMirrored) {
        const int half = width / 2;
        DrawGradient(dc, left, top, half, height, first, last, GradientHorizontal);
        DrawGradient(dc, left + half, top, width - half, height, last, first, GradientHorizontal);
    } else if (direction == GradientMirroredVertical) {
        const int half = height / 2;
        DrawGradient(dc, left, top, width, half, first, last, GradientVertical);
        DrawGradient(dc, left, top + half, width, height - half, last, first, GradientVertical);
    } else {
        const int steps = direction == GradientHorizontal ? width - 1 : direction == GradientVertical ? height - 1 : width + height - 2;
        DrawRamp(dc, left, top, width, height, ColorRamp(first, last, steps), direction);
    }
}

}  // namespace controls
