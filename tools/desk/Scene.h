// Scene: the PC that the desk shows: an agent beside the utility, a service manager and a settings folder.
#pragma once

#include "platform/sim/SimPc.h"

#include <string>

namespace desk {

/// Puts the agent into C:\Tools beside the utility and lets its service take its time.
void Prepare(platform::SimPc& pc);

/// What lies behind the window, as readable lines: "services", "registry", "settings", "processes" or "messages". Empty for any other word.
std::string Describe(platform::SimPc& pc, const std::string& what);

}  // namespace desk
