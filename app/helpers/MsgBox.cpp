#include "app/helpers/MsgBox.h"

#include "app/helpers/Paths.h"

namespace helpers {

using base::String;
using base::StringView;

namespace {

HWND DefaultOwner()
{
    const HWND foreground = GetForegroundWindow();
    DWORD process = 0;
    GetWindowThreadProcessId(foreground, &process);
    if (process == GetCurrentProcessId())
        return foreground;
    const HWND active = GetActiveWindow();
    return active ? GetParent(active) : nullptr;
}

}  // namespace

int MsgBoxEx(StringView text, DWORD style, StringView title, HWND owner, StringView iconName)
{
    const String shownText(text);
    const String shownTitle = title.empty() ? GetAppExeName() : String(title);
    const String icon(iconName);
    MSGBOXPARAMSW box{};
    box.cbSize = sizeof box;
    box.hwndOwner = owner ? owner : DefaultOwner();
    box.hInstance = GetModuleHandleW(nullptr);
    box.lpszText = shownText.c_str();
    box.lpszCaption = shownTitle.c_str();
    box.dwStyle = style;
    if (!icon.empty()) {
        box.dwStyle = (style & ~static_cast<DWORD>(MB_ICONMASK)) | MB_USERICON;
        box.lpszIcon = icon.c_str();
    }
    return MessageBoxIndirectW(&box);
}

}  // namespace helpers
