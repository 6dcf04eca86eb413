// Placement: where windows stand, how large they are, whether they are shown.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

// Bits of WINDOWPOS::flags that Windows sets and its headers do not name: the client area kept its size or its place.
inline constexpr UINT kNoClientSize = 0x0800;
inline constexpr UINT kNoClientMove = 0x1000;

/// Asks the window for its client area with WM_NCCALCSIZE and remembers it. `created` is the first time, when no old state is told.
/// Returns what the window answered (WVR_ bits).
LRESULT CalculateClient(Window& window, const RECT& newFrame, bool created, WINDOWPOS* position);
/// WM_SIZE and WM_MOVE as the window stands now.
void SendSizeAndMove(Window& window);
/// WM_GETMINMAXINFO: the sizes that the window allows.
[[nodiscard]] MINMAXINFO AskMinMax(const Window& window);

}  // namespace platform
