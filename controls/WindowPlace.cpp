// WindowPlace: SetWindowPos and what must be repainted after it.
#include "controls/WindowPlace.h"

namespace controls {

void WindowPlace::Cover(HWND window, const host::Extender& extender)
{
    if (!window)
        return;
    const RECT place = extender.PixelRect();
    lastLeft_ = extender.Left();
    lastTop_ = extender.Top();
    SetWindowPos(window, HWND_TOP, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_FRAMECHANGED | SWP_NOOWNERZORDER);
}

void WindowPlace::Follow(HWND window, const host::Extender& extender)
{
    if (extender.Left() != lastLeft_ || extender.Top() != lastTop_)
        Cover(window, extender);
}

bool MoveInZOrder(HWND window, HWND container, HWND insertAfter)
{
    const bool toEnd = insertAfter == HWND_TOP || insertAfter == HWND_BOTTOM;
    // Without a window the whole desktop would be redrawn.
    if (!window || (!toEnd && !IsWindow(insertAfter)))
        return false;
    SetWindowPos(window, insertAfter, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_FRAMECHANGED | SWP_NOOWNERZORDER);
    if (insertAfter == HWND_BOTTOM) {
        RedrawAll(container);
    } else if (!toEnd) {
        RedrawAll(window);
        RedrawAll(insertAfter);
    }
    return insertAfter == HWND_TOP;
}

void RedrawAll(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

}  // namespace controls
