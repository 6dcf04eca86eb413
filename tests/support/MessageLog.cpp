#include "tests/support/MessageLog.h"

#include <algorithm>
#include <iterator>

namespace tests {

namespace {

constexpr const WCHAR* kClassName = TEXT("MessageLogWindow");
MessageLog* current = nullptr;

struct MessageName {
    UINT message;
    const char* name;
    bool optional;  // left out unless asked for
};
#define NAMED(message)           \
    {                            \
        message, #message, false \
    }
#define MAY_COME(message)       \
    {                           \
        message, #message, true \
    }
const MessageName kNames[] = {NAMED(WM_NCCREATE),
                              NAMED(WM_NCCALCSIZE),
                              NAMED(WM_CREATE),
                              NAMED(WM_DESTROY),
                              NAMED(WM_NCDESTROY),
                              NAMED(WM_MOVE),
                              NAMED(WM_SIZE),
                              NAMED(WM_SHOWWINDOW),
                              NAMED(WM_WINDOWPOSCHANGING),
                              NAMED(WM_WINDOWPOSCHANGED),
                              NAMED(WM_PARENTNOTIFY),
                              NAMED(WM_ACTIVATE),
                              NAMED(WM_NCACTIVATE),
                              NAMED(WM_ACTIVATEAPP),
                              NAMED(WM_CHILDACTIVATE),
                              NAMED(WM_SETFOCUS),
                              NAMED(WM_KILLFOCUS),
                              NAMED(WM_ENABLE),
                              NAMED(WM_CANCELMODE),
                              NAMED(WM_SETTEXT),
                              NAMED(WM_STYLECHANGING),
                              NAMED(WM_STYLECHANGED),
                              NAMED(WM_CAPTURECHANGED),
                              NAMED(WM_CLOSE),
                              NAMED(WM_SYSCOMMAND),
                              NAMED(WM_TIMER),
                              NAMED(WM_MOUSEACTIVATE),
                              NAMED(WM_MOUSEMOVE),
                              NAMED(WM_MOUSELEAVE),
                              NAMED(WM_LBUTTONDOWN),
                              NAMED(WM_LBUTTONUP),
                              NAMED(WM_LBUTTONDBLCLK),
                              NAMED(WM_RBUTTONDOWN),
                              NAMED(WM_RBUTTONUP),
                              NAMED(WM_CONTEXTMENU),
                              NAMED(WM_KEYDOWN),
                              NAMED(WM_KEYUP),
                              NAMED(WM_CHAR),
                              NAMED(WM_SYSKEYDOWN),
                              NAMED(WM_SYSKEYUP),
                              NAMED(WM_SYSCHAR),
                              NAMED(WM_UPDATEUISTATE),
                              NAMED(WM_THEMECHANGED),
                              NAMED(WM_SYSCOLORCHANGE),
                              MAY_COME(WM_PAINT),
                              MAY_COME(WM_ERASEBKGND),
                              MAY_COME(WM_NCPAINT),
                              MAY_COME(WM_SETCURSOR),
                              MAY_COME(WM_NCHITTEST),
                              MAY_COME(WM_GETTEXT),
                              MAY_COME(WM_GETMINMAXINFO)};

const MessageName* Find(UINT message)
{
    const auto found = std::find_if(std::begin(kNames), std::end(kNames), [&](const MessageName& name) { return name.message == message; });
    return found == std::end(kNames) ? nullptr : found;
}

/// Messages whose wParam says which of two opposite things happens carry it in their text.
std::string Describe(UINT message, WPARAM wParam)
{
    const MessageName* known = Find(message);
    std::string text = known ? known->name : std::to_string(message);
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
    windowClass.lpszClassName = kClassName;
    RegisterClassExW(&windowClass);
}

MessageLog::~MessageLog()
{
    for (const Window& window : windows_)
        if (IsWindow(window.handle))
            DestroyWindow(window.handle);
    UnregisterClassW(kClassName, GetModuleHandleW(nullptr));
    current = nullptr;
}

HWND MessageLog::Create(const char* name, DWORD style, HWND parent, RECT place, DWORD exStyle)
{
    creating_ = name;
    const std::string narrow = name;
    const std::basic_string<WCHAR> text(narrow.begin(), narrow.end());
    const HWND window = CreateWindowExW(exStyle, kClassName, text.c_str(), style, place.left, place.top, place.right - place.left,
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
    const MessageName* known = Find(message);
    return known && (!known->optional || std::find(also_.begin(), also_.end(), message) != also_.end());
}

LRESULT CALLBACK MessageLog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!current)
        return DefWindowProcW(window, message, wParam, lParam);
    if (!current->creating_.empty())
        current->windows_.push_back({window, std::exchange(current->creating_, std::string())});
    if (current->Wanted(message)) {
        current->messages_.push_back({current->NameOf(window), Describe(message, wParam)});
        current->numbers_.push_back(message);
    }
    for (const auto& [awaited, action] : std::vector(current->actions_))
        if (awaited == message)
            action(window);
    if (current)
        for (const auto& [awaited, result] : current->answers_)
            if (awaited == message)
                return result;
    return DefWindowProcW(window, message, wParam, lParam);
}

testing::AssertionResult MessageLog::Compare(const std::vector<LoggedMessage>& actual, std::initializer_list<const char*> expected) const
{
    std::vector<std::string> texts;
    for (const LoggedMessage& message : actual)
        texts.push_back(message.window + " " + message.message);
    if (std::equal(texts.begin(), texts.end(), expected.begin(), expected.end()))
        return testing::AssertionSuccess();
    auto failure = testing::AssertionFailure() << "messages differ\n    expected                                  recorded\n";
    for (std::size_t row = 0; row < std::max(texts.size(), expected.size()); ++row) {
        const std::string left = row < expected.size() ? expected.begin()[row] : "-";
        const std::string right = row < texts.size() ? texts[row] : "-";
        failure << (left == right ? "    " : "  ! ") << left << std::string(left.size() < 42 ? 42 - left.size() : 1, ' ') << right << "\n";
    }
    return failure;
}

testing::AssertionResult MessageLog::Is(std::initializer_list<const char*> expected)
{
    numbers_.clear();
    return Compare(std::exchange(messages_, {}), expected);
}

testing::AssertionResult MessageLog::Is(std::initializer_list<UINT> only, std::initializer_list<const char*> expected)
{
    std::vector<LoggedMessage> chosen;
    for (std::size_t index = 0; index < messages_.size(); ++index)
        if (std::find(only.begin(), only.end(), numbers_[index]) != only.end())
            chosen.push_back(messages_[index]);
    messages_.clear();
    numbers_.clear();
    return Compare(chosen, expected);
}

void PumpMessages(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    while (true) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        const DWORD passed = GetTickCount() - start;
        if (passed >= milliseconds)
            return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

}  // namespace tests
