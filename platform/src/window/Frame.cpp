#include "platform/src/window/Frame.h"

#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Canvas.h"
#include "platform/src/window/Metrics.h"
#include "platform/src/window/WindowDcs.h"

#include <algorithm>

namespace platform {

namespace {

bool HasCaption(DWORD style)
{
    return (style & WS_CAPTION) == WS_CAPTION;
}

/// Width of the outer border alone, without a sunken edge.
int Border(DWORD style, DWORD exStyle)
{
    if (style & WS_THICKFRAME)
        return Metric(SM_CXSIZEFRAME) + Metric(SM_CXPADDEDBORDER);
    if ((style & WS_DLGFRAME) || (exStyle & WS_EX_DLGMODALFRAME))
        return Metric(SM_CXDLGFRAME);
    return (style & WS_BORDER) || (exStyle & WS_EX_STATICEDGE) ? Metric(SM_CXBORDER) : 0;
}

RECT CaptionOf(const Window& window)
{
    const int border = Border(window.style, window.exStyle);
    const RECT& frame = window.frame;
    return {frame.left + border, frame.top + border, frame.right - border, frame.top + border + Metric(SM_CYCAPTION)};
}

void DrawBoxes(Canvas& canvas, const Window& window, POINT corner, COLORREF color)
{
    const auto place = [&](int box) { return Shifted(CaptionBox(window, box), -corner.x, -corner.y); };
    if (const RECT box = place(HTCLOSE); box.right > box.left) {
        const POINT middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
        canvas.Line({middle.x - 4, middle.y - 4}, {middle.x + 5, middle.y + 5}, color);
        canvas.Line({middle.x - 4, middle.y + 4}, {middle.x + 5, middle.y - 5}, color);
    }
    if (const RECT box = place(HTMINBUTTON); box.right > box.left) {
        const POINT middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
        canvas.Line({middle.x - 4, middle.y}, {middle.x + 5, middle.y}, color);
    }
    if (const RECT box = place(HTMAXBUTTON); box.right > box.left) {
        const POINT middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
        canvas.Outline({middle.x - 4, middle.y - 4, middle.x + 5, middle.y + 5}, color);
    }
}

void DrawCaption(Canvas& canvas, const Window& window, POINT corner)
{
    const Graphics& graphics = SimPc::Current().Get<Graphics>();
    const COLORREF ink = graphics.SystemColor(window.frameActive ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT);
    RECT caption = Shifted(CaptionOf(window), -corner.x, -corner.y);
    canvas.Fill(caption, graphics.SystemColor(window.frameActive ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    DrawBoxes(canvas, window, corner, ink);
    caption.left += 6;
    caption.right = std::max(caption.left, caption.right - 3 * Metric(SM_CXSIZE));
    canvas.BackMode(TRANSPARENT);
    canvas.TextColor(ink);
    canvas.Text(window.text, caption, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

/// The groove and the thumb: as much of the groove as the page is of the range.
void DrawScrollBars(Canvas& canvas, const Window& window, POINT corner)
{
    const Graphics& graphics = SimPc::Current().Get<Graphics>();
    const RECT client = Shifted(window.client, -corner.x, -corner.y);
    for (const int bar : {SB_HORZ, SB_VERT}) {
        const bool vertical = bar == SB_VERT;
        if (!(window.style & (vertical ? WS_VSCROLL : WS_HSCROLL)))
            continue;
        RECT groove = vertical ? RECT{client.right, client.top, client.right + Metric(SM_CXVSCROLL), client.bottom}
                               : RECT{client.left, client.bottom, client.right, client.bottom + Metric(SM_CYHSCROLL)};
        canvas.Fill(groove, graphics.SystemColor(COLOR_SCROLLBAR));
        const Window::ScrollBar& state = window.scrollBars[bar];
        const int range = std::max(state.maximum - state.minimum + 1, 1);
        LONG& first = vertical ? groove.top : groove.left;
        LONG& last = vertical ? groove.bottom : groove.right;
        const LONG start = first, length = last - first;
        first = start + length * (state.position - state.minimum) / range;
        last = start + length * (state.position - state.minimum + static_cast<int>(state.page)) / range;
        canvas.Fill(groove, graphics.SystemColor(COLOR_BTNSHADOW));
    }
}

}  // namespace

RECT FrameWidths(DWORD style, DWORD exStyle)
{
    const int edge = Border(style, exStyle) + ((exStyle & WS_EX_CLIENTEDGE) ? Metric(SM_CXEDGE) : 0);
    return {edge, edge + (HasCaption(style) ? Metric(SM_CYCAPTION) : 0), edge, edge};
}

RECT ClientInside(const RECT& frame, DWORD style, DWORD exStyle)
{
    const RECT widths = FrameWidths(style, exStyle);
    RECT client{frame.left + widths.left, frame.top + widths.top, frame.right - widths.right, frame.bottom - widths.bottom};
    if (style & WS_VSCROLL && client.right - client.left >= Metric(SM_CXVSCROLL))
        client.right -= Metric(SM_CXVSCROLL);
    if (style & WS_HSCROLL && client.bottom - client.top >= Metric(SM_CYHSCROLL))
        client.bottom -= Metric(SM_CYHSCROLL);
    client.right = std::max(client.left, client.right);
    client.bottom = std::max(client.top, client.bottom);
    return client;
}

RECT CaptionBox(const Window& window, int box)
{
    if (!HasCaption(window.style) || !(window.style & WS_SYSMENU))
        return {};
    const bool boxes = (window.style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0;
    const int fromRight = box == HTCLOSE ? 0 : box == HTMAXBUTTON ? 1 : 2;
    if (fromRight > 0 && !boxes)
        return {};
    const RECT caption = CaptionOf(window);
    const int width = Metric(SM_CXSIZE);
    const LONG right = caption.right - fromRight * width;
    return {std::max(caption.left, right - width), caption.top, std::max(caption.left, right), caption.bottom};
}

int HitFrame(const Window& window, POINT point)
{
    if (!Holds(window.frame, point))
        return HTNOWHERE;
    if (Holds(window.client, point))
        return HTCLIENT;
    const RECT& frame = window.frame;
    const int border = Border(window.style, window.exStyle);
    const RECT inside{frame.left + border, frame.top + border, frame.right - border, frame.bottom - border};
    if (!Holds(inside, point)) {
        if (!(window.style & WS_THICKFRAME))
            return HTBORDER;
        // Sixteen pixels along each edge belong to the corner: a border of a few pixels could hardly be caught there.
        constexpr int corner = 16;
        const bool left = point.x < frame.left + corner, right = point.x >= frame.right - corner;
        if (point.y < inside.top)
            return left ? HTTOPLEFT : right ? HTTOPRIGHT : HTTOP;
        if (point.y >= inside.bottom)
            return left ? HTBOTTOMLEFT : right ? HTBOTTOMRIGHT : HTBOTTOM;
        return point.x < inside.left ? HTLEFT : HTRIGHT;
    }
    if (HasCaption(window.style) && Holds(CaptionOf(window), point)) {
        for (const int box : {HTCLOSE, HTMINBUTTON, HTMAXBUTTON})
            if (Holds(CaptionBox(window, box), point))
                return box;
        return HTCAPTION;
    }
    if (window.style & WS_VSCROLL && point.x >= window.client.right && point.y < window.client.bottom)
        return HTVSCROLL;
    if (window.style & WS_HSCROLL && point.y >= window.client.bottom && point.x < window.client.right)
        return HTHSCROLL;
    return HTBORDER;
}

void PaintFrame(Window& window)
{
    SimPc& pc = SimPc::Current();
    const Graphics& graphics = pc.Get<Graphics>();
    const RECT whole{0, 0, window.Width(), window.Height()};
    const POINT corner{window.frame.left, window.frame.top};
    const Region border = Region(window.frame).Subtract(Region(window.client));
    if (border.IsEmpty())
        return;
    auto& dcs = pc.Get<WindowDcs>();
    const HDC dc = dcs.Open(window, true, false, &border);
    {
        Canvas canvas(dc);
        const int width = Border(window.style, window.exStyle);
        const bool scrolls = (window.style & (WS_VSCROLL | WS_HSCROLL)) != 0;
        if (width > 1 || scrolls)
            canvas.Fill(whole, graphics.SystemColor(width > 1 ? COLOR_ACTIVEBORDER : COLOR_SCROLLBAR));
        RECT edge{width, width, whole.right - width, whole.bottom - width};
        if (HasCaption(window.style)) {
            DrawCaption(canvas, window, corner);
            edge.top += Metric(SM_CYCAPTION);
        }
        if (width > 0)
            canvas.Outline(whole, graphics.SystemColor(COLOR_WINDOWFRAME));
        DrawScrollBars(canvas, window, corner);
        if (window.exStyle & WS_EX_CLIENTEDGE)
            canvas.Edge(edge, EDGE_SUNKEN, BF_RECT);
    }
    dcs.Close(dc);
}

}  // namespace platform

using namespace platform;

BOOL WINAPI AdjustWindowRectEx(LPRECT rectangle, DWORD style, BOOL hasMenu, DWORD exStyle)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, style, hasMenu, exStyle);
    const RECT widths = FrameWidths(style, exStyle);
    rectangle->left -= widths.left;
    rectangle->top -= widths.top + (hasMenu ? Metric(SM_CYMENU) : 0);
    rectangle->right += widths.right;
    rectangle->bottom += widths.bottom;
    return TRUE;
}
