// KeyForwarding: passing keys on to a form that previews keys, and to its default and cancel buttons.
#pragma once

#include "host/Form.h"
#include "host/KeyRouting.h"

#include <array>
#include <cstdint>

namespace controls {

/// Hands a hosted window's keys to the form. The form's published routine is called by its name; when the form has none, the message is
/// sent to its window. Which of the two it is, is found out once for each kind of event.
class KeyForwarding {
public:
    /// The form may change `code` and `shift`. Nothing happens unless the form previews keys.
    void Forward(host::Form& form, host::KeyEvent event, LPARAM lParam, std::int16_t& code, std::int16_t& shift);

private:
    enum class Mode : std::uint8_t { NotYetTried, CallRoutine, SendMessage };

    std::array<Mode, 3> modes_{};
};

/// Enter goes to the form's default buttons, Escape to its cancel buttons: either way as Enter pressed on the button, posted so that
/// the key's own message is over by then. Other keys go nowhere.
void PostToFormButtons(host::Form& form, std::int16_t keyCode);

}  // namespace controls
