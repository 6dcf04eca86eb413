#include "platform/src/behaviour/Placement.h"

#include "platform/src/behaviour/Inner.h"
#include "platform/src/behaviour/Painting.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Objects.h"
#include "platform/src/input/Focus.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/window/Frame.h"
#include "platform/src/window/Metrics.h"
#include "platform/src/window/Visibility.h"
#include "platform/src/window/WindowDcs.h"

#include <algorithm>

namespace platform {

namespace {

void ShiftTree(Window& window, int dx, int dy)
{
    window.frame = Shifted(window.frame, dx, dy);
    window.client = Shifted(window.client, dx, dy);
    for (Window* child : window.children)
        ShiftTree(*child, dx, dy);
}

bool IsFirst(const Window& window)
{
    return window.parent->children.front() == &window;
}

/// Drops what a request would not change, and adds what activation implies: the window comes to the front.
void Normalize(const Window& window, WINDOWPOS& position, const RECT& target)
{
    const bool shown = (window.style & WS_VISIBLE) != 0;
    const bool activates =
        window.IsTopLevel() && !(position.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) && (shown || position.flags & SWP_SHOWWINDOW);
    if (activates && inner::GetActiveWindow() != window.handle && (position.flags & SWP_NOZORDER)) {
        position.flags &= ~SWP_NOZORDER;
        position.hwndInsertAfter = HWND_TOP;
    }
    if (position.flags & SWP_SHOWWINDOW && shown)
        position.flags &= ~SWP_SHOWWINDOW;
    if (position.flags & SWP_HIDEWINDOW && !shown)
        position.flags &= ~SWP_HIDEWINDOW;
    if (target.right - target.left == window.Width() && target.bottom - target.top == window.Height())
        position.flags |= SWP_NOSIZE;
    if (target.left == window.frame.left && target.top == window.frame.top)
        position.flags |= SWP_NOMOVE;
    if (!(position.flags & SWP_NOZORDER)) {
        if (position.hwndInsertAfter == HWND_TOP && IsFirst(window))
            position.flags |= SWP_NOZORDER;
        if (position.hwndInsertAfter == window.handle)
            position.flags |= SWP_NOZORDER;
    }
}

RECT TargetOf(const Window& window, const WINDOWPOS& position)
{
    RECT target = window.frame;
    if (!(position.flags & SWP_NOMOVE)) {
        const POINT origin = OriginOf(window);
        target = Shifted(target, origin.x + position.x - target.left, origin.y + position.y - target.top);
    }
    if (!(position.flags & SWP_NOSIZE)) {
        target.right = target.left + std::max(position.cx, 0);
        target.bottom = target.top + std::max(position.cy, 0);
    }
    return target;
}

/// Gives the window its new rectangles. Returns the client area as it was.
RECT Apply(Window& window, WINDOWPOS& position, const RECT& target, bool& wholeRedraw)
{
    const RECT before = window.client;
    if (!(position.flags & SWP_NOSIZE) || (position.flags & SWP_FRAMECHANGED)) {
        const RECT oldFrame = window.frame;
        const LRESULT answer = CalculateClient(window, target, false, &position);
        if (!WindowOf(window.handle))
            return before;
        // The children stand where they stood relative to the client area.
        const int dx = window.client.left - before.left, dy = window.client.top - before.top;
        for (Window* child : window.children)
            ShiftTree(*child, dx, dy);
        wholeRedraw |= (answer & WVR_REDRAW) == WVR_REDRAW;
        const bool wider = target.right - target.left != oldFrame.right - oldFrame.left;
        const bool higher = target.bottom - target.top != oldFrame.bottom - oldFrame.top;
        wholeRedraw |= (wider && (window.windowClass->style & CS_HREDRAW)) || (higher && (window.windowClass->style & CS_VREDRAW));
    } else if (!(position.flags & SWP_NOMOVE)) {
        ShiftTree(window, target.left - window.frame.left, target.top - window.frame.top);
    }
    const RECT& after = window.client;
    if (after.right - after.left == before.right - before.left && after.bottom - after.top == before.bottom - before.top)
        position.flags |= kNoClientSize;
    if (after.left == before.left && after.top == before.top)
        position.flags |= kNoClientMove;
    return before;
}

/// What moving, sizing, showing and hiding leaves to be painted.
void RedrawAfter(Window& window, const WINDOWPOS& position, const RECT& oldFrame, const RECT& oldClient, bool wholeRedraw)
{
    Window& top = window.TopLevel();
    if (window.IsTopLevel())
        FitPixels(window);
    SimPc::Current().Get<WindowDcs>().Follow(top);
    if (position.flags & SWP_NOREDRAW)
        return;
    const bool moved = !(position.flags & SWP_NOMOVE), sized = !(position.flags & SWP_NOSIZE);
    constexpr UINT everything = RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN;
    const bool exposes = (position.flags & SWP_HIDEWINDOW) || moved || sized;
    if (!window.IsTopLevel() && exposes) {
        Window& parent = *window.parent;
        const Region exposed = position.flags & SWP_HIDEWINDOW ? Region(oldFrame) : Region(oldFrame).Subtract(Region(window.frame));
        Mark(parent, exposed, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        PaintFrameAndBackground(parent);
        if (!WindowOf(window.handle))
            return;
    }
    const bool reordered = !window.IsTopLevel() && !(position.flags & SWP_NOZORDER);
    if ((position.flags & SWP_SHOWWINDOW) || wholeRedraw || (moved && !window.IsTopLevel())) {
        Mark(window, Region(window.frame), everything);
    } else if (sized) {
        const Region border = Region(window.frame).Subtract(Region(window.client));
        const Region kept = Region(Shifted(oldClient, window.client.left - oldClient.left, window.client.top - oldClient.top));
        Mark(window, Region(window.client).Subtract(kept).Union(border), everything);
    } else if ((position.flags & SWP_FRAMECHANGED) || reordered) {
        Mark(window, Region(window.frame), everything);
    }
    if (position.flags & (SWP_SHOWWINDOW | SWP_FRAMECHANGED) || (sized && window.IsTopLevel()))
        PaintFrameAndBackground(window);
}

}  // namespace

LRESULT CalculateClient(Window& window, const RECT& newFrame, bool created, WINDOWPOS* position)
{
    const WindowPtr keep = window.shared_from_this();
    const POINT origin = OriginOf(window);
    NCCALCSIZE_PARAMS parameters{};
    parameters.rgrc[0] = Shifted(newFrame, -origin.x, -origin.y);
    parameters.rgrc[1] = Shifted(window.frame, -origin.x, -origin.y);
    parameters.rgrc[2] = Shifted(window.client, -origin.x, -origin.y);
    parameters.lppos = position;
    const LRESULT answer =
        inner::SendMessage(window.handle, WM_NCCALCSIZE, !created,
                           created ? reinterpret_cast<LPARAM>(&parameters.rgrc[0]) : reinterpret_cast<LPARAM>(&parameters));
    window.frame = newFrame;
    RECT client = Shifted(parameters.rgrc[0], origin.x, origin.y);
    client.right = std::max(client.left, client.right);
    client.bottom = std::max(client.top, client.bottom);
    window.client = client;
    return created ? 0 : answer;
}

void SendSizeAndMove(Window& window)
{
    const HWND handle = window.handle;
    const WindowPtr keep = window.shared_from_this();
    const WPARAM kind = window.style & WS_MINIMIZE ? SIZE_MINIMIZED : SIZE_RESTORED;
    inner::SendMessage(handle, WM_SIZE, kind,
                       MAKELPARAM(window.client.right - window.client.left, window.client.bottom - window.client.top));
    const POINT origin = OriginOf(window);
    if (WindowOf(handle))
        inner::SendMessage(handle, WM_MOVE, 0, MAKELPARAM(window.client.left - origin.x, window.client.top - origin.y));
}

MINMAXINFO AskMinMax(const Window& window)
{
    const int border = FrameWidths(window.style, window.exStyle).left;
    const RECT screen = Tree().Desktop().frame;
    MINMAXINFO limits{};
    limits.ptMaxSize = {screen.right + 2 * border, screen.bottom + 2 * border};
    limits.ptMaxPosition = {-border, -border};
    limits.ptMinTrackSize = {Metric(SM_CXMINTRACK), Metric(SM_CYMINTRACK)};
    limits.ptMaxTrackSize = {screen.right + 12, screen.bottom + 12};
    inner::SendMessage(window.handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

namespace inner {

/// What has to be painted afterwards: conformance test Painting.HidingAndMoving_ExposeTheParent.
BOOL SetWindowPos(HWND handle, HWND insertAfter, int x, int y, int width, int height, UINT flags)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    WINDOWPOS position{handle, insertAfter, x, y, width, height, flags};
    if (!(flags & SWP_NOSENDCHANGING))
        SendMessage(handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
    if (!WindowOf(handle))
        return FALSE;
    const RECT target = TargetOf(*window, position);
    Normalize(*window, position, target);
    const bool mayActivate = window->IsTopLevel() && !(position.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW));
    constexpr UINT nothing = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER;
    const bool changes = (position.flags & nothing) != nothing || (position.flags & (SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW));
    if (!changes) {
        if (mayActivate && window->style & WS_VISIBLE)
            Activate(*window, WA_ACTIVE);
        return TRUE;
    }

    const RECT oldFrame = window->frame;
    bool wholeRedraw = false;
    const RECT oldClient = Apply(*window, position, target, wholeRedraw);
    if (!WindowOf(handle))
        return FALSE;
    if (!(position.flags & SWP_NOZORDER)) {
        if (position.hwndInsertAfter == HWND_TOP && window->IsTopLevel())
            Tree().Raise(*window);
        else
            Tree().Place(*window, position.hwndInsertAfter);
    }
    if (position.flags & SWP_SHOWWINDOW)
        window->style |= WS_VISIBLE;
    if (position.flags & SWP_HIDEWINDOW)
        window->style &= ~static_cast<DWORD>(WS_VISIBLE);
    if (!(position.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) {
        if (window->IsTopLevel()) {
            if (window->style & WS_VISIBLE)
                Activate(*window, WA_ACTIVE);
        } else {
            SendMessage(handle, WM_CHILDACTIVATE, 0, 0);
        }
    }
    if (!WindowOf(handle))
        return TRUE;
    RedrawAfter(*window, position, oldFrame, oldClient, wholeRedraw);
    if (!WindowOf(handle))
        return TRUE;
    const POINT origin = OriginOf(*window);
    position.x = window->frame.left - origin.x;
    position.y = window->frame.top - origin.y;
    position.cx = window->Width();
    position.cy = window->Height();
    SendMessage(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
    MouseMayHaveLeft();
    return TRUE;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, insertAfter, x, y, width, height, flags);
    return inner::SetWindowPos(window, insertAfter, x, y, width, height, flags);
}

/// The window keeps its place, counted from the new parent's client area; a visible one is hidden and shown for it.
HWND WINAPI SetParent(HWND child, HWND newParent)
{
    SIM_CALL(nullptr, ERROR_INVALID_WINDOW_HANDLE, child, newParent);
    const WindowPtr window = RequireWindow(child);
    const WindowPtr above = newParent ? RequireWindow(newParent) : Tree().Desktop().shared_from_this();
    if (!window || !above)
        return nullptr;
    if (!window->parent || above == window || above->IsBelow(window.get())) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const bool wasVisible = inner::IsWindowVisible(child) != FALSE;
    if (wasVisible)
        inner::ShowWindow(child, SW_HIDE);
    const HWND former = window->parent->handle;
    const int x = window->frame.left - window->parent->client.left, y = window->frame.top - window->parent->client.top;
    Tree().Move(*window, *above);
    inner::SetWindowPos(child, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (wasVisible)
        inner::ShowWindow(child, SW_SHOWNA);
    return former;
}

BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, x, y, width, height, repaint);
    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW);
    return inner::SetWindowPos(window, nullptr, x, y, width, height, flags);
}

int WINAPI SetWindowRgn(HWND window, HRGN region, BOOL redraw)
{
    SIM_CALL(0, ERROR_NOT_ENOUGH_MEMORY, window, region, redraw);
    SimPc& pc = SimPc::Current();
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return 0;
    std::optional<Region> shape;
    if (region) {
        const auto taken = pc.Handles().Find<RegionObject>(region);
        if (!taken || !pc.Handles().Close<RegionObject>(region))  // The window owns it from here on.
            return pc.Fail(ERROR_INVALID_HANDLE, 0);
        shape = taken->region;
    }
    const Region before = VisibleRegion(*found, true, false);
    found->shape = std::move(shape);
    UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED;
    if (!redraw)
        flags |= SWP_NOREDRAW;
    if (redraw && !found->IsTopLevel())
        Mark(*found->parent, before.Subtract(VisibleRegion(*found, true, false)), RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    inner::SetWindowPos(window, nullptr, 0, 0, 0, 0, flags);
    return 1;
}
