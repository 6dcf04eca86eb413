#include "platform/src/behaviour/DefaultProcedure.h"

#include "platform/src/behaviour/Inner.h"
#include "platform/src/behaviour/Placement.h"
#include "platform/src/core/Gate.h"
#include "platform/src/window/Frame.h"

#include <algorithm>

namespace platform {

namespace {

HWND ParentOf(const Window& window)
{
    return window.IsTopLevel() || !window.parent ? nullptr : window.parent->handle;
}

LRESULT StoreText(Window& window, LPCWSTR text)
{
    window.text = text ? text : u"";
    if ((window.style & WS_CAPTION) == WS_CAPTION && window.IsShown())
        PaintFrame(window);
    return TRUE;
}

LRESULT CopyText(const Window& window, WPARAM capacity, LPWSTR into)
{
    if (capacity == 0)
        return 0;
    const std::size_t length = window.text.copy(into, capacity - 1);
    into[length] = 0;
    return static_cast<LRESULT>(length);
}

LRESULT SetIcon(Window& window, WPARAM which, HICON icon)
{
    return reinterpret_cast<LRESULT>(std::exchange(which == ICON_SMALL ? window.smallIcon : window.bigIcon, icon));
}

LRESULT CalculateSize(const Window& window, WPARAM withPosition, LPARAM lParam)
{
    RECT& rectangle = withPosition ? reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam)->rgrc[0] : *reinterpret_cast<RECT*>(lParam);
    const bool minimized = (window.style & WS_MINIMIZE) != 0;
    rectangle = minimized ? RECT{rectangle.left, rectangle.top, rectangle.left, rectangle.top}
                          : ClientInside(rectangle, window.style, window.exStyle);
    return 0;
}

void PositionChanging(const Window& window, WINDOWPOS& position)
{
    const bool limited = (window.style & WS_THICKFRAME) || !(window.style & (WS_POPUP | WS_CHILD));
    if ((position.flags & SWP_NOSIZE) || !limited || (window.style & WS_MINIMIZE))
        return;
    const MINMAXINFO limits = AskMinMax(window);
    position.cx = std::clamp<int>(position.cx, limits.ptMinTrackSize.x, std::max(limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x));
    position.cy = std::clamp<int>(position.cy, limits.ptMinTrackSize.y, std::max(limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y));
}

/// WM_MOVE and WM_SIZE are made here, from what changed of the client area.
void PositionChanged(Window& window, const WINDOWPOS& position)
{
    const HWND handle = window.handle;
    const POINT origin = OriginOf(window);
    if (!(position.flags & kNoClientMove))
        inner::SendMessage(handle, WM_MOVE, 0, MAKELPARAM(window.client.left - origin.x, window.client.top - origin.y));
    if (!(position.flags & kNoClientSize) && WindowOf(handle)) {
        const WPARAM kind = window.style & WS_MINIMIZE ? SIZE_MINIMIZED : SIZE_RESTORED;
        inner::SendMessage(handle, WM_SIZE, kind,
                           MAKELPARAM(window.client.right - window.client.left, window.client.bottom - window.client.top));
    }
}

}  // namespace

LRESULT SendToParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND parent = ParentOf(window);
    return parent ? inner::SendMessage(parent, message, wParam, lParam) : 0;
}

std::optional<LRESULT> DefaultState(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCCREATE:
            return StoreText(window, reinterpret_cast<CREATESTRUCTW*>(lParam)->lpszName);
        case WM_NCCALCSIZE:
            return CalculateSize(window, wParam, lParam);
        case WM_CLOSE:
            inner::DestroyWindow(window.handle);
            return 0;
        case WM_SETTEXT:
            return StoreText(window, reinterpret_cast<LPCWSTR>(lParam));
        case WM_GETTEXT:
            return CopyText(window, wParam, reinterpret_cast<LPWSTR>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(window.text.size());
        case WM_SETICON:
            return SetIcon(window, wParam, reinterpret_cast<HICON>(lParam));
        case WM_GETICON:
            return reinterpret_cast<LRESULT>(wParam == ICON_BIG ? window.bigIcon : window.smallIcon);
        case WM_WINDOWPOSCHANGING:
            PositionChanging(window, *reinterpret_cast<WINDOWPOS*>(lParam));
            return 0;
        case WM_WINDOWPOSCHANGED:
            PositionChanged(window, *reinterpret_cast<const WINDOWPOS*>(lParam));
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && !(window.style & WS_MINIMIZE))
                inner::SetFocus(window.handle);
            return 0;
        default:
            return {};
    }
}

namespace inner {

LRESULT DefWindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = WindowOf(handle);
    if (!window)
        return 0;
    for (const auto answerOf : {DefaultState, DefaultInput, DefaultPainting})
        if (const std::optional<LRESULT> answer = answerOf(*window, message, wParam, lParam))
            return *answer;
    return 0;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

LRESULT WINAPI DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    SIM_NOTE(window, message, wParam, lParam);
    return inner::DefWindowProc(window, message, wParam, lParam);
}
