// Painting: the messages that make windows paint themselves.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

/// Sends WM_NCPAINT and WM_ERASEBKGND when they wait.
void PaintFrameAndBackground(Window& window);
/// WM_PAINT at once for the window and those in it.
void PaintNow(Window& window, bool children);

}  // namespace platform
