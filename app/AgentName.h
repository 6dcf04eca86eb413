// AgentName: which program the utility sets up.
#pragma once

#include "base/String.h"

namespace app {

/// The agent's file name without extension: the first word of the utility's own file name, "Velmora" when that name has no blank behind its
/// first character or the word is no valid file name.
base::String DeriveAgentName(base::StringView utilityName);

}  // namespace app
