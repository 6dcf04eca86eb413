// WindowDc: a window's device context, kept for as long as the window.
#pragma once

#include <windows.h>

namespace controls {

/// Owns a device context from GetDC or GetWindowDC. Give it back before the window dies.
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-getwindowdc
class WindowDc {
public:
    enum class Area { Client, Whole };

    WindowDc() = default;
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() { Release(); }

    void Take(HWND window, Area area)
    {
        Release();
        if (!window)
            return;
        dc_ = area == Area::Whole ? GetWindowDC(window) : GetDC(window);
        window_ = window;
    }
    void Release()
    {
        if (dc_)
            ReleaseDC(window_, dc_);
        dc_ = nullptr;
    }
    /// NULL when there is none.
    [[nodiscard]] HDC Get() const { return dc_; }

private:
    HWND window_ = nullptr;
    HDC dc_ = nullptr;
};

}  // namespace controls
