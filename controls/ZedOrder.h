// ZedOrder: moving a control's window in the z-order.
#pragma once

#include <windows.h>

namespace controls {

/// Puts `window` behind `insertAfter` (HWND_TOP, HWND_BOTTOM or a window) and repaints what has come to light: the container behind a
/// window that went to the bottom, or both windows. True when it went to the top, where the caller repaints itself. A handle that is
/// no window is left alone.
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-setwindowpos
bool MoveInZOrder(HWND window, HWND container, HWND insertAfter);

/// Repaints a window with all that stands in it, at once.
void RedrawAll(HWND window);

}  // namespace controls
