// Gradient: a ramp is laid out as a 32-bit bottom-up image and drawn at once.
#include "controls/Gradient.h"

#include "base/Handles.h"
#include "controls/ColorArithmetic.h"

namespace controls {

namespace {

constexpr std::int32_t horizontal = 2;
constexpr std::int32_t mirroredHorizontal = 3;
constexpr std::int32_t vertical = 4;
constexpr std::int32_t mirroredVertical = 5;

/// A pixel of a 32-bit image has its channels the other way round than a COLORREF.
std::uint32_t AsPixel(COLORREF color)
{
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 | static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

void DrawRamp(HDC dc, int left, int top, int width, int height, const std::vector<COLORREF>& ramp, std::int32_t direction)
{
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            const int place = direction == horizontal ? column : direction == vertical ? height - 1 - row : column + row;
            pixels.push_back(AsPixel(ramp[static_cast<std::size_t>(place)]));
        }
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    StretchDIBits(dc, left, top, width, height, 0, 0, width, height, pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
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
    if (direction == mirroredHorizontal) {
        const int half = width / 2;
        DrawGradient(dc, left, top, half, height, first, last, horizontal);
        DrawGradient(dc, left + half, top, width - half, height, last, first, horizontal);
    } else if (direction == mirroredVertical) {
        const int half = height / 2;
        DrawGradient(dc, left, top, width, half, first, last, vertical);
        DrawGradient(dc, left, top + half, width, height - half, last, first, vertical);
    } else {
        const int steps = direction == horizontal ? width - 1 : direction == vertical ? height - 1 : width + height - 2;
        DrawRamp(dc, left, top, width, height, ColorRamp(first, last, steps), direction);
    }
}

}  // namespace controls
