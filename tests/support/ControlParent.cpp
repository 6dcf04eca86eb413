// ControlParent: a top-level window for controls of the system, which writes down what they tell and ask it.
#include "tests/support/ControlParent.h"

#include <algorithm>
#include <utility>

namespace tests {

namespace {
constexpr auto* parentClass = TEXT("ControlParent");
}

ControlParent::ControlParent()
{
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = parentClass;
    RegisterClassExW(&windowClass);
    window_ = CreateWindowExW(0, parentClass, TEXT("Parent"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 600, 400, nullptr, nullptr,
                              windowClass.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

ControlParent::~ControlParent()
{
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
    UnregisterClassW(parentClass, GetModuleHandleW(nullptr));
}

HWND ControlParent::Add(LPCWSTR className, DWORD style, LPCWSTR text, int width, int height)
{
    const HWND child = CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, 10, 10, width, height, window_, nullptr,
                                       GetModuleHandleW(nullptr), nullptr);
    codes_.clear();
    return child;
}

std::vector<int> ControlParent::Codes()
{
    return std::exchange(codes_, {});
}

std::vector<UINT> ControlParent::ColorsAskedBy(HWND child)
{
    colors_.clear();
    RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    std::vector<UINT> once;
    for (const UINT message : colors_) {
        if (std::find(once.begin(), once.end(), message) == once.end())
            once.push_back(message);
    }
    return once;
}

LRESULT CALLBACK ControlParent::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* parent = reinterpret_cast<ControlParent*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (parent && message == WM_COMMAND)
        parent->codes_.push_back(static_cast<SHORT>(HIWORD(wParam)));
    else if (parent && message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC)
        parent->colors_.push_back(message);
    return DefWindowProcW(window, message, wParam, lParam);
}

base::String TextOf(HWND window)
{
    base::String text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, 0);
    const LRESULT copied = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

void Type(HWND window, LPCWSTR text)
{
    for (; *text; ++text)
        SendMessageW(window, WM_CHAR, static_cast<WPARAM>(*text), 1);
}

void Press(HWND window, WPARAM key)
{
    SendMessageW(window, WM_KEYDOWN, key, 1);
    SendMessageW(window, WM_KEYUP, key, 1);
}

void ClickAt(HWND window, int x, int y)
{
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

}  // namespace tests
