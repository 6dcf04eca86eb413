#include "tests/e2e/Utility.h"

#include <vector>

namespace e2e {

namespace {

/// The visible top-level window of a process that has this class.
HWND FindTopLevel(DWORD processId, const WCHAR* className)
{
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, TEXT("Velmora Setup Utility"))) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId && IsWindowVisible(window))
            return window;
    }
    return nullptr;
}

std::vector<HWND> Descendants(HWND window)
{
    std::vector<HWND> all;
    EnumChildWindows(
        window,
        [](HWND child, LPARAM parameter) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&all));
    return all;
}

}  // namespace

Utility::Utility(const base::String& exe)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    base::String commandLine = TEXT("\"") + exe + TEXT("\"");
    const base::String folder = exe.substr(0, exe.rfind(TEXT('\\')));
    if (!CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup, &process))
        return;
    CloseHandle(process.hThread);
    process_.Reset(process.hProcess);
    processId_ = process.dwProcessId;
}

Utility::~Utility()
{
    if (!Ended(Milliseconds(0))) {
        TerminateProcess(process_.Get(), 1);
        WaitForSingleObject(process_.Get(), 5000);
    }
}

bool Utility::Opened()
{
    if (!Eventually([this] { return (window_ = FindTopLevel(processId_, TEXT("VelmoraForm"))) != nullptr || Ended(Milliseconds(0)); }) ||
        !window_)
        return false;
    return Eventually([this] { return BringToFront(), GetForegroundWindow() == window_; }) && Responds();
}

bool Utility::Ended(Milliseconds patience) const
{
    return !process_ || WaitForSingleObject(process_.Get(), static_cast<DWORD>(patience.count())) == WAIT_OBJECT_0;
}

HWND Utility::MessageBox() const
{
    return FindTopLevel(processId_, TEXT("#32770"));
}

bool Utility::Responds() const
{
    return SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, nullptr) != 0;
}

HWND Utility::Find(Place place, const WCHAR* className) const
{
    const RECT wanted = DesignedRect(place);
    HWND found = nullptr;
    for (const HWND window : Descendants(window_)) {
        WCHAR name[64] = {};
        GetClassNameW(window, name, ARRAYSIZE(name));
        if (base::StringView(name) != className || !IsWindowVisible(window))
            continue;
        RECT actual = {};
        GetWindowRect(window, &actual);
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&actual), 2);
        if (actual.left != wanted.left || actual.top != wanted.top)
            continue;
        if (found)
            return nullptr;
        found = window;
    }
    return found;
}

HWND Utility::Own(Place place) const
{
    switch (FORM_MAP[static_cast<int>(place)].kind) {
        case Kind::comboBox:
            return Find(place, TEXT("ComboBox"));
        case Kind::label:
            return Find(place, TEXT("Static"));
        default:
            return Find(place, TEXT("VelmoraUserControl"));
    }
}

HWND Utility::Shown(Place place) const
{
    switch (FORM_MAP[static_cast<int>(place)].kind) {
        case Kind::checkBox:
            return Find(place, TEXT("Button"));
        case Kind::textBox:
            return Find(place, TEXT("Edit"));
        default:
            return Own(place);
    }
}

bool Utility::Enabled(Place place) const
{
    HWND window = Shown(place);
    while (window && window != window_ && IsWindowEnabled(window))
        window = GetAncestor(window, GA_PARENT);
    return window && IsWindowEnabled(window);
}

bool Utility::Checked(Place place) const
{
    return SendMessageW(Shown(place), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

base::String Utility::Text(Place place) const
{
    WCHAR text[256] = {};
    SendMessageW(Shown(place), WM_GETTEXT, ARRAYSIZE(text), reinterpret_cast<LPARAM>(text));
    return text;
}

int Utility::Selected(Place comboBox) const
{
    return static_cast<int>(SendMessageW(Own(comboBox), CB_GETCURSEL, 0, 0));
}

void Utility::Click(Place place) const
{
    BringToFront();
    RECT rect = DesignedRect(place);
    MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    // Near the left end, where a check box has its mark.
    e2e::Click({rect.left + 8, (rect.top + rect.bottom) / 2});
}

void Utility::ClickCloseBox() const
{
    BringToFront();
    RECT rect = {};
    GetWindowRect(window_, &rect);
    POINT point = {rect.right, rect.top + GetSystemMetrics(SM_CYSIZEFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    const auto hit = [&] { return SendMessageW(window_, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)); };
    while (point.x > rect.left && hit() != HTCLOSE)
        --point.x;
    // Clicks alternate by a few pixels, so this one may land further right.
    point.x -= GetSystemMetrics(SM_CXDOUBLECLK) + 3;
    e2e::Click(point);
}

void Utility::Press(std::initializer_list<WORD> virtualKeys) const
{
    BringToFront();
    e2e::Press(virtualKeys);
}

bool Utility::TabTo(Place place) const
{
    for (int tabs = 0; tabs < 2 * static_cast<int>(Place::window); ++tabs) {
        const HWND before = Focus();
        if (before == Shown(place))
            return true;
        Press({VK_TAB});
        if (!Eventually([&] { return Focus() != before; }, Milliseconds(1000)))
            return false;
    }
    return false;
}

HWND Utility::Focus() const
{
    GUITHREADINFO state = {};
    state.cbSize = sizeof(state);
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &state);
    return state.hwndFocus;
}

void Utility::Enter(Place textBox, base::StringView text) const
{
    Click(textBox);
    Press({VK_END});
    Press({VK_SHIFT, VK_HOME});
    Press({VK_DELETE});
    Type(text);
}

void Utility::Choose(Place comboBox, WCHAR firstLetter) const
{
    Click(comboBox);
    e2e::Press({static_cast<WORD>(firstLetter)});
    e2e::Press({VK_RETURN});
}

void Utility::BringToFront() const
{
    if (GetForegroundWindow() != window_)
        SetForegroundWindow(window_);
}

}  // namespace e2e
