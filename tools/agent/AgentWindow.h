// AgentWindow: the agent run by hand or at logon, with its window and the hidden one that tells others it is there.
#pragma once

#include <windows.h>

namespace agent {

/// Opens the windows and runs their messages until the main window is closed. `hidden` keeps the main window out of sight.
int RunWindow(HINSTANCE instance, bool hidden);

}  // namespace agent
