// Where windows are: rectangles, points, shapes.
#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/window/Inner.h"
#include "platform/src/window/Painting.h"

namespace platform {

namespace {

/// Where the client area of a window begins on the screen; NULL is the screen itself. False for a stale window.
bool FindOrigin(HWND handle, POINT& origin)
{
    origin = {0, 0};
    if (!handle)
        return true;
    const WindowPtr window = RequireWindow(handle);
    if (window)
        origin = {window->client.left, window->client.top};
    return window != nullptr;
}

}  // namespace

namespace inner {

RECT GetClientRect(HWND handle)
{
    const WindowPtr window = WindowOf(handle);
    return window ? Shifted(window->client, -window->client.left, -window->client.top) : RECT{};
}

RECT GetWindowRect(HWND handle)
{
    const WindowPtr window = WindowOf(handle);
    return window ? window->frame : RECT{};
}

POINT MapPoint(HWND from, HWND to, POINT point)
{
    POINT start, end;
    if (!FindOrigin(from, start) || !FindOrigin(to, end))
        return point;
    return {point.x + start.x - end.x, point.y + start.y - end.y};
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI GetWindowRect(HWND window, LPRECT rectangle)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window);
    if (!RequireWindow(window))
        return FALSE;
    *rectangle = inner::GetWindowRect(window);
    return TRUE;
}

BOOL WINAPI GetClientRect(HWND window, LPRECT rectangle)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window);
    if (!RequireWindow(window))
        return FALSE;
    *rectangle = inner::GetClientRect(window);
    return TRUE;
}

int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count)
{
    SIM_NOTE(from, to, count);
    POINT start, end;
    if (!FindOrigin(from, start) || !FindOrigin(to, end))
        return 0;
    const POINT shift{start.x - end.x, start.y - end.y};
    for (UINT index = 0; index < count; ++index)
        points[index] = {points[index].x + shift.x, points[index].y + shift.y};
    return MAKELONG(shift.x, shift.y);
}

BOOL WINAPI ClientToScreen(HWND window, LPPOINT point)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window);
    if (!RequireWindow(window))
        return FALSE;
    *point = inner::MapPoint(window, nullptr, *point);
    return TRUE;
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
        shape = pc.Get<Graphics>().TakeRegion(region);  // The window owns it from here on.
        if (!shape)
            return pc.Fail(ERROR_INVALID_HANDLE, 0);
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

int WINAPI GetWindowRgn(HWND window, HRGN region)
{
    SIM_NOTE(window, region);
    const WindowPtr found = RequireWindow(window);
    if (!found || !found->shape || !SimPc::Current().Get<Graphics>().RegionOf(region, *found->shape))
        return ERROR;
    const std::size_t parts = found->shape->Rectangles().size();
    return parts == 0 ? NULLREGION : parts == 1 ? SIMPLEREGION : COMPLEXREGION;
}
