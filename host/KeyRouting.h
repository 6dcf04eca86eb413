// KeyRouting: what the host does with keys and mouse presses before a window sees them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace host {

class Control;
class Form;

enum class KeyEvent { Down, Up, Press };

/// What a message tells of a key, a system key included: pressed, released, or the character that it types. None for all other messages.
[[nodiscard]] std::optional<KeyEvent> KeyEventOf(UINT message);

/// Offers the message to the forms: a form with KeyPreview sees keys first (a code set to 0 ends the key's way), Alt with a letter goes to
/// the control with that access key, Enter and Esc press the default and the cancel button, Tab moves the focus from stock controls, F6 (or
/// Shift+F6) from any control to the next (or previous) one in the tab order that stands in another container.
/// Windows that a control hosts beside its own (of its check box or text box) get their keys untouched, save access keys and F6.
/// True when the message is done with and no window must see it.
[[nodiscard]] bool RouteMessage(MSG& message);

/// The Shift argument of key and mouse events: 1 Shift, 2 Ctrl, 4 Alt held as of the present message.
[[nodiscard]] std::int16_t ShiftState();

/// Hands a key to the handler of its event, `press(code)`, `down(code, shift)` or `up(code, shift)`, which may change the code. False when
/// the code became 0, which ends the key's way; else `key` is the code that goes on.
template <class Press, class Down, class Up>
[[nodiscard]] bool HandOver(KeyEvent event, WPARAM& key, Press press, Down down, Up up)
{
    auto code = static_cast<std::int16_t>(key);
    std::int16_t shift = ShiftState();
    if (event == KeyEvent::Press)
        press(code);
    else if (event == KeyEvent::Down)
        down(code, shift);
    else
        up(code, shift);
    key = static_cast<WORD>(code);
    return code != 0;
}

}  // namespace host
