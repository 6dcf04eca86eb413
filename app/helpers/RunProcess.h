// RunProcess: starts a program, and the message pump that keeps windows alive while waiting for it.
#pragma once

#include "base/String.h"

namespace helpers {

/// Starts `path` in its own folder and returns the new process's id, 0 when the file is missing or Windows refuses. With `wait` it returns
/// when the process has ended; messages are handled meanwhile. `flags` are CreateProcessW's creation flags. `error`, if given, says why it
/// returned 0.
/// https://learn.microsoft.com/windows/win32/api/processthreadsapi/nf-processthreadsapi-createprocessw
DWORD RunProcess(base::StringView path, base::StringView arguments, bool wait, bool showNormally, DWORD flags, DWORD* error = nullptr);

/// Handles every message that waits for this thread. `waitFirst` blocks until there is one.
void PumpMessages(bool waitFirst);

}  // namespace helpers
