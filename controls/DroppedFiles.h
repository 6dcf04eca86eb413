// DroppedFiles: the names of files that the shell has dropped on a window.
#pragma once

#include "base/String.h"

#include <shellapi.h>

#include <vector>

namespace controls {

/// The paths behind a WM_DROPFILES message, each trimmed of blanks and cut at 518 characters, in their order. Releases the drop handle.
/// https://learn.microsoft.com/windows/win32/api/shellapi/nf-shellapi-dragqueryfilew
[[nodiscard]] std::vector<base::String> TakeDroppedFiles(HDROP drop);

}  // namespace controls
