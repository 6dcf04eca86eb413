#include "tests/toolkit/TestWindows.h"

#include "base/PendingMessages.h"

#include <sstream>
#include <string>

namespace tests {

namespace {

constexpr const WCHAR* className = TEXT("VelmoraTestWindow");

}  // namespace

TestWindows::TestWindows()
{
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassExW(&description);
}

TestWindows::~TestWindows()
{
    while (!top_.empty())
        DestroyWindow(top_.back());
}

HWND TestWindows::Top(base::StringView title, HWND owner)
{
    top_.push_back(Make(title, WS_OVERLAPPEDWINDOW, owner));
    return top_.back();
}

HWND TestWindows::Child(HWND parent, base::StringView title)
{
    return Make(title, WS_CHILD, parent);
}

void TestWindows::Make(std::string_view script)
{
    std::istringstream words{std::string(script)};
    HWND top = nullptr;
    HWND child = nullptr;
    for (std::string word; words >> word;) {
        const std::string title = word.substr(word.find(':') + 1);
        const base::String wide(title.begin(), title.end());
        if (word.starts_with("top:"))
            top = Top(wide);
        else if (word.starts_with("owned:"))
            Top(wide, top);
        else if (word.starts_with("child:"))
            child = Child(top, wide);
        else if (word.starts_with("inner:"))
            Child(child, wide);
        else if (word == "closes")
            closes_ = true;
    }
}

HWND TestWindows::Make(base::StringView title, DWORD style, HWND parent)
{
    const HWND window = CreateWindowExW(0, className, base::String(title).c_str(), style, 0, 0, 100, 100, parent, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return window;
}

void TestWindows::HandleMessages()
{
    base::DispatchPendingMessages();
}

void TestWindows::Forget(HWND window)
{
    if (std::erase(top_, window) != 0 && top_.empty() && closes_)
        PostQuitMessage(0);
}

LRESULT CALLBACK TestWindows::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const windows = reinterpret_cast<TestWindows*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_CLOSE)
        windows->closed_.push_back(window);
    if (windows && message == WM_DESTROY)
        windows->Forget(window);
    return message == WM_CLOSE && !windows->closes_ ? 0 : DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace tests
