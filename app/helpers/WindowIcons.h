// WindowIcons: the program's icon on its windows.
#pragma once

#include <windows.h>

namespace helpers {

/// Gives the icon resource "AAA" to the window and to the last window of its chain of owners, which is the one that the task list shows.
void SetWindowIcons(HWND window);

}  // namespace helpers
