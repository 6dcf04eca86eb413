// Windows: lists of them, what they say, and how they are found by their title.
#include "toolkit/TaskManLight.h"
#include "toolkit/WinMngHLP.h"

#include <algorithm>
#include <array>
#include <string>

namespace toolkit {

using base::String;
using base::StringView;

namespace {

constexpr UINT answerTime = 1000;  // milliseconds
/// Characters. A window of another program may answer anything when it is asked how long its text is.
constexpr std::int32_t longestText = 1 << 24;

std::string ToAnsi(StringView text)
{
    const int length = static_cast<int>(text.size());
    std::string ansi(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, ansi.data(), static_cast<int>(ansi.size()), nullptr, nullptr);
    return ansi;
}

}  // namespace

std::int32_t TaskManLight::GetHWndFromPID(DWORD In_PID, std::vector<HWND>& Out_hWnd) const
{
    return CollectProcessWindows(In_PID, Out_hWnd);
}

std::int32_t TaskManLight::GetAllHWnd(std::vector<HWND>& Out_hWnd) const
{
    return GetHWndFromPID(0, Out_hWnd);
}

std::int32_t TaskManLight::GetChildWindows(HWND In_Parent, std::vector<HWND>& Out_hWnd) const
{
    return CollectChildWindows(In_Parent, Out_hWnd);
}

std::int32_t TaskManLight::GetMainWindowsHWndFromPID(DWORD In_PID, std::vector<HWND>& Out_hWnd) const
{
    std::vector<HWND> windows;
    CollectTopLevelWindows(In_PID, windows);
    std::erase_if(windows, [](HWND window) { return GetWindow(window, GW_OWNER) != nullptr; });
    Out_hWnd = std::move(windows);
    return static_cast<std::int32_t>(Out_hWnd.size());
}

bool TaskManLight::IsMainWindow(HWND In_hWnd) const
{
    return !GetWindow(In_hWnd, GW_OWNER) && !GetWindowTitle(In_hWnd).empty();
}

HWND TaskManLight::GetMainWindowFromPID(DWORD In_PID) const
{
    if (In_PID == 0)
        return nullptr;
    std::vector<HWND> windows;
    CollectTopLevelWindows(In_PID, windows);
    const auto main = std::find_if(windows.begin(), windows.end(), [&](HWND window) { return IsMainWindow(window); });
    return main == windows.end() ? nullptr : *main;
}

String TaskManLight::GetWindowTitle(HWND In_hWnd) const
{
    if (!IsWindow(In_hWnd))
        return {};
    std::array<WCHAR, 260> buffer{};
    InternalGetWindowText(In_hWnd, buffer.data(), static_cast<int>(buffer.size()));
    return buffer.data();
}

String TaskManLight::GetClassNameFromHWnd(HWND In_hWnd, bool In_RealClassName) const
{
    std::array<WCHAR, 260> buffer{};
    if (In_RealClassName)
        RealGetWindowClassW(In_hWnd, buffer.data(), static_cast<UINT>(buffer.size()));
    else
        GetClassNameW(In_hWnd, buffer.data(), static_cast<int>(buffer.size()));
    return buffer.data();
}

std::int32_t TaskManLight::GetLenTextByHWnd(HWND In_hWnd) const
{
    DWORD_PTR length = 0;
    return SendMessageTimeoutW(In_hWnd, WM_GETTEXTLENGTH, 0, 0, SMTO_NORMAL, answerTime, &length) ? static_cast<std::int32_t>(length) : 0;
}

String TaskManLight::GetTextByHWnd(HWND In_hWnd) const
{
    const std::int32_t length = std::min(GetLenTextByHWnd(In_hWnd), longestText);
    if (length <= 0)
        return {};
    String text(static_cast<std::size_t>(length) + 2, TEXT('\0'));
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(In_hWnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, answerTime, &copied))
        return {};
    return text.substr(0, copied);
}

LONG_PTR TaskManLight::SearchHWndByCaption(StringView In_Caption, bool In_ExcludeCurrentProcess, bool In_Count) const
{
    const std::string caption = ToAnsi(In_Caption);
    const DWORD own = In_ExcludeCurrentProcess ? GetCurrentProcessId() : 0;
    const auto counts = [&](HWND window) { return !In_ExcludeCurrentProcess || GetPIDFromhWnd(window) != own; };
    LONG_PTR count = 0;
    if (const HWND window = FindWindowA(nullptr, caption.c_str()); window && counts(window)) {
        if (!In_Count)
            return reinterpret_cast<LONG_PTR>(window);
        count = 1;
    }
    std::vector<HWND> windows;
    if (CollectTopLevelWindows(0, windows) <= 0)
        return 0;
    for (const HWND window : windows) {
        if (!counts(window))
            continue;
        if (const HWND child = FindWindowExA(window, nullptr, nullptr, caption.c_str())) {
            if (!In_Count)
                return reinterpret_cast<LONG_PTR>(child);
            ++count;
        }
    }
    return count;
}

HWND TaskManLight::FindHWndByCaption(StringView In_Caption, bool In_ExcludeCurrentProcess) const
{
    return reinterpret_cast<HWND>(SearchHWndByCaption(In_Caption, In_ExcludeCurrentProcess, false));
}

std::int32_t TaskManLight::GetHWndByCaptionCount(StringView In_Caption, bool In_ExcludeCurrentProcess) const
{
    return static_cast<std::int32_t>(SearchHWndByCaption(In_Caption, In_ExcludeCurrentProcess, true));
}

}  // namespace toolkit
