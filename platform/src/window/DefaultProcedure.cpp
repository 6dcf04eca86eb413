// What a window does with messages that its own procedure leaves alone.
#include "platform/sim/Desktop.h"
#include "platform/sim/Graphics.h"
#include "platform/src/input/Cursors.h"
#include "platform/src/input/Focus.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/window/Frame.h"
#include "platform/src/window/Inner.h"
#include "platform/src/window/Painting.h"
#include "platform/src/window/Placement.h"

#include <algorithm>

namespace platform {

namespace {

HWND ParentOf(const Window& window)
{
    return window.IsTopLevel() || !window.parent ? nullptr : window.parent->handle;
}

LRESULT SendToParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND parent = ParentOf(window);
    return parent ? inner::SendMessage(parent, message, wParam, lParam) : 0;
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

LRESULT EraseBackground(const Window& window, HDC dc)
{
    const HBRUSH brush = window.windowClass->background;
    if (!brush)
        return FALSE;
    Canvas canvas(dc);
    if (canvas.IsOpen())
        canvas.Fill(inner::GetClientRect(window.handle), brush);
    return TRUE;
}

/// The colours that the system's controls have when their parent has no wish of its own.
LRESULT ControlColors(UINT message, HDC dc)
{
    Graphics& graphics = SimPc::Current().Get<Graphics>();
    const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const int background = field ? COLOR_WINDOW : COLOR_BTNFACE;
    Canvas canvas(dc);
    if (canvas.IsOpen()) {
        canvas.TextColor(graphics.SystemColor(COLOR_WINDOWTEXT));
        canvas.BackColor(graphics.SystemColor(background));
    }
    return reinterpret_cast<LRESULT>(graphics.SystemBrush(background));
}

/// A window without a cursor of its own class asks the windows above it first; they may refuse to let it change.
LRESULT SetPointer(const Window& window, WPARAM wParam, LPARAM lParam)
{
    const int hit = static_cast<short>(LOWORD(lParam));
    if (hit == HTERROR) {
        SimPc::Current().Get<Desktop>().CountBeep();
        return TRUE;
    }
    if (window.IsChildStyle() && SendToParent(window, WM_SETCURSOR, wParam, lParam))
        return TRUE;
    if (hit == HTCLIENT && !window.windowClass->cursor)
        return FALSE;
    Queues().Current().input->cursor = hit == HTCLIENT ? window.windowClass->cursor : StockCursor(IDC_ARROW);
    return FALSE;
}

LRESULT NonClientPress(Window& window, WPARAM hit)
{
    switch (hit) {
        case HTCLOSE:
        case HTMINBUTTON:
        case HTMAXBUTTON:
            window.pressedBox = static_cast<int>(hit);
            break;
        case HTCAPTION:
            inner::SetActiveWindow(window.TopLevel().handle);
            break;
        default:
            break;
    }
    return 0;
}

LRESULT NonClientRelease(Window& window, WPARAM hit, LPARAM lParam)
{
    const int pressed = std::exchange(window.pressedBox, HTNOWHERE);
    if (pressed == HTNOWHERE || pressed != static_cast<int>(hit))
        return 0;
    const WPARAM command = hit == HTCLOSE ? SC_CLOSE : hit == HTMINBUTTON ? SC_MINIMIZE : SC_MAXIMIZE;
    const DWORD needed = hit == HTCLOSE ? WS_SYSMENU : hit == HTMINBUTTON ? WS_MINIMIZEBOX : WS_MAXIMIZEBOX;
    if (window.style & needed)
        inner::SendMessage(window.handle, WM_SYSCOMMAND, command, lParam);
    return 0;
}

LRESULT SystemCommand(const Window& window, WPARAM wParam)
{
    switch (wParam & 0xFFF0) {
        case SC_CLOSE:
            inner::SendMessage(window.handle, WM_CLOSE, 0, 0);
            break;
        case SC_MINIMIZE:
            inner::ShowWindow(window.handle, SW_MINIMIZE);
            break;
        case SC_RESTORE:
            inner::ShowWindow(window.handle, SW_RESTORE);
            break;
        case SC_KEYMENU:
        case SC_MOUSEMENU:
        case SC_MOVE:
            break;  // There are no menus, and windows are not dragged.
        default:
            SimPc::Current().Unsupported("WM_SYSCOMMAND " + std::to_string(wParam));
            break;
    }
    return 0;
}

LRESULT SystemKeyDown(Window& window, WPARAM key, LPARAM lParam)
{
    const Window& root = window.TopLevel();
    const bool alt = (lParam & (1 << 29)) != 0;
    if (key == VK_F4 && alt && (root.style & WS_SYSMENU) && !(root.windowClass->style & CS_NOCLOSE))
        inner::PostMessage(root.handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
}

/// The hidden cues of a window (UISF_ bits) change, and of all windows in it.
LRESULT UpdateCues(Window& window, WPARAM wParam, LPARAM lParam)
{
    const UINT bits = HIWORD(wParam);
    if (LOWORD(wParam) == UIS_SET)
        window.uiState |= bits;
    else if (LOWORD(wParam) == UIS_CLEAR)
        window.uiState &= ~bits;
    for (const WindowPtr& child : WindowTree::Children(window))
        if (WindowOf(child->handle))
            inner::SendMessage(child->handle, WM_UPDATEUISTATE, wParam, lParam);
    return 0;
}

LRESULT ChangeCues(const Window& window, WPARAM wParam, LPARAM lParam)
{
    const UINT bits = HIWORD(wParam);
    const bool set = LOWORD(wParam) == UIS_SET;
    if (LOWORD(wParam) != UIS_INITIALIZE && (set ? (window.uiState & bits) == bits : (window.uiState & bits) == 0))
        return 0;
    if (ParentOf(window))
        return SendToParent(window, WM_CHANGEUISTATE, wParam, lParam);
    WPARAM change = wParam;
    if (LOWORD(wParam) == UIS_INITIALIZE) {
        const bool shown = SimPc::Current().Get<Desktop>().KeyboardCues();
        change = MAKEWPARAM(shown ? UIS_CLEAR : UIS_SET, UISF_HIDEACCEL | UISF_HIDEFOCUS);
    }
    return inner::SendMessage(window.handle, WM_UPDATEUISTATE, change, lParam);
}

LRESULT Print(const Window& window, WPARAM wParam, LPARAM flags)
{
    if (flags & PRF_ERASEBKGND)
        inner::SendMessage(window.handle, WM_ERASEBKGND, wParam, 0);
    if (flags & PRF_CLIENT)
        inner::SendMessage(window.handle, WM_PRINTCLIENT, wParam, flags);
    return 0;
}

LRESULT PaintMessages(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            if (inner::BeginPaint(window.handle, paint))
                inner::EndPaint(window.handle, paint);
            return 0;
        }
        case WM_ERASEBKGND:
            return EraseBackground(window, reinterpret_cast<HDC>(wParam));
        case WM_NCPAINT:
            PaintFrame(window);
            return 0;
        case WM_NCACTIVATE:
            window.frameActive = wParam != 0;
            if (lParam != -1 && window.IsShown())
                PaintFrame(window);
            return TRUE;
        case WM_PRINT:
            return Print(window, wParam, lParam);
        case WM_SETREDRAW:
            window.redrawOff = !wParam;
            return 0;
        default:
            return ControlColors(message, reinterpret_cast<HDC>(wParam));
    }
}

LRESULT InputMessages(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCHITTEST:
            return HitFrame(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case WM_NCLBUTTONDOWN:
        case WM_NCLBUTTONDBLCLK:
            return NonClientPress(window, wParam);
        case WM_NCLBUTTONUP:
            return NonClientRelease(window, wParam, lParam);
        case WM_RBUTTONUP: {
            const POINT point = inner::MapPoint(window.handle, nullptr, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            inner::SendMessage(window.handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.handle), MAKELPARAM(point.x, point.y));
            return 0;
        }
        case WM_MOUSEACTIVATE: {
            const LRESULT answer = window.IsChildStyle() ? SendToParent(window, message, wParam, lParam) : 0;
            return answer ? answer : MA_ACTIVATE;
        }
        case WM_SETCURSOR:
            return SetPointer(window, wParam, lParam);
        case WM_SYSCOMMAND:
            return SystemCommand(window, wParam);
        case WM_SYSKEYDOWN:
            return SystemKeyDown(window, wParam, lParam);
        case WM_SYSCHAR:
            if (wParam != VK_RETURN && wParam != VK_ESCAPE && (lParam & (1 << 29)))
                inner::SendMessage(window.TopLevel().handle, WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(wParam));
            return 0;
        case WM_CANCELMODE:
            if (inner::GetCapture() == window.handle)
                inner::ReleaseCapture();
            return 0;
        default:  // WM_MOUSEWHEEL, WM_CONTEXTMENU, WM_HELP
            return SendToParent(window, message, wParam, lParam);
    }
}

}  // namespace

namespace inner {

LRESULT DefWindowProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = WindowOf(handle);
    if (!window)
        return 0;
    switch (message) {
        case WM_NCCREATE:
            return StoreText(*window, reinterpret_cast<CREATESTRUCTW*>(lParam)->lpszName);
        case WM_NCCALCSIZE:
            return CalculateSize(*window, wParam, lParam);
        case WM_CLOSE:
            inner::DestroyWindow(handle);
            return 0;
        case WM_SETTEXT:
            return StoreText(*window, reinterpret_cast<LPCWSTR>(lParam));
        case WM_GETTEXT:
            return CopyText(*window, wParam, reinterpret_cast<LPWSTR>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(window->text.size());
        case WM_SETICON:
            return SetIcon(*window, wParam, reinterpret_cast<HICON>(lParam));
        case WM_GETICON:
            return reinterpret_cast<LRESULT>(wParam == ICON_BIG ? window->bigIcon : window->smallIcon);
        case WM_WINDOWPOSCHANGING:
            PositionChanging(*window, *reinterpret_cast<WINDOWPOS*>(lParam));
            return 0;
        case WM_WINDOWPOSCHANGED:
            PositionChanged(*window, *reinterpret_cast<const WINDOWPOS*>(lParam));
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && !(window->style & WS_MINIMIZE))
                inner::SetFocus(handle);
            return 0;
        case WM_QUERYENDSESSION:
            return TRUE;
        case WM_NOTIFYFORMAT:
            return NFR_UNICODE;
        case WM_QUERYUISTATE:
            return window->uiState;
        case WM_UPDATEUISTATE:
            return UpdateCues(*window, wParam, lParam);
        case WM_CHANGEUISTATE:
            return ChangeCues(*window, wParam, lParam);

        case WM_PAINT:
        case WM_ERASEBKGND:
        case WM_NCPAINT:
        case WM_NCACTIVATE:
        case WM_PRINT:
        case WM_SETREDRAW:
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSTATIC:
            return PaintMessages(*window, message, wParam, lParam);

        case WM_NCHITTEST:
        case WM_NCLBUTTONDOWN:
        case WM_NCLBUTTONUP:
        case WM_NCLBUTTONDBLCLK:
        case WM_RBUTTONUP:
        case WM_MOUSEACTIVATE:
        case WM_SETCURSOR:
        case WM_SYSCOMMAND:
        case WM_SYSKEYDOWN:
        case WM_SYSCHAR:
        case WM_CANCELMODE:
        case WM_MOUSEWHEEL:
        case WM_CONTEXTMENU:
        case WM_HELP:
            return InputMessages(*window, message, wParam, lParam);
        default:
            return 0;
    }
}

}  // namespace inner

}  // namespace platform
