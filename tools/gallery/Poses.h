// Poses: what gallery.sh cannot do by itself to pose the utility's window for a picture.
#pragma once

#include <windows.h>

namespace gallery {

/// The utility's window with the visual styles that Windows would give it, until it is closed. The process's exit code.
int ShowThemed();
/// Rests the mouse on a point of the running utility's client area and prints where its window stands.
int Hover(HWND window, int x, int y);

}  // namespace gallery
