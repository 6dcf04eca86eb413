// ParentNotify: what the windows above a child hear of it.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

/// WM_PARENTNOTIFY to the windows above a child, up to the first that is no child. `point` (screen) is for mouse events, else the window is
/// told.
void NotifyParents(const Window& window, UINT message, LONG_PTR id, POINT point);

}  // namespace platform
