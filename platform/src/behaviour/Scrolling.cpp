// Scroll bars of windows, and what moves when a window is scrolled.
#include "platform/src/behaviour/Inner.h"
#include "platform/src/core/Gate.h"
#include "platform/src/window/Frame.h"
#include "platform/src/window/Visibility.h"

#include <algorithm>

using namespace platform;

int WINAPI SetScrollInfo(HWND handle, int bar, LPCSCROLLINFO info, BOOL redraw)
{
    SIM_NOTE(handle, bar, redraw);
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return 0;
    Window::ScrollBar& state = window->scrollBars[bar];
    if (info->fMask & SIF_RANGE) {
        state.minimum = info->nMin;
        state.maximum = info->nMax;
    }
    if (info->fMask & SIF_PAGE)
        state.page = info->nPage;
    if (info->fMask & SIF_POS)
        state.position = info->nPos;
    const int last = state.maximum - std::max(static_cast<int>(state.page) - 1, 0);
    state.position = std::clamp(state.position, state.minimum, std::max(state.minimum, last));
    // Windows shows a bar that has something to scroll and hides one that has not.
    if ((last > state.minimum) != ((window->style & (bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL)) != 0))
        SimPc::Current().Unsupported("SetScrollInfo: a bar that comes or goes");
    if (redraw && window->IsShown())
        PaintFrame(*window);
    return state.position;
}

BOOL WINAPI GetScrollInfo(HWND handle, int bar, LPSCROLLINFO info)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, handle, bar);
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    const Window::ScrollBar& state = window->scrollBars[bar];
    *info = {info->cbSize, info->fMask, state.minimum, state.maximum, state.page, state.position, state.position};
    return TRUE;
}

/// What is seen of the window itself is not moved but painted anew, which comes to the same.
int WINAPI ScrollWindowEx(HWND handle, int dx, int dy, const RECT* scrolled, const RECT* clip, HRGN update, LPRECT updated, UINT flags)
{
    SIM_CALL(ERROR, ERROR_INVALID_WINDOW_HANDLE, handle, dx, dy, flags);
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return ERROR;
    if (scrolled || clip || update || updated || flags != (SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE)) {
        SimPc::Current().Unsupported("ScrollWindowEx: a part of a window, or without its children");
        return ERROR;
    }
    for (const WindowPtr& child : WindowTree::Children(*window))
        if (WindowOf(child->handle))
            inner::SetWindowPos(child->handle, nullptr, child->frame.left - window->client.left + dx,
                                child->frame.top - window->client.top + dy, 0, 0,
                                SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    Mark(*window, Region(window->client), RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return SIMPLEREGION;
}
