// TestWindows: windows for tests to find, of the running process or of a helper that runs this same code.
#pragma once

#include "base/String.h"

#include <string_view>
#include <vector>

namespace tests {

class TestWindows {
public:
    TestWindows();
    ~TestWindows();
    TestWindows(const TestWindows&) = delete;
    TestWindows& operator=(const TestWindows&) = delete;

    /// A hidden top-level window, owned by another when one is given.
    HWND Top(base::StringView title, HWND owner = nullptr);
    HWND Child(HWND parent, base::StringView title);
    /// Makes what a script asks for, word by word, each with its title behind a colon: `top:` a window, `owned:` one that the last of
    /// those owns, `child:` one inside it, `inner:` one inside the last child; `closes` lets them close when they are asked to.
    void Make(std::string_view script);

    /// WM_CLOSE messages that came to the windows.
    [[nodiscard]] const std::vector<HWND>& Closed() const { return closed_; }
    static void HandleMessages();

private:
    HWND Make(base::StringView title, DWORD style, HWND parent);
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Forget(HWND window);

    std::vector<HWND> top_;
    std::vector<HWND> closed_;
    bool closes_ = false;
};

}  // namespace tests
