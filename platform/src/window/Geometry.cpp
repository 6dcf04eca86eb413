// Where windows are: rectangles, points, shapes.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Objects.h"
#include "platform/src/window/Inner.h"

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

int WINAPI GetWindowRgn(HWND window, HRGN region)
{
    SIM_NOTE(window, region);
    const WindowPtr found = RequireWindow(window);
    const auto object = SimPc::Current().Handles().Find<RegionObject>(region);
    if (!found || !found->shape || !object)
        return ERROR;
    object->region = *found->shape;
    const std::size_t parts = found->shape->Rectangles().size();
    return parts == 0 ? NULLREGION : parts == 1 ? SIMPLEREGION : COMPLEXREGION;
}
