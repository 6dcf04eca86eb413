#include "base/SystemLibrary.h"

#include "base/SystemExport.h"
#include "platform/sim/Modules.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

using IsAdmin = base::SystemExport<BOOL WINAPI(DWORD, DWORD*)>;

class SystemLibrary : public testing::Test {
protected:
    /// Whether Windows itself, asked for the name alone, takes the one of the system folder.
    bool OwnOneIsTaken()
    {
        const base::ModuleHandle library(LoadLibraryW(TEXT("advpack.dll")));
        EXPECT_TRUE(library);
        return modules.LoadsOf(u"advpack.dll") == 1;
    }

    Modules& modules = SimPc::Current().Get<Modules>();
};

TEST_F(SystemLibrary, FileBesideTheExe_IsNeverLookedAt)
{
    modules.PlantBesideExe(u"advpack.dll");
    EXPECT_TRUE(IsAdmin(TEXT("advpack.dll"), "IsNTAdmin"));
    modules.RemoveLibrary(u"advpack.dll");
    EXPECT_FALSE(base::LoadSystemLibrary(TEXT("advpack.dll")));
    EXPECT_EQ(modules.LoadsOf(u"advpack.dll"), 0u);
}

TEST_F(SystemLibrary, WithoutTheSystemFoldersName_NothingIsLoaded)
{
    SimPc::Current().GetFaults().FailAlways("GetSystemDirectoryW", ERROR_ACCESS_DENIED);
    EXPECT_FALSE(base::LoadSystemLibrary(TEXT("advpack.dll")));
}

TEST_F(SystemLibrary, Search_IsNarrowedAsFarAsWindowsCan)
{
    modules.PlantBesideExe(u"advpack.dll");
    EXPECT_FALSE(OwnOneIsTaken());
    EXPECT_TRUE(modules.SearchesCurrentFolder());
    base::SearchSystemFolderOnly();
    EXPECT_TRUE(OwnOneIsTaken());
    EXPECT_FALSE(modules.SearchesCurrentFolder());
}

TEST_F(SystemLibrary, OldWindows_LeavesAtLeastTheCurrentFolderOut)
{
    modules.RemoveExport(u"kernel32.dll", "SetDefaultDllDirectories");
    base::SearchSystemFolderOnly();
    EXPECT_FALSE(modules.SearchesCurrentFolder());
}

}  // namespace
