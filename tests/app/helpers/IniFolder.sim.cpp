#include "app/helpers/IniFolder.h"

#include "app/helpers/FileAccess.h"
#include "app/helpers/SpecialFolders.h"
#include "platform/sim/Folders.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "tests/support/FreshCaches.h"

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
    helpers::ForgetCaches();
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
    EXPECT_EQ(helpers::CheckFolderAccess(application, helpers::ReadAndWriteAccess), -1);
    EXPECT_EQ(GetIniFolder(), TEXT(""));
    // The user's folder may lie on a better one.
    helpers::ForgetCaches();
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

TEST_F(IniFolder, AccessCodes_AskForTheirRights)
{
    volumes.WriteFile(u"C:\\Tools\\a.txt", "");
    pc.Get<Users>().Administrator(false);
    volumes.SetRights(u"C:\\Tools\\a.txt", {.users = kReadOnlyRights});
    const struct {
        const WCHAR* path;
        int code;
        bool folder;
        int result;
    } cases[] = {{TEXT("C:\\Tools\\a.txt"), helpers::ReadAccess, false, 1},
                 {TEXT("C:\\Tools\\a.txt"), helpers::WriteAccess, false, 0},
                 {TEXT("C:\\Tools\\a.txt"), helpers::ReadAndWriteAccess, false, 0},
                 {TEXT("C:\\Tools\\a.txt"), FILE_EXECUTE, false, 1},
                 {TEXT("C:\\Tools"), helpers::ReadAccess, true, 1},
                 {TEXT("C:\\Tools\\"), helpers::WriteAccess, true, 1},
                 {TEXT("C:\\Missing"), helpers::ReadAccess, true, -2},
                 {TEXT("Tools"), helpers::ReadAccess, true, -2}};
    for (const auto& c : cases)
        EXPECT_EQ(helpers::CheckPathAccess(c.path, c.code, c.folder), c.result) << &c - cases;
    EXPECT_EQ(helpers::CheckFolderAccess(TEXT("C:\\Missing"), helpers::ReadAccess), -3);
    volumes.AddVolume(u"\\\\server\\share\\");
    volumes.MakeFolder(u"\\\\server\\share\\a");
    EXPECT_EQ(helpers::CheckFolderAccess(TEXT("\\\\server\\share\\a"), helpers::ReadAndWriteAccess), 1);
    EXPECT_EQ(pc.Get<Users>().Impersonation(), std::nullopt);
}

TEST_F(IniFolder, EachFolderRight_IsNeeded)
{
    pc.Get<Users>().Administrator(false);
    const std::pair<int, DWORD> codes[] = {{helpers::ReadAccess, 9}, {helpers::WriteAccess, 6}, {helpers::ReadAndWriteAccess, 15}};
    for (const auto& [code, needed] : codes)
        for (const DWORD right : {1u, 2u, 4u, 8u, 0x10u, 0x20u}) {
            volumes.SetRights(u"C:\\Tools", {.users = FILE_ALL_ACCESS & ~right});
            EXPECT_EQ(helpers::CheckFolderAccess(application, code), (needed & right) == 0) << code << " without " << right;
        }
}

TEST_F(IniFolder, FailingSecurityCalls_CountAsNotUsable)
{
    const std::pair<const char*, int> cases[] = {
        {"GetVolumeInformationW", -1}, {"GetFileSecurityW", -2}, {"OpenThreadToken", -2}, {"ImpersonateSelf", -2}, {"AccessCheck", 0}};
    for (const auto& [function, result] : cases) {
        pc.GetFaults().FailAlways(function, ERROR_ACCESS_DENIED);
        EXPECT_EQ(helpers::CheckFolderAccess(application, helpers::ReadAccess), result) << function;
        pc.GetFaults().Clear();
        EXPECT_EQ(pc.Get<Users>().Impersonation(), std::nullopt);
    }
}

}  // namespace
