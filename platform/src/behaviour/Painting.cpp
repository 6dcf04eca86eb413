#include "platform/src/behaviour/Painting.h"

#include "platform/src/behaviour/Inner.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Objects.h"
#include "platform/src/window/Visibility.h"
#include "platform/src/window/WindowDcs.h"

#include <algorithm>

namespace platform {

namespace {

void EraseBackground(Window& window, HDC dc)
{
    window.eraseWaits = false;
    const HWND handle = window.handle;
    const bool erased = inner::SendMessage(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0;
    if (!erased && WindowOf(handle))
        window.eraseWaits = true;
}

}  // namespace

void PaintFrameAndBackground(Window& window)
{
    const WindowPtr keep = window.shared_from_this();
    if (!window.IsShown())
        return;
    if (std::exchange(window.frameWaits, false))
        inner::SendMessage(window.handle, WM_NCPAINT, 1, 0);
    if (!window.eraseWaits || !WindowOf(window.handle))
        return;
    const Region area = window.invalid.Offset(window.frame.left, window.frame.top);
    auto& dcs = SimPc::Current().Get<WindowDcs>();
    const HDC dc = dcs.Open(window, false, (window.style & WS_CLIPCHILDREN) != 0, &area);
    EraseBackground(window, dc);
    dcs.Close(dc);
}

void PaintNow(Window& window, bool children)
{
    const WindowPtr keep = window.shared_from_this();
    if (NeedsPaint(window))
        inner::SendMessage(window.handle, WM_PAINT, 0, 0);
    if (!children)
        return;
    for (const WindowPtr& child : WindowTree::Children(window))
        if (WindowOf(child->handle))
            PaintNow(*child, true);
}

namespace inner {

/// Conformance tests Painting.Invalid_IsCollectedPaintedOnceAndThenValid and Children_AreInvalidWithTheirParentUnlessItClipsThem.
BOOL RedrawWindow(HWND handle, const RECT* rectangle, const Region* region, UINT flags)
{
    if (!handle) {  // The whole screen.
        for (const WindowPtr& window : WindowTree::Children(Tree().Desktop()))
            if (WindowOf(window->handle))
                inner::RedrawWindow(window->handle, nullptr, nullptr, flags | RDW_ALLCHILDREN);
        return TRUE;
    }
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    Region area((flags & RDW_FRAME) || !(flags & RDW_INVALIDATE) ? window->frame : window->client);
    if (region)
        area = region->Offset(window->client.left, window->client.top);
    else if (rectangle)
        area = Region(Shifted(*rectangle, window->client.left, window->client.top));
    if (flags & (RDW_INVALIDATE | RDW_VALIDATE))
        Mark(*window, area, flags);
    if (flags & (RDW_INTERNALPAINT | RDW_NOINTERNALPAINT))
        window->internalPaint = (flags & RDW_INTERNALPAINT) != 0;
    if (flags & RDW_UPDATENOW)
        PaintNow(*window, !(flags & RDW_NOCHILDREN));
    else if (flags & RDW_ERASENOW)
        PaintFrameAndBackground(*window);
    return TRUE;
}

void InvalidateRect(HWND window, const RECT* rectangle, bool erase)
{
    inner::RedrawWindow(window, rectangle, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0));
}

void ValidateRect(HWND window, const RECT* rectangle)
{
    inner::RedrawWindow(window, rectangle, nullptr, RDW_VALIDATE | (rectangle ? 0 : RDW_NOERASE));
}

void UpdateWindow(HWND window)
{
    inner::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

HDC BeginPaint(HWND handle, PAINTSTRUCT& paint)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return nullptr;
    window->internalPaint = false;
    if (std::exchange(window->frameWaits, false))
        SendMessage(handle, WM_NCPAINT, 1, 0);
    if (!WindowOf(handle))
        return nullptr;
    const Region area = std::exchange(window->invalid, Region()).Offset(window->frame.left, window->frame.top);
    const bool clips = (window->style & WS_CLIPCHILDREN) != 0;
    const HDC dc = SimPc::Current().Get<WindowDcs>().Open(*window, false, clips, &area);
    paint = PAINTSTRUCT{};
    paint.hdc = dc;
    paint.rcPaint = Shifted(area.Intersect(VisibleRegion(*window, false, clips)).Bounds(), -window->client.left, -window->client.top);
    if (paint.rcPaint.right <= paint.rcPaint.left)
        paint.rcPaint = RECT{};
    if (window->eraseWaits)
        EraseBackground(*window, dc);
    paint.fErase = std::exchange(window->eraseWaits, false);
    return dc;
}

void EndPaint(HWND, const PAINTSTRUCT& paint)
{
    SimPc::Current().Get<WindowDcs>().Close(paint.hdc);
}

}  // namespace inner

}  // namespace platform

using namespace platform;

HDC WINAPI BeginPaint(HWND window, LPPAINTSTRUCT paint)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, window);
    return inner::BeginPaint(window, *paint);
}

BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint)
{
    SIM_NOTE(window);
    inner::EndPaint(window, *paint);
    return TRUE;
}

BOOL WINAPI InvalidateRect(HWND window, const RECT* rectangle, BOOL erase)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, rectangle, erase);
    return inner::RedrawWindow(window, rectangle, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0));
}

BOOL WINAPI ValidateRect(HWND window, const RECT* rectangle)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, rectangle);
    inner::ValidateRect(window, rectangle);
    return WindowOf(window) != nullptr;
}

BOOL WINAPI RedrawWindow(HWND window, const RECT* rectangle, HRGN region, UINT flags)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, rectangle, region, flags);
    const auto area = SimPc::Current().Handles().Find<RegionObject>(region);
    return inner::RedrawWindow(window, rectangle, area ? &area->region : nullptr, flags);
}

BOOL WINAPI UpdateWindow(HWND window)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window);
    return inner::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

BOOL WINAPI GetUpdateRect(HWND window, LPRECT rectangle, BOOL erase)
{
    SIM_NOTE(window, erase);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return FALSE;
    const RECT screen = Shifted(found->invalid.Bounds(), found->frame.left, found->frame.top);
    const Region inClient = Region(screen).Intersect(Region(found->client));
    const bool any = !found->invalid.IsEmpty() && !inClient.IsEmpty();
    if (rectangle)
        *rectangle = any ? Shifted(inClient.Bounds(), -found->client.left, -found->client.top) : RECT{};
    if (erase)
        PaintFrameAndBackground(*found);
    return any;
}
