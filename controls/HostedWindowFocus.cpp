// HostedWindow: where the keyboard focus goes.
#include "controls/HostedWindow.h"
#include "host/Form.h"

namespace controls {

namespace {

bool IsDownNow(int key)
{
    return GetAsyncKeyState(key) < 0;
}

bool IsOfThisProcess(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

}  // namespace

void HostedWindow::TakeFocus()
{
    const SubclassPause pause(SubclassControl);
    if (GetFocus() != window_)
        SetFocus(window_);
    windowFocused_ = true;
    keptFocusLook_ = false;
}

bool HostedWindow::KeepsFocusLook()
{
    keptFocusLook_ = controlFocused_;
    if (!controlFocused_)
        windowFocused_ = false;
    return controlFocused_;
}

/// A window of another control may have taken the focus by itself, before the form knew: then this one still looks as if it had it.
void HostedWindow::ControlLostFocus()
{
    controlFocused_ = false;
    if (std::exchange(keptFocusLook_, false) && window_ && GetFocus() != window_) {
        Send(WM_KILLFOCUS);
        windowFocused_ = false;
    }
}

void HostedWindow::ControlGotFocus(FocusScope backward)
{
    controlFocused_ = true;
    if (creating_ > 0)
        return;
    if (control_.Enabled()) {
        if (window_ && !WindowFocused())
            TakeFocus();
    } else if (IsDownNow(VK_TAB)) {
        TabOn(IsDownNow(VK_SHIFT));
    } else if (IsDownNow(VK_RIGHT) || IsDownNow(VK_DOWN)) {
        MoveFocus(FocusDirection::Forward, FocusScope::OwnContainer);
    } else if (IsDownNow(VK_LEFT) || IsDownNow(VK_UP)) {
        MoveFocus(FocusDirection::Backward, backward);
    }
}

void HostedWindow::MoveFocus(FocusDirection direction, FocusScope scope)
{
    if (window_)
        host::MoveFocus(control_, direction, scope);
}

void HostedWindow::TabOn(bool shift)
{
    MoveFocus(shift ? FocusDirection::Backward : FocusDirection::Forward, FocusScope::AllContainers);
}

/// Windows gives an activated form's focus to the form itself; the window that had it before takes it back here.
void HostedWindow::FormMessage(UINT message, WPARAM wParam, bool& handled)
{
    if (message != WM_ACTIVATE && message != WM_ACTIVATEAPP)
        return;
    if (!controlFocused_ || !control_.Enabled() || !shown_)
        return;
    const HWND foreground = GetForegroundWindow();
    if (message == WM_ACTIVATE && !IsOfThisProcess(foreground))
        return;
    if (wParam == 0) {
        Send(WM_KILLFOCUS);
        windowFocused_ = false;
    } else if (foreground == form_) {
        control_.SetFocus();
        TakeFocus();
        handled = true;
    }
}

}  // namespace controls
