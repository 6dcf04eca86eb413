// Caches: what the helpers found out once and keep until the process ends.
#pragma once

#include "base/Handles.h"
#include "base/String.h"

namespace helpers {

enum class Wow64State { Unknown, Yes, No };

/// Where the agent's settings file lives. `Undecided` also stays while no folder qualifies.
enum class IniFolderChoice { Undecided, Application, UserData };

struct Caches {
    base::String appPath;         // ends in a backslash
    base::String appExeName;      // without folder and extension
    base::String userDataFolder;  // ends in a backslash
    Wow64State wow64 = Wow64State::Unknown;
    base::ModuleHandle shellLibrary;
    IniFolderChoice iniFolder = IniFolderChoice::Undecided;
};

/// The process's caches. All helpers run on the user-interface thread, so there is no lock.
Caches& ProcessCaches();

/// Puts the caches back to the state at the start of the process; the kept shell library is released.
void ForgetCaches();

}  // namespace helpers
