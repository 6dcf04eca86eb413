// SentMessages: what tests ask and tell a window by message.
#pragma once

#include "base/String.h"

namespace tests {

/// The text of a window.
inline base::String TextOf(HWND window)
{
    base::String text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, 0);
    const LRESULT copied = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

/// Presses and releases the left button over a point of the client area.
inline void ClickAt(HWND window, int x, int y)
{
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

}  // namespace tests
