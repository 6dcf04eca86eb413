// Showing, hiding, minimising and enabling windows.
#include "platform/src/behaviour/Inner.h"
#include "platform/src/behaviour/Placement.h"
#include "platform/src/core/Gate.h"
#include "platform/src/input/Focus.h"

namespace platform {

namespace {

/// Where minimised windows wait: off the screen, a caption in size. Windows parks them there since the desktop no longer shows them as
/// icons; programs see the place in GetWindowRect.
constexpr RECT kMinimized{-32000, -32000, -32000 + 160, -32000 + 28};

void LoseFocusToParent(Window& window)
{
    const WindowPtr keep = window.shared_from_this();
    if (window.IsTopLevel())
        ActivateNext(window);
    else
        GiveUpFocus(window, window.parent->handle);
}

BOOL Hide(Window& window)
{
    const HWND handle = window.handle;
    if (!(window.style & WS_VISIBLE))
        return FALSE;
    inner::SendMessage(handle, WM_SHOWWINDOW, FALSE, 0);
    if (!WindowOf(handle))
        return TRUE;
    UINT flags = SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE;
    if (!window.IsTopLevel() || inner::GetActiveWindow() != handle)
        flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    if (!window.IsTopLevel() && !window.parent->IsShown())
        window.style &= ~static_cast<DWORD>(WS_VISIBLE);
    else
        inner::SetWindowPos(handle, nullptr, 0, 0, 0, 0, flags);
    if (WindowOf(handle))
        LoseFocusToParent(window);
    return TRUE;
}

void Minimize(Window& window)
{
    if (window.style & WS_MINIMIZE)
        return;
    window.restored = window.frame;
    window.style |= WS_MINIMIZE;
    inner::SetWindowPos(window.handle, nullptr, kMinimized.left, kMinimized.top, kMinimized.right - kMinimized.left,
                        kMinimized.bottom - kMinimized.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (WindowOf(window.handle))
        ActivateNext(window);
}

BOOL Show(Window& window, int command)
{
    const HWND handle = window.handle;
    const bool wasShown = (window.style & WS_VISIBLE) != 0;
    const bool restores = command == SW_SHOWNORMAL || command == SW_RESTORE || command == SW_SHOWDEFAULT;
    if (wasShown && command != SW_SHOWNA && !(window.style & WS_MINIMIZE))
        return TRUE;  // Nothing is left to do; the window does not even become active.
    UINT flags = SWP_SHOWWINDOW | SWP_NOSIZE | SWP_NOMOVE;
    if (command == SW_SHOWNA || command == SW_SHOWNOACTIVATE)
        flags |= SWP_NOACTIVATE | (command == SW_SHOWNOACTIVATE ? SWP_NOZORDER : 0);
    if (!window.IsTopLevel())
        flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    if (!wasShown || command == SW_SHOWNA) {
        inner::SendMessage(handle, WM_SHOWWINDOW, TRUE, 0);
        if (!WindowOf(handle))
            return FALSE;
    }
    if (!window.IsTopLevel() && !window.parent->IsShown()) {
        window.style |= WS_VISIBLE;  // It appears together with its parent.
    } else if (restores && (window.style & WS_MINIMIZE)) {
        window.style &= ~static_cast<DWORD>(WS_MINIMIZE);
        const RECT place = window.restored;
        inner::SetWindowPos(handle, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                            SWP_SHOWWINDOW | SWP_FRAMECHANGED);
    } else {
        inner::SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, flags);
    }
    if (WindowOf(handle) && std::exchange(window.sizeMoveWaits, false))
        SendSizeAndMove(window);
    return wasShown;
}

}  // namespace

namespace inner {

BOOL ShowWindow(HWND handle, int command)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    switch (command) {
        case SW_HIDE:
            return Hide(*window);
        case SW_SHOWNORMAL:
        case SW_SHOWNOACTIVATE:
        case SW_SHOW:
        case SW_SHOWNA:
        case SW_RESTORE:
        case SW_SHOWDEFAULT:
            return Show(*window, command);
        case SW_MINIMIZE:
        case SW_SHOWMINIMIZED: {
            const BOOL wasShown = (window->style & WS_VISIBLE) != 0;
            Minimize(*window);
            return wasShown;
        }
        default:
            SimPc::Current().Unsupported("ShowWindow: command " + std::to_string(command));
            return FALSE;
    }
}

/// A window that is disabled gives up the focus, to nobody: conformance test WindowFocus.DisabledWindow_LosesTheFocusAndCannotHaveIt.
BOOL EnableWindow(HWND handle, BOOL enable)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    const BOOL wasDisabled = (window->style & WS_DISABLED) != 0;
    if (enable && wasDisabled) {
        window->style &= ~static_cast<DWORD>(WS_DISABLED);
        SendMessage(handle, WM_ENABLE, TRUE, 0);
    } else if (!enable) {
        SendMessage(handle, WM_CANCELMODE, 0, 0);
        window->style |= WS_DISABLED;
        if (!wasDisabled && GetFocus() == handle)  // What is inside it keeps the focus.
            inner::SetFocus(nullptr);
        if (!wasDisabled && WindowOf(handle))
            SendMessage(handle, WM_ENABLE, FALSE, 0);
    }
    return wasDisabled;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI ShowWindow(HWND window, int command)
{
    SIM_NOTE(window, command);
    return inner::ShowWindow(window, command);
}

BOOL WINAPI EnableWindow(HWND window, BOOL enable)
{
    SIM_NOTE(window, enable);
    return inner::EnableWindow(window, enable);
}
