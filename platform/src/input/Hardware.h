// Hardware: the way of mouse and keyboard from the device to a window's message.
#pragma once

#include "platform/src/message/MessageQueues.h"

#include <optional>

namespace platform {

/// The device did something. The cursor and the keys change at once; the event waits in the queue of the thread that it concerns.
void Inject(HardwareEvent event);
/// A key, as the user presses or lets go of it.
void InjectKey(WORD virtualKey, bool up, WORD scanCode, bool extended = false);

/// A thread looks at an event: finds the window, with all the messages that come before (hit test, cursor, activation).
/// Empty when no window gets anything.
[[nodiscard]] std::optional<MSG> FindReceiver(ThreadQueue& queue, const HardwareEvent& event);
[[nodiscard]] std::optional<MSG> FindMouseReceiver(ThreadQueue& queue, const HardwareEvent& event);
[[nodiscard]] std::optional<MSG> FindKeyReceiver(ThreadQueue& queue, const HardwareEvent& event);
/// QS_ bit of an event.
[[nodiscard]] UINT QueueBit(const HardwareEvent& event);

/// The deepest enabled, visible window at a point of the screen by its shape alone, or null.
[[nodiscard]] Window* WindowUnder(POINT point);
/// Posts the message that the mouse has left to the window that asked for it. It is told once.
void Leave(InputState& input);
/// Something moved, went or lost the capture: the mouse may no longer be over the window that wants to know.
void MouseMayHaveLeft();

/// Scan code of a virtual key on a US keyboard, 0 when it has none.
[[nodiscard]] WORD ScanCode(WORD virtualKey);
/// The key that types a character on a US keyboard and the shift keys it needs (bit 0 Shift); nothing when there is none.
struct Keystroke {
    WORD virtualKey;
    bool shift;
};
[[nodiscard]] std::optional<Keystroke> KeyFor(char16_t character);

}  // namespace platform
