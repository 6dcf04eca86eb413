// Cursors: the shapes of the mouse pointer that the system brings along.
#pragma once

#include <windows.h>

namespace platform {

/// The cursor of an IDC_ name; the same one each time.
[[nodiscard]] HCURSOR StockCursor(LPCWSTR name);

}  // namespace platform
