// FormScroll: the window's size, the two bars, and what moves them.
#include "host/FormScroll.h"

#include "host/KeyRouting.h"
#include "host/Units.h"

#include <algorithm>

namespace host {

namespace {

constexpr float lineTwips = 240;

LONG Line()
{
    return TwipsToPixelsY(lineTwips);
}

/// How far a turn of the wheel goes; the user may have chosen whole pages.
LONG WheelDistance(WPARAM turned, LONG page)
{
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const LONG notch = lines == WHEEL_PAGESCROLL ? page : std::min(static_cast<LONG>(lines) * Line(), page);
    return -MulDiv(GET_WHEEL_DELTA_WPARAM(turned), notch, WHEEL_DELTA);
}

}  // namespace

LONG FormScroll::Axis::Clamped(LONG position) const
{
    return std::clamp<LONG>(position, 0, std::max<LONG>(content - page, 0));
}

/// Where a command of the scroll bar leads. Windows counts the same commands in both directions.
LONG FormScroll::Axis::After(WORD command, WORD position) const
{
    switch (command) {
        case SB_LINEUP:
            return at - Line();
        case SB_LINEDOWN:
            return at + Line();
        case SB_PAGEUP:
            return at - page;
        case SB_PAGEDOWN:
            return at + page;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return position;
        case SB_TOP:
            return 0;
        case SB_BOTTOM:
            return content;
        default:
            return at;
    }
}

LONG FormScroll::Axis::Showing(LONG first, LONG last) const
{
    return std::min(std::max(at, last - page), first);
}

RECT FormScroll::Fit(SIZE content, const RECT& area, DWORD& style)
{
    style &= ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL);
    RECT frame{0, 0, content.cx, content.cy};
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    SIZE window{frame.right - frame.left, frame.bottom - frame.top};
    const SIZE border{window.cx - content.cx, window.cy - content.cy}, room{area.right - area.left, area.bottom - area.top};
    SIZE bars{};
    if (room.cx > 0 && room.cy > 0 && (window.cx > room.cx || window.cy > room.cy)) {
        // A bar takes room from the other direction, which may then need one too.
        const SIZE bar{GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)};
        const bool isWide = window.cx + (window.cy > room.cy ? bar.cx : 0) > room.cx;
        const bool isHigh = window.cy + (isWide ? bar.cy : 0) > room.cy;
        bars = {isHigh ? bar.cx : 0, isWide ? bar.cy : 0};
        style |= (isHigh ? WS_VSCROLL : 0) | (isWide ? WS_HSCROLL : 0);
        window = {std::min(window.cx + bars.cx, room.cx), std::min(window.cy + bars.cy, room.cy)};
    }
    across_ = {content.cx, std::max<LONG>(window.cx - border.cx - bars.cx, 0), across_.at};
    down_ = {content.cy, std::max<LONG>(window.cy - border.cy - bars.cy, 0), down_.at};
    const LONG left = std::max(area.left, area.left + (room.cx - window.cx) / 2);
    const LONG top = std::max(area.top, area.top + (room.cy - window.cy) / 2);
    return {left, top, left + window.cx, top + window.cy};
}

void FormScroll::ShowBars(HWND window) const
{
    for (const auto& [bar, axis] : {std::pair(SB_HORZ, &across_), std::pair(SB_VERT, &down_)}) {
        if (!axis->Scrolls())
            continue;
        const SCROLLINFO info{
            sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, axis->content - 1, static_cast<UINT>(axis->page), axis->at, 0};
        SetScrollInfo(window, bar, &info, TRUE);
    }
}

void FormScroll::Show(HWND window)
{
    ShowBars(window);
    Move(window, across_.at, down_.at);
}

void FormScroll::Move(HWND window, LONG across, LONG down)
{
    across = across_.Clamped(across);
    down = down_.Clamped(down);
    const LONG byX = across_.at - across, byY = down_.at - down;
    if (byX == 0 && byY == 0)
        return;
    across_.at = across;
    down_.at = down;
    ShowBars(window);
    ScrollWindowEx(window, byX, byY, nullptr, nullptr, nullptr, nullptr, SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

/// The user may have put the window elsewhere: it moves no further than it must.
void FormScroll::Refit(HWND window)
{
    const auto former = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    // An icon has no client area. It is looked at again when it is a window.
    refitWaits_ = (former & WS_MINIMIZE) != 0;
    if (refitWaits_ || !GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen))
        return;
    const RECT& area = screen.rcWork;
    DWORD style = former;
    const RECT place = Fit({across_.content, down_.content}, area, style);
    const SIZE size{place.right - place.left, place.bottom - place.top};
    RECT now = place;
    GetWindowRect(window, &now);
    const POINT corner{std::max(area.left, std::min(now.left, area.right - size.cx)),
                       std::max(area.top, std::min(now.top, area.bottom - size.cy))};
    if (style != former)
        SetWindowLongW(window, GWL_STYLE, static_cast<LONG>(style));
    SetWindowPos(window, nullptr, corner.x, corner.y, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE | (style != former ? SWP_FRAMECHANGED : 0));
    Show(window);
}

bool FormScroll::On(HWND window, UINT message, WPARAM wParam)
{
    switch (message) {
        case WM_DISPLAYCHANGE:
            Refit(window);
            return false;
        case WM_SETTINGCHANGE:
            if (wParam == SPI_SETWORKAREA)
                Refit(window);
            return false;
        case WM_SIZE:
            if (refitWaits_ && wParam != SIZE_MINIMIZED)
                Refit(window);
            return false;
        case WM_VSCROLL:
            Move(window, across_.at, down_.After(LOWORD(wParam), HIWORD(wParam)));
            return true;
        case WM_HSCROLL:
            Move(window, across_.After(LOWORD(wParam), HIWORD(wParam)), down_.at);
            return true;
        case WM_MOUSEWHEEL:
            if (down_.Scrolls())
                Move(window, across_.at, down_.at + WheelDistance(wParam, down_.page));
            else if (across_.Scrolls())
                Move(window, across_.at + WheelDistance(wParam, across_.page), down_.at);
            else
                return false;
            return true;
        default:
            return false;
    }
}

void FormScroll::Key(HWND window, HWND focused, WPARAM key)
{
    const bool ends = key == VK_HOME || key == VK_END;
    if ((!ends && key != VK_PRIOR && key != VK_NEXT) || !(across_.Scrolls() || down_.Scrolls()) || ShiftState() != (ends ? 2 : 0))
        return;
    // A list turns its own pages, a line of text has only ends to go to.
    const LRESULT wanted = SendMessageW(focused, WM_GETDLGCODE, 0, 0);
    if ((wanted & DLGC_WANTARROWS) != 0 && (ends || (wanted & DLGC_HASSETSEL) == 0 || (wanted & DLGC_WANTALLKEYS) != 0))
        return;
    if (ends)
        Move(window, key == VK_HOME ? 0 : across_.content, key == VK_HOME ? 0 : down_.content);
    else if (down_.Scrolls())
        Move(window, across_.at, down_.at + (key == VK_PRIOR ? -down_.page : down_.page));
    else
        Move(window, across_.at + (key == VK_PRIOR ? -across_.page : across_.page), down_.at);
}

void FormScroll::Reveal(HWND window, HWND part)
{
    // What the mouse is pressed on must not move from under it.
    if (!part || !(across_.Scrolls() || down_.Scrolls()) || GetKeyState(VK_LBUTTON) < 0)
        return;
    RECT place{};
    GetWindowRect(part, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    const LONG line = Line();
    Move(window, across_.Showing(place.left - line + across_.at, place.right + line + across_.at),
         down_.Showing(place.top - line + down_.at, place.bottom + line + down_.at));
}

}  // namespace host
