#include "tests/support/MessageLog.h"

#include <algorithm>
#include <span>

namespace tests {

namespace {

constexpr const WCHAR* className = TEXT("MessageLogWindow");
MessageLog* current = nullptr;

struct MessageName {
    UINT message;
    const char* name;
};
std::vector<MessageName> Named(auto... names)
{
    return {names...};
}

#define NAMED(message) MessageName(message, #message)
const std::vector<MessageName> expectedMessages =
    Named(NAMED(WM_NCCREATE), NAMED(WM_NCCALCSIZE), NAMED(WM_CREATE), NAMED(WM_DESTROY), NAMED(WM_NCDESTROY), NAMED(WM_MOVE),
          NAMED(WM_SIZE), NAMED(WM_SHOWWINDOW), NAMED(WM_WINDOWPOSCHANGING), NAMED(WM_WINDOWPOSCHANGED), NAMED(WM_PARENTNOTIFY),
          NAMED(WM_ACTIVATE), NAMED(WM_NCACTIVATE), NAMED(WM_ACTIVATEAPP), NAMED(WM_CHILDACTIVATE), NAMED(WM_SETFOCUS), NAMED(WM_KILLFOCUS),
          NAMED(WM_ENABLE), NAMED(WM_CANCELMODE), NAMED(WM_SETTEXT), NAMED(WM_STYLECHANGING), NAMED(WM_STYLECHANGED),
          NAMED(WM_CAPTURECHANGED), NAMED(WM_CLOSE), NAMED(WM_SYSCOMMAND), NAMED(WM_TIMER), NAMED(WM_MOUSEACTIVATE), NAMED(WM_MOUSEMOVE),
          NAMED(WM_MOUSELEAVE), NAMED(WM_LBUTTONDOWN), NAMED(WM_LBUTTONUP), NAMED(WM_LBUTTONDBLCLK), NAMED(WM_RBUTTONDOWN),
          NAMED(WM_RBUTTONUP), NAMED(WM_CONTEXTMENU), NAMED(WM_KEYDOWN), NAMED(WM_KEYUP), NAMED(WM_CHAR), NAMED(WM_SYSKEYDOWN),
          NAMED(WM_SYSKEYUP), NAMED(WM_SYSCHAR), NAMED(WM_UPDATEUISTATE), NAMED(WM_THEMECHANGED), NAMED(WM_SYSCOLORCHANGE));
/// Left out unless asked for.
const std::vector<MessageName> optionalMessages = Named(NAMED(WM_PAINT), NAMED(WM_ERASEBKGND), NAMED(WM_NCPAINT), NAMED(WM_SETCURSOR),
                                                        NAMED(WM_NCHITTEST), NAMED(WM_GETTEXT), NAMED(WM_GETMINMAXINFO));
#undef NAMED

const MessageName* Find(std::span<const MessageName> names, UINT message)
{
    const auto found = std::ranges::find(names, message, &MessageName::message);
    return found == names.end() ? nullptr : &*found;
}

/// Messages whose wParam says which of two opposite things happens carry it in their text.
std::string Describe(UINT message, WPARAM wParam)
{
    const MessageName* usual = Find(expectedMessages, message);
    const std::string text = (usual ? usual : Find(optionalMessages, message))->name;
    switch (message) {
        case WM_ACTIVATE:
        case WM_NCACTIVATE:
        case WM_ACTIVATEAPP:
        case WM_SHOWWINDOW:
        case WM_ENABLE:
        case WM_TIMER:
        case WM_CHAR:
        case WM_SYSCHAR:
            return text + " " + std::to_string(LOWORD(wParam));
        case WM_SYSCOMMAND:
            return text + (wParam == SC_CLOSE ? " close" : wParam == SC_KEYMENU ? " keymenu" : " other");
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
    for (const Window& window : windows_)
        if (IsWindow(window.handle))
            DestroyWindow(window.handle);
    UnregisterClassW(className, GetModuleHandleW(nullptr));
    current = nullptr;
}

HWND MessageLog::Create(const char* name, DWORD style, HWND parent, RECT place, DWORD exStyle)
{
    creating_ = name;
    const std::string narrow = name;
    const std::basic_string<WCHAR> text(narrow.begin(), narrow.end());
    const HWND window = CreateWindowExW(exStyle, className, text.c_str(), style, place.left, place.top, place.right - place.left,
                                        place.bottom - place.top, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    creating_.clear();
    return window;
}

std::string MessageLog::NameOf(HWND window) const
{
    // The newest of that handle: Windows gives handles out again.
    const auto found = std::find_if(windows_.rbegin(), windows_.rend(), [&](const Window& known) { return known.handle == window; });
    return found == windows_.rend() ? "?" : found->name;
}

bool MessageLog::Wanted(UINT message) const
{
    return Find(expectedMessages, message) || std::ranges::find(also_, message) != also_.end();
}

LRESULT CALLBACK MessageLog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!current)
        return DefWindowProcW(window, message, wParam, lParam);
    if (!current->creating_.empty())
        current->windows_.push_back({window, std::exchange(current->creating_, std::string())});
    if (current->Wanted(message))
        current->messages_.push_back({message, current->NameOf(window) + " " + Describe(message, wParam)});
    for (const auto& [awaited, action] : std::vector(current->actions_))
        if (awaited == message)
            action(window);
    if (current)
        for (const auto& [awaited, result] : current->answers_)
            if (awaited == message)
                return result;
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
