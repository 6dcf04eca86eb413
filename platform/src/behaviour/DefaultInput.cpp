// What a window does with mouse and keys when its own procedure leaves them alone.
#include "platform/src/behaviour/DefaultProcedure.h"
#include "platform/src/behaviour/Inner.h"
#include "platform/src/input/Cursors.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/window/Frame.h"

namespace platform {

namespace {

/// A window without a cursor of its own class asks the windows above it first; they may refuse to let it change.
LRESULT SetPointer(const Window& window, WPARAM wParam, LPARAM lParam)
{
    const int hit = static_cast<short>(LOWORD(lParam));
    if (hit == HTERROR)
        return TRUE;
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
        case HTVSCROLL:
        case HTHSCROLL:
            SimPc::Current().Unsupported("a press on a scroll bar");
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

/// Alt+F4 is posted, not sent: conformance test Input.Alt_MakesSystemKeysAndAltF4Closes.
LRESULT SystemKeyDown(Window& window, WPARAM key, LPARAM lParam)
{
    const Window& root = window.TopLevel();
    const bool alt = (lParam & (1 << 29)) != 0;
    if (key == VK_F4 && alt && (root.style & WS_SYSMENU) && !(root.windowClass->style & CS_NOCLOSE))
        inner::PostMessage(root.handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
}

}  // namespace

std::optional<LRESULT> DefaultInput(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
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
        case WM_MOUSEWHEEL:
        case WM_CONTEXTMENU:
            return SendToParent(window, message, wParam, lParam);
        default:
            return {};
    }
}

}  // namespace platform
