// Visibility: what of a window can be seen, and what of it has to be painted.
#pragma once

#include "platform/src/window/Window.h"

#include <functional>

namespace platform {

/// What can be seen of a window (its whole frame or its client area), in screen pixels. Other top-level windows cover nothing:
/// each has an image of its own. Empty while the window is hidden.
[[nodiscard]] Region VisibleRegion(const Window& window, bool whole, bool clipChildren);
/// Marks or clears what has to be painted. `area` is in screen pixels; `flags` are RDW_INVALIDATE, _VALIDATE, _ERASE, _FRAME, _CHILDREN.
void Mark(Window& window, const Region& area, UINT flags);
/// Whether a window that is shown has something to paint.
[[nodiscard]] bool NeedsPaint(const Window& window);
/// The first window of a thread, a parent before its children, that has something to paint and is wanted; or empty.
[[nodiscard]] WindowPtr NextToPaint(Actor thread, const std::function<bool(HWND)>& wanted);
/// The image of a top-level window gets the size of its frame; what it showed stays in its corner.
void FitPixels(Window& topLevel);

}  // namespace platform
