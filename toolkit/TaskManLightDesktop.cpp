// What is done to windows, and the desktop: showing, closing, bringing to the front, the mouse, the screen.
#include "base/Handles.h"
#include "toolkit/TaskManLight.h"

namespace toolkit {

namespace {

void ShowOrHide(HWND window, bool show)
{
    if (window)
        ShowWindow(window, show ? SW_SHOW : SW_HIDE);
}

}  // namespace

bool TaskManLight::ExistsWindow(HWND In_hWnd) const
{
    return IsWindow(In_hWnd);
}

bool TaskManLight::IsVisibleWindow(HWND In_hWnd) const
{
    return IsWindowVisible(In_hWnd);
}

bool TaskManLight::IsEnabledWindow(HWND In_hWnd) const
{
    return IsWindowEnabled(In_hWnd);
}

bool TaskManLight::IsForegroundWindow(HWND In_hWnd) const
{
    return GetForegroundWindow() == In_hWnd;
}

void TaskManLight::CloseWindow(HWND In_hWnd) const
{
    PostMessageW(In_hWnd, WM_CLOSE, 0, 0);
}

void TaskManLight::QuitWindow(HWND In_hWnd) const
{
    PostMessageW(In_hWnd, WM_QUIT, 0, 0);
}

void TaskManLight::MakeWindowVisible(HWND In_hWnd) const
{
    ShowWindow(In_hWnd, SW_SHOWNA);
}

void TaskManLight::MakeWindowInvisible(HWND In_hWnd) const
{
    ShowWindow(In_hWnd, SW_HIDE);
}

void TaskManLight::ActivateWindow(HWND In_hWnd) const
{
    constexpr DWORD anyProcess = 0xFFFFFFFF;
    // A window that is restored from hidden is one that Windows lets come to the front.
    ShowWindow(In_hWnd, SW_HIDE);
    ShowWindow(In_hWnd, SW_RESTORE);
    AllowSetForegroundWindow(anyProcess);
    if (SetForegroundWindow(In_hWnd))
        LockSetForegroundWindow(LSFW_LOCK);
    PostMessageW(In_hWnd, WM_ACTIVATE, 0xFFFFFFFF, 0);
}

void TaskManLight::ActivateMyWindow() const
{
    const HWND window = FirstFormWindow ? FirstFormWindow() : nullptr;
    if (!window)
        return;
    const DWORD own = GetCurrentThreadId();
    const DWORD foreground = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
    const BOOL attached = AttachThreadInput(own, foreground, TRUE);
    ActivateWindow(window);
    if (attached)
        AttachThreadInput(own, foreground, FALSE);
}

void TaskManLight::DeskTopVisible(bool In_Value) const
{
    ShowOrHide(GetWindow(FindWindowA("Progman", "Program Manager"), GW_CHILD), In_Value);
}

void TaskManLight::TaskBarVisible(bool In_Value) const
{
    ShowOrHide(FindWindowA("Shell_TrayWnd", ""), In_Value);
}

void TaskManLight::GetMouseCursorPos(std::int32_t& Out_X, std::int32_t& Out_Y) const
{
    POINT position{};
    GetCursorPos(&position);
    Out_X = position.x;
    Out_Y = position.y;
}

HWND TaskManLight::GetHWndFromMousePos() const
{
    POINT position{};
    GetCursorPos(&position);
    return WindowFromPoint(position);
}

COLORREF TaskManLight::GetRGBPixelColorFromPos(std::int32_t In_X, std::int32_t In_Y) const
{
    const base::ScreenDc screen(GetDC(nullptr));
    return GetPixel(screen.Get(), In_X, In_Y);
}

}  // namespace toolkit
