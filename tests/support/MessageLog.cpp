#include "tests/support/MessageLog.h"

#include <algorithm>
#include <map>

namespace tests {

namespace {

constexpr const WCHAR* className = TEXT("MessageLogWindow");
MessageLog* current = nullptr;

using Names = std::map<UINT, const char*>;

Names Named(auto... names)
{
    return {Names::value_type(names)...};
}

#define NAMED(message) std::pair(message, #message)
const Names expectedMessages =
    Named(NAMED(WM_NCCREATE), NAMED(WM_NCCALCSIZE), NAMED(WM_CREATE), NAMED(WM_DESTROY), NAMED(WM_NCDESTROY), NAMED(WM_MOVE),
          NAMED(WM_SIZE), NAMED(WM_SHOWWINDOW), NAMED(WM_PARENTNOTIFY), NAMED(WM_ACTIVATE), NAMED(WM_NCACTIVATE),
          NAMED(WM_WINDOWPOSCHANGING), NAMED(WM_WINDOWPOSCHANGED), NAMED(WM_ACTIVATEAPP), NAMED(WM_SETFOCUS), NAMED(WM_KILLFOCUS),
          NAMED(WM_ENABLE), NAMED(WM_CANCELMODE), NAMED(WM_CLOSE), NAMED(WM_SYSCOMMAND), NAMED(WM_MOUSEACTIVATE), NAMED(WM_MOUSEMOVE),
          NAMED(WM_MOUSELEAVE), NAMED(WM_LBUTTONDOWN), NAMED(WM_LBUTTONUP), NAMED(WM_LBUTTONDBLCLK), NAMED(WM_KEYDOWN), NAMED(WM_KEYUP),
          NAMED(WM_CHAR), NAMED(WM_SYSKEYDOWN), NAMED(WM_SYSKEYUP), NAMED(WM_SYSCHAR));
/// Left out unless asked for.
const Names paintMessages = Named(NAMED(WM_PAINT), NAMED(WM_ERASEBKGND));
#undef NAMED

/// Messages whose wParam says which of two opposite things happens carry it in their text.
std::string Describe(UINT message, WPARAM wParam)
{
    const std::string text = (expectedMessages.contains(message) ? expectedMessages : paintMessages).at(message);
    switch (message) {
        case WM_ACTIVATE:
        case WM_NCACTIVATE:
        case WM_ACTIVATEAPP:
        case WM_SHOWWINDOW:
        case WM_ENABLE:
        case WM_CHAR:
        case WM_SYSCHAR:
            return text + " " + std::to_string(LOWORD(wParam));
        case WM_SYSCOMMAND:
            return text + (wParam == SC_CLOSE ? " close" : " other");
        case WM_PARENTNOTIFY:
            return text + (LOWORD(wParam) == WM_CREATE ? " create" : LOWORD(wParam) == WM_DESTROY ? " destroy" : " press");
        default:
            return text;
    }
}

}  // namespace

MessageLog::MessageLog()
{
    current = this;
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = className;
    RegisterClassExW(&windowClass);
}

MessageLog::~MessageLog()
{
    for (const auto& [window, name] : std::map(windows_))
        DestroyWindow(window);
    UnregisterClassW(className, GetModuleHandleW(nullptr));
    current = nullptr;
}

HWND MessageLog::Create(const char* name, DWORD style, HWND parent, RECT place)
{
    creating_ = name;
    const std::string narrow = name;
    const std::basic_string<WCHAR> text(narrow.begin(), narrow.end());
    const HWND window = CreateWindowExW(0, className, text.c_str(), style, place.left, place.top, place.right - place.left,
                                        place.bottom - place.top, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    creating_.clear();
    return window;
}

LRESULT CALLBACK MessageLog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!current)
        return DefWindowProcW(window, message, wParam, lParam);
    if (!current->creating_.empty())
        current->windows_[window] = std::exchange(current->creating_, std::string());
    if (expectedMessages.contains(message) || (current->paints_ && paintMessages.contains(message)))
        current->messages_.push_back({message, current->windows_[window] + " " + Describe(message, wParam)});
    return DefWindowProcW(window, message, wParam, lParam);
}

testing::AssertionResult MessageLog::Is(std::initializer_list<const char*> expected)
{
    return Is({}, expected);
}

testing::AssertionResult MessageLog::Is(std::initializer_list<UINT> only, std::initializer_list<const char*> expected)
{
    std::vector<std::string> texts;
    for (const auto& [number, text] : std::exchange(messages_, {}))
        if (only.size() == 0 || std::ranges::find(only, number) != only.end())
            texts.push_back(text);
    if (std::ranges::equal(texts, expected, [](const std::string& recorded, const char* wanted) { return recorded == wanted; }))
        return testing::AssertionSuccess();
    auto failure = testing::AssertionFailure() << "messages differ\n    expected                                  recorded\n";
    for (std::size_t row = 0; row < std::max(texts.size(), expected.size()); ++row) {
        const std::string left = row < expected.size() ? expected.begin()[row] : "-";
        const std::string right = row < texts.size() ? texts[row] : "-";
        failure << (left == right ? "    " : "  ! ") << left << std::string(left.size() < 42 ? 42 - left.size() : 1, ' ') << right << "\n";
    }
    return failure;
}

namespace {

void DispatchPlainly(MSG& message)
{
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void (*dispatcher)(MSG&) = DispatchPlainly;

}  // namespace

void PumpWith(void (*dispatch)(MSG&))
{
    dispatcher = dispatch ? dispatch : DispatchPlainly;
}

void PumpMessages(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    while (true) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            dispatcher(message);
        const DWORD passed = GetTickCount() - start;
        if (passed >= milliseconds)
            return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

}  // namespace tests
