// Script: what a user does before the window, a line each.
#pragma once

#include "host/Form.h"
#include "platform/sim/SimPc.h"

#include <string>

namespace desk {

/// One step. Returns what is to be printed; a step that can't be done says why, beginning with "?".
///
///     click cmdInstall        the middle of a control, or a point of it: click CheckAutoStart 8 8
///     type secret             text to whatever has the focus
///     press Tab               Tab, Enter, Esc, Space, Up, Down, Left, Right, F5, with Alt+, Ctrl+ or Shift+ in front
///     advance 1500            milliseconds
///     snapshot window.png     the window as it looks now
///     show services           services, registry, settings, processes or messages
///     close                   the close box
std::string Perform(platform::SimPc& pc, host::Form& form, const std::string& line);

}  // namespace desk
