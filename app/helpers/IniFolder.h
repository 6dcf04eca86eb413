// IniFolder: which folder holds the agent's settings file.
#pragma once

#include "base/String.h"

namespace helpers {

/// The application's folder or the user's data folder, ending in a backslash; empty when the user may read and write neither.
/// The first choice is kept until `ForgetIniFolder`.
base::String GetIniFolder();

void ForgetIniFolder();

}  // namespace helpers
