// AutoStart: the value under the machine-wide Run key that starts the agent at logon.
#pragma once

#include "base/String.h"

#include <optional>

namespace app {

/// The agent's switches in the auto-start value.
struct AutoStartOptions {
    bool hideTrayIcon = false;  // " /Hidden"
    bool soundStart = false;    // " /SoundStart"
};

/// The quoted path with the chosen switches behind it.
base::String AutoStartData(base::StringView agentPath, const AutoStartOptions& options);

/// The options of the value; nothing when there is none, it cannot be read or it is longer than 1024 bytes. A value that is no text counts
/// as one without switches. Case does not matter.
std::optional<AutoStartOptions> ReadAutoStart(bool use64BitView);

/// Both fail silently: without an administrator's rights the value stays as it is.
void WriteAutoStart(base::StringView data, bool use64BitView);
void DeleteAutoStart(bool use64BitView);

}  // namespace app
