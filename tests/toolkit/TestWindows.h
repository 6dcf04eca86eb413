// TestWindows: windows of the running process for tests to find.
#pragma once

#include "base/String.h"

#include <vector>

namespace tests {

class TestWindows {
public:
    TestWindows();
    ~TestWindows();
    TestWindows(const TestWindows&) = delete;
    TestWindows& operator=(const TestWindows&) = delete;

    /// A hidden top-level window, owned by another when one is given.
    HWND Top(const WCHAR* title, HWND owner = nullptr);
    HWND Child(HWND parent, const WCHAR* title);
    /// WM_CLOSE messages that came to the windows; they do not close for it.
    [[nodiscard]] const std::vector<HWND>& Closed() const { return closed_; }
    void HandleMessages();

private:
    HWND Make(const WCHAR* title, DWORD style, HWND parent);
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::vector<HWND> top_;
    std::vector<HWND> closed_;
};

}  // namespace tests
