#include "tests/e2e/Utility.h"

#include "tests/e2e/Machine.h"
#include "tests/support/UserInput.h"

#include <vector>

namespace e2e {

Utility::Utility(const base::String& exe) : process_(Launch(exe)) {}

Utility::~Utility()
{
    if (!Ended(Milliseconds(0))) {
        TerminateProcess(process_.Get(), 1);
        WaitForSingleObject(process_.Get(), 5000);
    }
}

bool Utility::Opened()
{
    if (!Eventually([this] { return (window_ = FindTopLevel(TEXT("VelmoraForm"))) != nullptr || Ended(Milliseconds(0)); }) || !window_)
        return false;
    return Eventually([this] { return BringToFront(), GetForegroundWindow() == window_; }) && Responds();
}

bool Utility::Ended(Milliseconds patience) const
{
    return !process_ || WaitForSingleObject(process_.Get(), static_cast<DWORD>(patience.count())) == WAIT_OBJECT_0;
}

DWORD Utility::ExitCode() const
{
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(process_.Get(), &code);
    return code;
}

int Utility::PlacesOf(base::StringView text) const
{
    int places = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const BYTE* at = nullptr; VirtualQueryEx(process_.Get(), at, &region, sizeof region); at += region.RegionSize) {
        at = static_cast<const BYTE*>(region.BaseAddress);
        std::vector<char> bytes(region.State == MEM_COMMIT && region.Type == MEM_PRIVATE ? region.RegionSize : 0);
        SIZE_T read = 0;
        if (bytes.empty() || !ReadProcessMemory(process_.Get(), at, bytes.data(), bytes.size(), &read))
            continue;
        const std::string_view all(bytes.data(), read), wanted(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(WCHAR));
        for (std::size_t found = all.find(wanted); found != all.npos; found = all.find(wanted, found + 1))
            ++places;
    }
    return places;
}

bool Utility::HasFocus(std::string_view name) const
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
    return info.hwndFocus && info.hwndFocus == Shown(name);
}

HWND Utility::FindTopLevel(const WCHAR* className) const
{
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, TEXT("Velmora Setup Utility"))) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == GetProcessId(process_.Get()) && IsWindowVisible(window))
            break;
    }
    return window;
}

HWND Utility::Find(std::string_view name, base::StringView className) const
{
    const RECT designed = DesignOf(name).place;
    struct Search {
        base::StringView className;
        POINT place;
        HWND found;
        int count;
    } search = {className, {designed.left, designed.top}, nullptr, 0};
    ClientToScreen(window_, &search.place);
    const auto visit = [](HWND child, LPARAM parameter) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(parameter);
        WCHAR actual[64]{};
        GetClassNameW(child, actual, ARRAYSIZE(actual));
        RECT rect{};
        GetWindowRect(child, &rect);
        if (wanted.className == actual && IsWindowVisible(child) && rect.left == wanted.place.x && rect.top == wanted.place.y) {
            wanted.found = child;
            ++wanted.count;
        }
        return TRUE;
    };
    EnumChildWindows(window_, visit, reinterpret_cast<LPARAM>(&search));
    return search.count == 1 ? search.found : nullptr;
}

HWND Utility::Own(std::string_view name) const
{
    const std::string& kind = DesignOf(name).kind;
    return Find(name, kind == "ComboBox" ? TEXT("ComboBox") : kind == "Label" ? TEXT("Static") : TEXT("VelmoraUserControl"));
}

HWND Utility::Shown(std::string_view name) const
{
    const std::string& kind = DesignOf(name).kind;
    return kind == "CheckBox" ? Find(name, TEXT("Button")) : kind == "TextBox" ? Find(name, TEXT("Edit")) : Own(name);
}

bool Utility::Enabled(std::string_view name) const
{
    HWND window = Shown(name);
    while (window && window != window_ && IsWindowEnabled(window))
        window = GetAncestor(window, GA_PARENT);
    return window && IsWindowEnabled(window);
}

void Utility::Click(std::string_view name) const
{
    BringToFront();
    // Clicks that lie this far apart are never taken for a double click.
    static LONG side = 0;
    side = side ? 0 : GetSystemMetrics(SM_CXDOUBLECLK) + 1;
    const RECT rect = DesignOf(name).place;
    // Near the left end, where a check box has its mark.
    tests::MoveMouse(window_, rect.left + 8 + side, (rect.top + rect.bottom) / 2);
    tests::ClickMouse();
}

void Utility::Press(std::initializer_list<WORD> virtualKeys) const
{
    BringToFront();
    for (const WORD key : virtualKeys)
        tests::SendKey(key);
    for (auto key = std::rbegin(virtualKeys); key != std::rend(virtualKeys); ++key)
        tests::SendKey(*key, KEYEVENTF_KEYUP);
}

void Utility::Enter(std::string_view name, base::StringView text) const
{
    Click(name);
    Press({VK_END});
    Press({VK_SHIFT, VK_HOME});
    Press({VK_DELETE});
    for (const WCHAR character : text) {
        if (character >= TEXT('a') && character <= TEXT('z'))
            tests::PressKey(static_cast<WORD>(character - TEXT('a') + TEXT('A')));
        else
            tests::SendCharacter(character);
    }
}

void Utility::Choose(std::string_view name, WCHAR firstLetter) const
{
    Click(name);
    tests::PressKey(static_cast<WORD>(firstLetter));
    tests::PressKey(VK_RETURN);
}

void Utility::BringToFront() const
{
    if (GetForegroundWindow() != window_)
        SetForegroundWindow(window_);
}

}  // namespace e2e
