#include "app/helpers/FileAccess.h"

#include "platform/sim/SimPc.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>

using namespace platform;
using helpers::CheckFolderAccess;
using helpers::PathAccess;
using helpers::ReadAccess;
using helpers::ReadAndWriteAccess;
using helpers::WriteAccess;

namespace {

class FileAccess : public testing::Test {
protected:
    SimPc& pc = SimPc::Current();
    Volumes& volumes = pc.Get<Volumes>();
};

TEST_F(FileAccess, Codes_AskForTheirRights)
{
    volumes.WriteFile(u"C:\\Tools\\a.txt", "");
    pc.Get<Users>().Administrator(false);
    volumes.SetRights(u"C:\\Tools\\a.txt", {.users = kReadOnlyRights});
    const struct {
        const char16_t* path;
        int code;
        bool folder;
        int result;
    } cases[] = {{u"C:\\Tools\\a.txt", ReadAccess, false, 1},
                 {u"C:\\Tools\\a.txt", WriteAccess, false, 0},
                 {u"C:\\Tools\\a.txt", FILE_EXECUTE, false, 1},
                 {u"C:\\Tools\\a.txt", ReadAndWriteAccess, false, 0},
                 {u"C:\\Tools", ReadAccess, true, 1},
                 {u"C:\\Tools\\", WriteAccess, true, 1},
                 {u"C:\\Missing", ReadAccess, true, -2},
                 {u"Tools", ReadAccess, true, -2},
                 {u"C:", ReadAccess, true, 1}};
    for (const auto& [path, code, folder, result] : cases)
        EXPECT_EQ(static_cast<int>(helpers::CheckPathAccess(path, code, folder)), result)
            << testing::PrintToString(std::u16string(path)) << ", code " << code;
    EXPECT_EQ(CheckFolderAccess(TEXT("C:\\Missing"), ReadAccess), PathAccess::Missing);
    volumes.AddVolume(u"\\\\server\\share\\");
    volumes.MakeFolder(u"\\\\server\\share\\a");
    EXPECT_EQ(CheckFolderAccess(TEXT("\\\\server\\share\\a"), ReadAndWriteAccess), PathAccess::Granted);
    EXPECT_EQ(pc.Get<Users>().Impersonation(), std::nullopt);
}

TEST_F(FileAccess, CurrentUser_IsAskedWhileImpersonated)
{
    pc.Trace().Start();
    EXPECT_EQ(CheckFolderAccess(TEXT("C:\\Tools"), ReadAccess), PathAccess::Granted);
    std::string calls;
    for (const auto& call : pc.Trace().Records())
        for (const char* const wanted :
             {"ImpersonateSelf", "OpenThreadToken", "MapGenericMask", "AccessCheck", "CloseHandle", "RevertToSelf"})
            if (call.name == wanted)
                calls += call.name + " ";
    EXPECT_EQ(calls, "ImpersonateSelf OpenThreadToken MapGenericMask AccessCheck CloseHandle RevertToSelf ");
}

TEST_F(FileAccess, EachFolderRight_IsNeeded)
{
    pc.Get<Users>().Administrator(false);
    const std::pair<int, DWORD> codes[] = {{ReadAccess, 9}, {WriteAccess, 6}, {ReadAndWriteAccess, 15}};
    for (const auto& [code, needed] : codes)
        for (const DWORD right : {1u, 2u, 4u, 8u, 0x10u, 0x20u}) {
            volumes.SetRights(u"C:\\Tools", {.users = FILE_ALL_ACCESS & ~right});
            EXPECT_EQ(CheckFolderAccess(TEXT("C:\\Tools\\"), code) == PathAccess::Granted, (needed & right) == 0)
                << "code " << code << " without " << right;
        }
}

TEST_F(FileAccess, OrdinaryUser_HasNotWhatOnlyAdministratorsHave)
{
    const auto ordinary = [](int code) { return helpers::CheckPathAccess(TEXT("C:\\Tools"), code, true, helpers::Asker::OrdinaryUser); };
    EXPECT_EQ(ordinary(WriteAccess), PathAccess::Granted);
    volumes.SetRights(u"C:\\Tools", {.users = kReadOnlyRights});
    EXPECT_EQ(ordinary(WriteAccess), PathAccess::Denied);
    EXPECT_EQ(ordinary(ReadAccess), PathAccess::Granted);
    EXPECT_EQ(CheckFolderAccess(TEXT("C:\\Tools"), WriteAccess), PathAccess::Granted) << "the administrator's own";
    for (const char* function : {"CreateWellKnownSid", "OpenProcessToken", "CreateRestrictedToken", "DuplicateToken"}) {
        pc.GetFaults().FailAlways(function, ERROR_ACCESS_DENIED);
        EXPECT_EQ(ordinary(ReadAccess), PathAccess::Failed) << function;
        pc.GetFaults().Clear();
    }
}

TEST_F(FileAccess, FailingSecurityCalls_AreNeverGranted)
{
    const std::pair<const char*, PathAccess> cases[] = {{"GetVolumeInformationW", PathAccess::NoAccessControl},
                                                        {"GetFileSecurityW", PathAccess::Failed},
                                                        {"OpenThreadToken", PathAccess::Failed},
                                                        {"ImpersonateSelf", PathAccess::Failed},
                                                        {"AccessCheck", PathAccess::Denied}};
    for (const auto& [function, result] : cases) {
        pc.GetFaults().FailAlways(function, ERROR_ACCESS_DENIED);
        EXPECT_EQ(CheckFolderAccess(TEXT("C:\\Tools\\"), ReadAccess), result) << function;
        pc.GetFaults().Clear();
        EXPECT_EQ(pc.Get<Users>().Impersonation(), std::nullopt) << function;
    }
}

}  // namespace
