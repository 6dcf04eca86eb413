#include "tests/toolkit/TestWindows.h"

#include "base/PendingMessages.h"

#include <gtest/gtest.h>

namespace tests {

namespace {

constexpr const WCHAR* className = TEXT("VelmoraTestWindow");

}  // namespace

TestWindows::TestWindows()
{
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassExW(&description);
}

TestWindows::~TestWindows()
{
    for (auto window = top_.rbegin(); window != top_.rend(); ++window)
        DestroyWindow(*window);
    UnregisterClassW(className, GetModuleHandleW(nullptr));
}

HWND TestWindows::Top(const WCHAR* title, HWND owner)
{
    top_.push_back(Make(title, WS_OVERLAPPEDWINDOW, owner));
    return top_.back();
}

HWND TestWindows::Child(HWND parent, const WCHAR* title)
{
    return Make(title, WS_CHILD, parent);
}

HWND TestWindows::Make(const WCHAR* title, DWORD style, HWND parent)
{
    const HWND window = CreateWindowExW(0, className, title, style, 0, 0, 100, 100, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    EXPECT_NE(window, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return window;
}

void TestWindows::HandleMessages()
{
    base::DispatchPendingMessages();
}

LRESULT CALLBACK TestWindows::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_CLOSE)
        return DefWindowProcW(window, message, wParam, lParam);
    reinterpret_cast<TestWindows*>(GetWindowLongPtrW(window, GWLP_USERDATA))->closed_.push_back(window);
    return 0;
}

}  // namespace tests
