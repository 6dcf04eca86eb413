// RegisterControls: makes the system's own controls known to a factory.
#pragma once

#include "host/ControlFactory.h"

namespace controls {

/// Adds Frame, CommandButton, CheckBox and TextBox.
void RegisterControls(host::ControlFactory& factory);

}  // namespace controls
