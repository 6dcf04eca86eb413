// Closed shapes: the interior with the brush, the outline with the pen.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Lines.h"

#include <windows.h>

using namespace platform;

namespace {

void Draw(DeviceContext& dc, const Region& shape)
{
    dc.Fill(shape, *dc.state.brush.Get(), dc.state.rop2);
    StrokeOutline(dc, *dc.state.pen.Get(), shape);
}

/// The shape's pixels. A wide pen is centred on the edge, unless it is to stay inside the frame.
RECT PixelsOfShape(const DeviceContext& dc, const RECT& logical)
{
    RECT area = dc.ToImage(Ordered(logical));
    const Pen& pen = *dc.state.pen.Get();
    if (pen.width > 1 && pen.style != PS_INSIDEFRAME && pen.style != PS_NULL) {
        const int before = pen.width / 2;
        const int after = (pen.width - 1) / 2;
        area = {area.left - before, area.top - before, area.right + after, area.bottom + after};
    }
    return area;
}

}  // namespace

BOOL WINAPI Rectangle(HDC dc, int left, int top, int right, int bottom)
{
    SIM_NOTE(dc, left, top, right, bottom);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    RECT area = PixelsOfShape(*context, {left, top, right, bottom});
    // Without an outline the rectangle lacks its last row and column.
    if (context->state.pen->style == PS_NULL) {
        --area.right;
        --area.bottom;
    }
    Draw(*context, Region(area));
    return TRUE;
}

BOOL WINAPI RoundRect(HDC dc, int left, int top, int right, int bottom, int width, int height)
{
    SIM_NOTE(dc, left, top, right, bottom, width, height);
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    Draw(*context, Region::RoundRect(PixelsOfShape(*context, {left, top, right, bottom}), width, height));
    return TRUE;
}
