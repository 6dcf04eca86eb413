// The plain message pump of code that waits for something while the window goes on living.
#pragma once

namespace base {

/// Removes and dispatches every message that waits for the calling thread. WM_QUIT is put back for the program's own loop.
void DispatchPendingMessages();

}  // namespace base
