// Canvas: each shape in as few calls as GDI allows.
#include "controls/Canvas.h"

#include "base/Handles.h"
#include "controls/Pixels.h"
#include "controls/Selection.h"

#include <algorithm>

namespace controls {

void Canvas::Ground(COLORREF color)
{
    ground_ = color;
    Fill(client_, color);
}

void Canvas::Fill(const RECT& area, COLORREF color)
{
    const base::BrushHandle brush(CreateSolidBrush(color));
    if (brush)
        FillRect(dc_, &area, brush.Get());
}

void Canvas::Outline(const RECT& box, COLORREF color)
{
    const base::BrushHandle brush(CreateSolidBrush(color));
    if (brush)
        FrameRect(dc_, &box, brush.Get());
}

void Canvas::Bevel(const RECT& box, COLORREF topLeft, COLORREF bottomRight)
{
    const auto lines = [this](const RECT& first, const RECT& second, COLORREF color) {
        const base::BrushHandle brush(CreateSolidBrush(color));
        if (!brush)
            return;
        FillRect(dc_, &first, brush.Get());
        FillRect(dc_, &second, brush.Get());
    };
    const auto [left, top, right, bottom] = box;
    lines({left, top, right - 1, top + 1}, {left, top, left + 1, bottom - 1}, topLeft);
    lines({right - 1, top, right, bottom}, {left, bottom - 1, right, bottom}, bottomRight);
}

void Canvas::RoundOutline(const RECT& box, int diameter, COLORREF color)
{
    const base::PenHandle pen(CreatePen(PS_SOLID, 1, color));
    if (!pen)
        return;
    const Selection line(dc_, pen.Get());
    const Selection inside(dc_, GetStockObject(NULL_BRUSH));
    RoundRect(dc_, box.left, box.top, box.right, box.bottom, diameter, diameter);
}

void Canvas::Edge(const RECT& box, UINT edge, UINT flags)
{
    RECT left = box;
    DrawEdge(dc_, &left, edge, flags);
}

void Canvas::Gradient(const RECT& area, COLORREF first, COLORREF last, std::int32_t direction)
{
    DrawGradient(dc_, area.left, area.top, area.right - area.left, area.bottom - area.top, first, last, direction);
}

void Canvas::Rows(int first, const std::vector<COLORREF>& colors)
{
    Pixels pixels(Width(), static_cast<int>(colors.size()));
    for (int row = 0; row < pixels.height; ++row)
        std::fill_n(pixels.Row(row), pixels.width, AsPixel(colors[static_cast<std::size_t>(row)]));
    DrawPixels(dc_, 0, first, pixels);
}

void Canvas::Corners(int inset, COLORREF color)
{
    for (const int x : {inset, Width() - 1 - inset}) {
        for (const int y : {inset, Height() - 1 - inset})
            Pixel(x, y, color);
    }
}

void Canvas::Checker(COLORREF color)
{
    const LOGBRUSH ink{BS_SOLID, color, 0};
    const base::PenHandle pen(ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &ink, 0, nullptr));
    if (!pen)
        return;
    const Selection dots(dc_, pen.Get());
    for (int row = 0; row < Height(); ++row) {
        MoveToEx(dc_, row % 2, row, nullptr);
        LineTo(dc_, Width(), row);
    }
}

void Canvas::Focus(const RECT& box)
{
    // DrawFocusRect mixes the DC's text and background colours into what is there.
    SetTextColor(dc_, RGB(0, 0, 0));
    SetBkColor(dc_, RGB(255, 255, 255));
    DrawFocusRect(dc_, &box);
}

}  // namespace controls
