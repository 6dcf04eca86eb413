// ControlParent: a top-level window for controls of the system, which writes down what they tell and ask it.
#pragma once

#include "base/String.h"

#include <windows.h>

#include <vector>

namespace tests {

class ControlParent {
public:
    ControlParent();
    ~ControlParent();
    ControlParent(const ControlParent&) = delete;
    ControlParent& operator=(const ControlParent&) = delete;

    [[nodiscard]] HWND Window() const { return window_; }
    /// A visible child at (10, 10).
    HWND Add(LPCWSTR className, DWORD style, LPCWSTR text = TEXT(""), int width = 200, int height = 24);

    /// Codes of the WM_COMMAND messages since the last call, in order.
    std::vector<int> Codes();
    /// The WM_CTLCOLOR messages that painting the child afresh sends, in order, each once.
    std::vector<UINT> ColorsAskedBy(HWND child);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    std::vector<int> codes_;
    std::vector<UINT> colors_;
};

/// The text of a window, asked by message.
base::String TextOf(HWND window);
/// Sends the characters one by one as WM_CHAR.
void Type(HWND window, LPCWSTR text);
void Press(HWND window, WPARAM key);
/// Presses and releases the left button over a point of the client area.
void ClickAt(HWND window, int x, int y);

}  // namespace tests
