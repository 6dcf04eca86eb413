// WindowPlace: where a control's window stands, on its container and among its siblings.
#pragma once

#include "host/Extender.h"

namespace controls {

/// Keeps a window over the place that the container has for its control.
class WindowPlace {
public:
    void Cover(HWND window, const host::Extender& extender);
    /// Covers the place when the control has moved since this was last asked.
    void Follow(HWND window, const host::Extender& extender);

private:
    float lastLeft_ = 0;
    float lastTop_ = 0;
};

/// Puts `window` behind `insertAfter` (HWND_TOP, HWND_BOTTOM or a window) and repaints what has come to light: the container behind a
/// window that went to the bottom, or both windows. True when it went to the top, where the caller repaints itself. A handle that is
/// no window is left alone.
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-setwindowpos
bool MoveInZOrder(HWND window, HWND container, HWND insertAfter);

/// Repaints a window with all that stands in it, at once.
void RedrawAll(HWND window);

}  // namespace controls
