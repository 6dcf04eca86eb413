// Moving blocks of pixels, filling with the brush, single pixels.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"
#include "platform/src/gdi/Stretch.h"

#include <windows.h>

#include <cstdlib>

using namespace platform;

namespace platform {

namespace {

/// Steps from the source's first edge that belong to the centre of the pixel `step` from the target's first edge. Sizes are negative for
/// mirrored sides.
int SourceStep(int step, int targetSize, int sourceSize)
{
    const std::int64_t numerator = (2LL * step + 1) * sourceSize * (targetSize < 0 ? -1 : 1);
    const std::int64_t denominator = 2LL * std::abs(targetSize);
    return static_cast<int>(numerator >= 0 ? numerator / denominator : -((-numerator + denominator - 1) / denominator));
}

/// Raster operations without a source: the pattern is the brush.
bool FillByRop(DeviceContext& dc, const RECT& logical, DWORD rop)
{
    const Brush& brush = *dc.state.brush.Get();
    const bool usesPattern = (rop >> 16 & 0x0F) != (rop >> 20 & 0x0F);
    if (usesPattern && brush.style == BS_NULL)
        return true;
    dc.ForEach(Ordered(dc.ToImage(logical)),
               [&](int x, int y, std::uint32_t& pixel) { pixel = ApplyRop3(rop, usesPattern ? dc.BrushPixel(brush, x, y) : 0, 0, pixel); });
    return true;
}

bool UsesSource(DWORD rop)
{
    return (rop >> 16 & 0x33) != (rop >> 18 & 0x33);
}

}  // namespace

void StretchPixels(DeviceContext& dc, RECT target, const Image& source, RECT from, DWORD rop, COLORREF sourceBackground)
{
    const int width = target.right - target.left;
    const int height = target.bottom - target.top;
    const int fromWidth = from.right - from.left;
    const int fromHeight = from.bottom - from.top;
    if (width == 0 || height == 0 || fromWidth == 0 || fromHeight == 0)
        return;
    const Brush& brush = *dc.state.brush.Get();
    // Source and target may overlap in one image, so the source is read before anything is written.
    const Image before = &source == &dc.Target() ? source : Image();
    const Image& pixels = &source == &dc.Target() ? before : source;
    dc.ForEach(Ordered(target), [&](int x, int y, std::uint32_t& pixel) {
        const int column = from.left + SourceStep(x - target.left, width, fromWidth);
        const int row = from.top + SourceStep(y - target.top, height, fromHeight);
        if (!pixels.Holds(column, row))
            return;
        std::uint32_t value = pixels.At(column, row);
        if (pixels.bitsPerPixel == 1 && !dc.IsMonochrome())
            value = SwapRedBlue(value ? dc.state.backColor : dc.state.textColor);
        else if (pixels.bitsPerPixel != 1 && dc.IsMonochrome())
            value = SwapRedBlue(value) == sourceBackground ? 0xFFFFFF : 0;
        pixel = ApplyRop3(rop, brush.style == BS_NULL ? pixel : dc.BrushPixel(brush, x, y), value, pixel);
    });
}

}  // namespace platform

BOOL WINAPI BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int xSource, int ySource, DWORD rop)
{
    SIM_CALL(FALSE, ERROR_INVALID_HANDLE, dc, x, y, width, height, source, xSource, ySource, rop);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    if (!UsesSource(rop))
        return FillByRop(*context, Block(x, y, width, height), rop);
    const auto from = FindDc(source);
    if (!from)
        return FALSE;
    StretchPixels(*context, context->ToImage(Block(x, y, width, height)), from->Target(),
                  from->ToImage(Block(xSource, ySource, width, height)), rop, from->state.backColor);
    return TRUE;
}

COLORREF WINAPI SetPixel(HDC dc, int x, int y, COLORREF color)
{
    SIM_NOTE(dc, x, y, color);
    const auto context = FindDc(dc);
    if (!context)
        return CLR_INVALID;
    const POINT at = context->ToImage(POINT{x, y});
    if (!context->Clip().Contains(at))
        return CLR_INVALID;
    const std::uint32_t pixel = context->PixelOf(color);
    context->Target().At(at.x, at.y) = pixel;
    return SwapRedBlue(pixel);
}

BOOL WINAPI SetPixelV(HDC dc, int x, int y, COLORREF color)
{
    SIM_NOTE(dc, x, y, color);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    const POINT at = context->ToImage(POINT{x, y});
    context->Put(at.x, at.y, context->PixelOf(color), R2_COPYPEN);
    return TRUE;
}

COLORREF WINAPI GetPixel(HDC dc, int x, int y)
{
    SIM_NOTE(dc, x, y);
    const auto context = FindDc(dc);
    if (!context)
        return CLR_INVALID;
    const POINT at = context->ToImage(POINT{x, y});
    return context->Clip().Contains(at) ? SwapRedBlue(context->Target().At(at.x, at.y)) : CLR_INVALID;
}
