// OwnWindow: a window of one of the host's two window classes and the object behind it.
#pragma once

#include "base/Handle.h"
#include "base/String.h"

#include <windows.h>

namespace host {

struct WindowTraits {
    using Type = HWND;
    static Type None() noexcept { return nullptr; }
    static void Close(Type window) noexcept { DestroyWindow(window); }
};
/// Owns a window. A window that Windows destroys together with its parent must be released first (see WM_NCDESTROY).
using WindowHandle = base::Handle<WindowTraits>;

/// How the window is made: see CreateWindowExW. `style` decides the class: children are user controls, all others forms.
struct WindowShape {
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT place{};
    HWND parent = nullptr;
    base::String text;
};

class OwnWindow {
public:
    static constexpr const WCHAR* controlClass = TEXT("VelmoraUserControl");
    static constexpr const WCHAR* formClass = TEXT("VelmoraForm");

    OwnWindow() = default;
    virtual ~OwnWindow() { Destroy(); }
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

protected:
    /// Makes both classes known. A form does so before its window; its controls come after it.
    static void RegisterClasses();
    /// Makes the window; false (and no window) when Windows refuses.
    bool Make(const WindowShape& shape);
    void Destroy()
    {
        window_.Reset();
        handle_ = nullptr;
    }
    /// From WM_NCCREATE until WM_NCDESTROY, NULL before and after.
    [[nodiscard]] HWND Handle() const { return handle_; }

    /// A message for the window. Exceptions end at the wall, then DefWindowProcW answers. The object outlives the call: controls and
    /// forms die only after their windows, outside of any message.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProcW for the window.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND handle_ = nullptr;
    WindowHandle window_;
};

/// BeginPaint and EndPaint around the painting of a window. `Dc` is NULL when Windows gives none.
class WindowPaint {
public:
    explicit WindowPaint(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
    ~WindowPaint()
    {
        if (dc_)
            EndPaint(window_, &paint_);
    }
    WindowPaint(const WindowPaint&) = delete;
    WindowPaint& operator=(const WindowPaint&) = delete;
    [[nodiscard]] HDC Dc() const { return dc_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC dc_;
};

}  // namespace host
