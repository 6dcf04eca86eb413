// Focus: the active window, the focus and the capture.
#pragma once

#include "platform/src/message/MessageQueues.h"

namespace platform {

/// Makes a top-level window the active one, in front of all, whatever process it belongs to. `how` is WA_ACTIVE or WA_CLICKACTIVE.
/// False when the window that is active now refuses.
bool Activate(Window& window, UINT how);
/// A window goes or hides: when it is the active one, the one that Windows takes next becomes active, or none.
void ActivateNext(Window& leaving);
/// Whether the running process may take the foreground.
[[nodiscard]] bool MayTakeForeground();
/// The focus leaves a window, and what is in it, that hides, goes or is disabled; it passes to `heir` (NULL: nowhere).
void GiveUpFocus(Window& window, HWND heir);

}  // namespace platform
