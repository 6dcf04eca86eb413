#include "app/helpers/IniFolder.h"

#include "app/helpers/FileAccess.h"
#include "app/helpers/SpecialFolders.h"
#include "platform/sim/Folders.h"
#include "platform/sim/Volumes.h"
#include "tests/app/FreshCaches.h"

#include <shlobj.h>

using namespace platform;
using helpers::GetIniFolder;

namespace {

constexpr const WCHAR* application = TEXT("C:\\Tools\\");
constexpr const WCHAR* userData = TEXT("C:\\Users\\Anna\\AppData\\Roaming\\Velmora Setup Utility\\");

class IniFolder : public tests::FreshCaches {
protected:
    SimPc& pc = SimPc::Current();
    Volumes& volumes = pc.Get<Volumes>();

    void SettingsIn(const WCHAR* folder) { volumes.WriteFile(std::u16string(folder) + u"Velmora Setup Utility.ini", ""); }
};

TEST_F(IniFolder, WritableApplicationFolder_IsTakenAndKept)
{
    EXPECT_EQ(GetIniFolder(), application);
    EXPECT_FALSE(volumes.IsFolder(userData));
    volumes.MakeReadOnly(u"C:\\Tools");
    EXPECT_EQ(GetIniFolder(), application);
}

TEST_F(IniFolder, SettingsInTheUsersFolder_WinOverAnEmptyApplicationFolderOnly)
{
    SettingsIn(userData);
    EXPECT_EQ(GetIniFolder(), userData);
    tests::ForgetCaches();
    SettingsIn(application);
    EXPECT_EQ(GetIniFolder(), application);
}

TEST_F(IniFolder, ReadOnlyApplicationFolder_GivesWayToTheUsersWhichIsMade)
{
    SettingsIn(application);
    volumes.MakeReadOnly(u"C:\\Tools");
    EXPECT_EQ(GetIniFolder(), userData);
    EXPECT_TRUE(volumes.IsFolder(userData));
}

TEST_F(IniFolder, VolumeWithoutAccessControl_NeverQualifies)
{
    volumes.PersistentAcls(u"C:\\", false);
    EXPECT_EQ(helpers::CheckFolderAccess(application, helpers::ReadAndWriteAccess), helpers::PathAccess::NoAccessControl);
    EXPECT_EQ(GetIniFolder(), TEXT(""));
    // The user's folder may lie on a better one.
    tests::ForgetCaches();
    volumes.AddVolume(u"D:\\");
    volumes.MakeFolder(u"D:\\Data\\Roaming");
    pc.Get<Folders>().Path(CSIDL_APPDATA, u"D:\\Data\\Roaming");
    EXPECT_EQ(GetIniFolder(), TEXT("D:\\Data\\Roaming\\Velmora Setup Utility\\"));
}

TEST_F(IniFolder, NothingUsable_GivesNothingAndIsAskedAgain)
{
    volumes.MakeReadOnly(u"C:\\Tools");
    volumes.MakeReadOnly(u"C:\\Users");
    volumes.MakeReadOnly(u"C:\\Users\\Anna");
    EXPECT_EQ(GetIniFolder(), TEXT(""));
    volumes.SetRights(u"C:\\Tools", {});
    EXPECT_EQ(GetIniFolder(), application);
}

TEST_F(IniFolder, NoApplicationDataFolder_LeavesTheApplicationsOnly)
{
    pc.Get<Folders>().Path(CSIDL_APPDATA, u"");
    EXPECT_EQ(helpers::GetUserDataFolder(true), TEXT(""));
    volumes.MakeReadOnly(u"C:\\Tools");
    EXPECT_EQ(GetIniFolder(), TEXT(""));
}

}  // namespace
