#include "platform/src/gdi/Canvas.h"

#include "platform/src/gdi/Edges.h"
#include "platform/src/gdi/Fills.h"
#include "platform/src/gdi/Icons.h"
#include "platform/src/gdi/Lines.h"
#include "platform/src/gdi/Text.h"

namespace platform {

Canvas::Canvas(HDC dc) : dc_(SimPc::Current().Handles().Find<DeviceContext>(dc)) {}

Canvas::Canvas(std::shared_ptr<Image> pixels, POINT origin, const Region& visible)
    : dc_(std::make_shared<DeviceContext>(SimPc::Current().Get<Graphics>(), std::move(pixels), origin, visible, nullptr))
{
}

Canvas::~Canvas() = default;

void Canvas::Fill(const RECT& rectangle, COLORREF color)
{
    if (dc_)
        dc_->Fill(dc_->ToImage(rectangle), color);
}

void Canvas::Fill(const RECT& rectangle, HBRUSH brush)
{
    if (const auto found = FindBrush(brush); dc_ && found)
        dc_->Fill(Region(dc_->ToImage(rectangle)), *found, R2_COPYPEN);
}

void Canvas::Outline(const RECT& rectangle, COLORREF color)
{
    Brush brush;
    brush.color = color;
    if (dc_)
        PaintFrame(*dc_, rectangle, brush);
}

void Canvas::Line(POINT from, POINT to, COLORREF color)
{
    Pen pen;
    pen.color = color;
    if (dc_)
        StrokeLine(*dc_, pen, dc_->ToImage(from), dc_->ToImage(to));
}

void Canvas::Pixel(POINT point, COLORREF color)
{
    if (!dc_)
        return;
    const POINT at = dc_->ToImage(point);
    dc_->Put(at.x, at.y, dc_->PixelOf(color), R2_COPYPEN);
}

void Canvas::Edge(RECT& rectangle, UINT edge, UINT flags)
{
    if (dc_)
        PaintEdge(*dc_, rectangle, edge, flags);
}

void Canvas::FocusRect(const RECT& rectangle)
{
    if (dc_)
        PaintFocusRect(*dc_, rectangle);
}

void Canvas::Icon(const platform::Icon& icon, int x, int y, int width, int height)
{
    if (dc_)
        PaintIcon(*dc_, icon, {x, y, x + width, y + height});
}

int Canvas::Text(std::u16string_view text, RECT& rectangle, UINT format)
{
    return dc_ ? DrawTextIn(*dc_, text, rectangle, format, dc_->state.textColor) : 0;
}

SIZE Canvas::Measure(std::u16string_view text) const
{
    if (!dc_)
        return {0, 0};
    const Typeface face = TypefaceOf(*dc_);
    return {face.Width(text), face.Height()};
}

void Canvas::Font(HFONT font)
{
    if (const auto found = SimPc::Current().Handles().Find<platform::Font>(font); dc_ && found)
        dc_->state.font = Selected<platform::Font>(font, found);
}

void Canvas::TextColor(COLORREF color)
{
    if (dc_)
        dc_->state.textColor = color;
}

void Canvas::BackColor(COLORREF color)
{
    if (dc_)
        dc_->state.backColor = color;
}

void Canvas::BackMode(int mode)
{
    if (dc_)
        dc_->state.backMode = mode;
}

}  // namespace platform
