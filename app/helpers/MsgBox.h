// MsgBox: a message box that belongs to the right window.
#pragma once

#include "base/String.h"

namespace helpers {

/// Shows the box and returns the pressed button's code (IDOK ...), 0 when it could not be shown. An empty `title` means the program's name.
/// Without an `owner` the foreground window owns the box when it is one of this process. `iconName` names an icon resource of the module
/// that takes the place of the style's icon. https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-messageboxindirectw
int MsgBoxEx(base::StringView text, DWORD style, base::StringView title, HWND owner = nullptr, base::StringView iconName = {});

}  // namespace helpers
