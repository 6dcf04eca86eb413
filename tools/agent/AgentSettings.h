// AgentSettings: where the agent lies, what its settings file holds, and the log that tells what it was asked to do.
#pragma once

#include "base/String.h"

namespace agent {

/// Path of a file beside the agent that carries its name: "C:\Tools\Velmora" + `extension` for an agent "C:\Tools\Velmora.exe".
[[nodiscard]] base::String BesideAgent(base::StringView extension);

/// The password in the settings file, decoded; empty when there is none or when it can't be decoded. The file is the one beside the agent,
/// or else the one that the setup utility keeps for the user where the agent's own folder can't be written.
[[nodiscard]] base::String ReadPassword();

/// Appends a line to the agent's log, in UTF-8.
void Log(base::StringView line);

}  // namespace agent
