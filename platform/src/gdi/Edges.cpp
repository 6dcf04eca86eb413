// Edges: raised, sunken, etched, flat; and the dots of the focus.
#include "platform/src/gdi/Edges.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

using namespace platform;

namespace platform {

namespace {

/// System colours of a line: that of its left and top side, and that of its right and bottom side.
struct EdgeColors {
    int leftTop;
    int rightBottom;
};

EdgeColors OuterColors(UINT edge, UINT flags)
{
    if (flags & BF_MONO)
        return {COLOR_WINDOWFRAME, COLOR_WINDOWFRAME};
    if (flags & BF_FLAT)
        return {COLOR_BTNSHADOW, COLOR_BTNSHADOW};
    if (edge & BDR_RAISEDOUTER)
        return {flags & BF_SOFT ? COLOR_BTNHIGHLIGHT : COLOR_3DLIGHT, COLOR_3DDKSHADOW};
    return flags & BF_SOFT ? EdgeColors{COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT} : EdgeColors{COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT};
}

EdgeColors InnerColors(UINT edge, UINT flags)
{
    if (flags & BF_MONO)
        return {COLOR_WINDOW, COLOR_WINDOW};
    if (flags & BF_FLAT)
        return {COLOR_BTNFACE, COLOR_BTNFACE};
    if (edge & BDR_RAISEDINNER)
        return {flags & BF_SOFT ? COLOR_3DLIGHT : COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW};
    return flags & BF_SOFT ? EdgeColors{COLOR_BTNSHADOW, COLOR_3DLIGHT} : EdgeColors{COLOR_3DDKSHADOW, COLOR_3DLIGHT};
}

/// One line along the asked sides. The corners at top right and bottom left belong to the right and bottom sides.
void PaintSides(DeviceContext& dc, RECT& rectangle, EdgeColors colors, UINT sides)
{
    const Graphics& graphics = SimPc::Current().Get<Graphics>();
    const RECT r = dc.ToImage(rectangle);
    const COLORREF leftTop = graphics.SystemColor(colors.leftTop);
    const COLORREF rightBottom = graphics.SystemColor(colors.rightBottom);
    if (sides & BF_LEFT)
        dc.Fill(RECT{r.left, r.top, r.left + 1, r.bottom}, leftTop);
    if (sides & BF_TOP)
        dc.Fill(RECT{r.left, r.top, r.right, r.top + 1}, leftTop);
    if (sides & BF_RIGHT)
        dc.Fill(RECT{r.right - 1, r.top, r.right, r.bottom}, rightBottom);
    if (sides & BF_BOTTOM)
        dc.Fill(RECT{r.left, r.bottom - 1, r.right, r.bottom}, rightBottom);
    rectangle.left += sides & BF_LEFT ? 1 : 0;
    rectangle.top += sides & BF_TOP ? 1 : 0;
    rectangle.right -= sides & BF_RIGHT ? 1 : 0;
    rectangle.bottom -= sides & BF_BOTTOM ? 1 : 0;
}

}  // namespace

void PaintEdge(DeviceContext& dc, RECT& rectangle, UINT edge, UINT flags)
{
    RECT inner = rectangle;
    const UINT outer = edge & (BDR_RAISEDOUTER | BDR_SUNKENOUTER);
    const UINT inside = edge & (BDR_RAISEDINNER | BDR_SUNKENINNER);
    if (outer)
        PaintSides(dc, inner, OuterColors(edge, flags), flags);
    if (inside)
        PaintSides(dc, inner, InnerColors(edge, flags), flags);
    if (flags & BF_MIDDLE)
        dc.Fill(dc.ToImage(inner), SimPc::Current().Get<Graphics>().SystemColor(flags & BF_MONO ? COLOR_WINDOW : COLOR_BTNFACE));
    if (flags & BF_ADJUST)
        rectangle = inner;
}

void PaintFocusRect(DeviceContext& dc, const RECT& rectangle)
{
    const RECT r = dc.ToImage(rectangle);
    const POINT origin = dc.ToImage(POINT{0, 0});
    const Region outline = Region(r).Subtract(Region(RECT{r.left + 1, r.top + 1, r.right - 1, r.bottom - 1}));
    for (const RECT& side : outline.Rectangles())
        dc.ForEach(side, [&](int x, int y, std::uint32_t& pixel) {
            if ((x - origin.x + y - origin.y) % 2 == 0)
                pixel ^= 0xFFFFFF;
        });
}

}  // namespace platform

BOOL WINAPI DrawEdge(HDC dc, LPRECT rectangle, UINT edge, UINT flags)
{
    SIM_NOTE(dc, rectangle, edge, flags);
    const auto context = FindDc(dc);
    if (!context || !rectangle)
        return FALSE;
    PaintEdge(*context, *rectangle, edge, flags);
    return TRUE;
}

BOOL WINAPI DrawFocusRect(HDC dc, const RECT* rectangle)
{
    SIM_NOTE(dc, rectangle);
    const auto context = FindDc(dc);
    if (!context || !rectangle)
        return FALSE;
    PaintFocusRect(*context, *rectangle);
    return TRUE;
}
