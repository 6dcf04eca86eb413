// Lines: thin pens pixel by pixel, wide pens as a brush head that is moved along.
#include "platform/src/gdi/Lines.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

#include <cstdlib>

using namespace platform;

namespace platform {

namespace {

/// Whether the pen leaves a mark at its `step`-th pixel. Dots are three pixels long, dashes eighteen and their gaps six.
bool Marks(int style, int step)
{
    switch (style) {
        case PS_DOT:
            return step % 6 < 3;
        case PS_DASH:
            return step % 24 < 18;
        case PS_ALTERNATE:
            return step % 2 == 0;
        default:
            return true;
    }
}

/// Calls `visit(point, step)` for each pixel from `from` on, `to` excluded.
template <class Visit>
void Walk(POINT from, POINT to, Visit visit)
{
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const bool steep = std::abs(dy) > std::abs(dx);
    const int length = steep ? std::abs(dy) : std::abs(dx);
    const int minor = steep ? dx : dy;
    for (int step = 0; step < length; ++step) {
        // A pixel's centre that lies exactly between two rows goes to the upper one, between two columns to the left one, in whichever
        // direction one draws.
        const int doubled = 2 * minor * step;
        const int offset = doubled >= 0 ? (doubled + length - 1) / (2 * length) : -((-doubled + length) / (2 * length));
        if (steep)
            visit(POINT{from.x + offset, from.y + (dy < 0 ? -step : step)}, step);
        else
            visit(POINT{from.x + (dx < 0 ? -step : step), from.y + offset}, step);
    }
}

Region PenHead(POINT at, int width)
{
    const LONG left = at.x - width / 2;
    const LONG top = at.y - width / 2;
    return Region::Ellipse({left, top, left + width, top + width});
}

}  // namespace

void StrokeLine(DeviceContext& dc, const Pen& pen, POINT from, POINT to)
{
    if (pen.style == PS_NULL)
        return;
    const int rop2 = dc.state.rop2;
    const std::uint32_t pixel = dc.PixelOf(pen.color);
    if (pen.width <= 1) {
        const bool fillsGaps = dc.state.backMode == OPAQUE && pen.style != PS_ALTERNATE;
        Walk(from, to, [&](POINT at, int step) {
            if (Marks(pen.style, step))
                dc.Put(at.x, at.y, pixel, rop2);
            else if (fillsGaps)
                dc.Put(at.x, at.y, dc.PixelOf(dc.state.backColor), rop2);
        });
        return;
    }
    Region trace = PenHead(to, pen.width);
    Walk(from, to, [&](POINT at, int) { trace = trace.Union(PenHead(at, pen.width)); });
    Brush brush;
    brush.color = pen.color;
    dc.Fill(trace, brush, rop2);
}

void StrokeOutline(DeviceContext& dc, const Pen& pen, const Region& region)
{
    if (pen.style == PS_NULL)
        return;
    Region inside = region;
    for (int step = 0; step < pen.width; ++step) {
        const Region all = inside;
        for (const POINT move : {POINT{1, 0}, POINT{-1, 0}, POINT{0, 1}, POINT{0, -1}})
            inside = inside.Intersect(all.Offset(move.x, move.y));
    }
    Brush brush;
    brush.color = pen.color;
    dc.Fill(region.Subtract(inside), brush, dc.state.rop2);
}

}  // namespace platform

BOOL WINAPI MoveToEx(HDC dc, int x, int y, LPPOINT before)
{
    SIM_NOTE(dc, x, y);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    if (before)
        *before = context->state.position;
    context->state.position = {x, y};
    return TRUE;
}

BOOL WINAPI LineTo(HDC dc, int x, int y)
{
    SIM_NOTE(dc, x, y);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    StrokeLine(*context, *context->state.pen.Get(), context->ToImage(context->state.position), context->ToImage(POINT{x, y}));
    context->state.position = {x, y};
    return TRUE;
}
