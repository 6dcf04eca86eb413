// PlainWindow: a window for subclasses, and the heap that they share.
#pragma once

#include "controls/SubclassHeap.h"

namespace tests {

constexpr UINT probe = WM_APP + 7;

/// A plain window; it answers `probe` with wParam + 1.
class PlainWindow {
public:
    PlainWindow() : window_(CreateWindowExW(0, TEXT("Static"), TEXT(""), WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr))
    {
        original_ = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    }
    ~PlainWindow() { Destroy(); }
    void Destroy()
    {
        if (IsWindow(window_))
            DestroyWindow(window_);
    }
    [[nodiscard]] HWND Get() const { return window_; }
    LRESULT Ask(WPARAM wParam = 10) const { return SendMessageW(window_, probe, wParam, 0); }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return message == probe ? static_cast<LRESULT>(wParam + 1) : CallWindowProcW(original_, window, message, wParam, lParam);
    }
    static inline WNDPROC original_ = nullptr;
    HWND window_;
};

/// The heap that is published for the window, as text; empty or eight zeros for none.
inline base::String Published(HWND window)
{
    WCHAR text[20]{};
    GetEnvironmentVariableW(controls::HeapName(window).c_str(), text, 20);
    return text;
}

}  // namespace tests
