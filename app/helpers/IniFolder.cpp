#include "app/helpers/IniFolder.h"

#include "app/helpers/FileAccess.h"
#include "app/helpers/Paths.h"
#include "app/helpers/SpecialFolders.h"

namespace helpers {

using base::String;

namespace {

/// Where the agent's settings file lives. `Undecided` also stays while no folder qualifies.
enum class IniFolderChoice { Undecided, Application, UserData };
IniFolderChoice choice = IniFolderChoice::Undecided;

bool IsUsable(const String& folder)
{
    return CheckFolderAccess(folder, ReadAndWriteAccess) == PathAccess::Granted;
}

bool HoldsSettings(const String& folder)
{
    return FileExists(folder + GetAppExeName() + TEXT(".ini"));
}

IniFolderChoice Choose()
{
    const String application = GetAppPath();
    if (HoldsSettings(application) && IsUsable(application))
        return IniFolderChoice::Application;
    const String userData = GetUserDataFolder(false);
    if (HoldsSettings(userData) && IsUsable(userData))
        return IniFolderChoice::UserData;
    if (IsUsable(application))
        return IniFolderChoice::Application;
    if (IsUsable(GetUserDataFolder(true)))
        return IniFolderChoice::UserData;
    return IniFolderChoice::Undecided;
}

}  // namespace

String GetIniFolder()
{
    if (choice == IniFolderChoice::Undecided)
        choice = Choose();
    switch (choice) {
        case IniFolderChoice::Application:
            return GetAppPath();
        case IniFolderChoice::UserData:
            return GetUserDataFolder(false);
        default:
            return {};
    }
}

void ForgetIniFolder()
{
    choice = IniFolderChoice::Undecided;
}

}  // namespace helpers
