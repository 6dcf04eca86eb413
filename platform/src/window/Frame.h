// Frame: border, caption and close box of a window. One geometry for measuring, hit testing and painting.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

/// Widths of border and caption on each side for a combination of styles, in pixels.
[[nodiscard]] RECT FrameWidths(DWORD style, DWORD exStyle);
/// The client rectangle inside a window rectangle: frame and scroll bars taken off.
[[nodiscard]] RECT ClientInside(const RECT& frame, DWORD style, DWORD exStyle);
/// WM_NCHITTEST: the HT_ code of a point of the screen.
[[nodiscard]] int HitFrame(const Window& window, POINT point);
/// Draws border, caption, boxes and scroll bars.
void PaintFrame(Window& window);
/// A caption box (HTCLOSE, HTMINBUTTON, HTMAXBUTTON) in screen pixels; empty when the window has none.
[[nodiscard]] RECT CaptionBox(const Window& window, int box);

}  // namespace platform
