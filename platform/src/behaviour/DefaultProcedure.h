// DefaultProcedure: what a window does with messages that its own procedure leaves alone, by subject.
#pragma once

#include "platform/src/window/Window.h"

#include <optional>

namespace platform {

// Each answers the messages of its subject and gives nothing for any other.

/// Text, icons, size and place, focus, closing.
[[nodiscard]] std::optional<LRESULT> DefaultState(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
/// Mouse, keys and the commands of the frame.
[[nodiscard]] std::optional<LRESULT> DefaultInput(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
/// Frame, background and the colours of controls.
[[nodiscard]] std::optional<LRESULT> DefaultPainting(Window& window, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends a message to the window above a child; 0 when there is none.
LRESULT SendToParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform
