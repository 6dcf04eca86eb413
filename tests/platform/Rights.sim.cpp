// Scenes of the stand-in PC: denied keys, folders that are not the user's.
#include "base/Handles.h"
#include "platform/sim/Registry.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>

namespace {

using platform::Registry;
using platform::SimPc;

constexpr LPCWSTR kRun = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

LSTATUS WriteRun(REGSAM access)
{
    base::RegistryKey key;
    const LSTATUS error = RegOpenKeyExW(HKEY_LOCAL_MACHINE, kRun, 0, access, key.Receive());
    if (error != ERROR_SUCCESS)
        return error;
    const WCHAR text[] = u"x";
    return RegSetValueExW(key.Get(), u"Velmora", 0, REG_SZ, reinterpret_cast<const BYTE*>(text), sizeof text);
}

TEST(RegistryRights, DeniedKeyOrUserWithoutRights_GetsErrorFive)
{
    SimPc& pc = SimPc::Current();
    pc.Get<platform::Users>().Administrator(false);
    EXPECT_EQ(WriteRun(KEY_ALL_ACCESS), ERROR_ACCESS_DENIED);
    base::RegistryKey reader;
    EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, kRun, 0, KEY_READ, reader.Receive()), ERROR_SUCCESS);
    pc.Get<platform::Users>().Administrator(true);
    pc.Get<Registry>().Deny(HKEY_LOCAL_MACHINE, kRun, KEY_SET_VALUE);
    EXPECT_EQ(WriteRun(KEY_ALL_ACCESS), ERROR_ACCESS_DENIED);
    pc.GetFaults().FailCall("RegQueryValueExW", ERROR_MORE_DATA);
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExW(reader.Get(), u"Velmora", nullptr, nullptr, nullptr, &size), ERROR_MORE_DATA)
        << "an injected error is the result";
}

TEST(VolumeRights, ReadOnlyFolder_RefusesNewFilesAndWritesForThatUserOnly)
{
    SimPc& pc = SimPc::Current();
    auto& volumes = pc.Get<platform::Volumes>();
    volumes.WriteFile(u"C:\\Program Files\\Velmora\\Velmora.ini", "[Settings]\r\nPwd=AYWJj\r\n");
    const LPCWSTR file = u"C:\\Program Files\\Velmora\\Velmora.ini";
    WCHAR text[16] = {};
    for (const bool administrator : {true, false}) {
        pc.Get<platform::Users>().Administrator(administrator);
        EXPECT_EQ(WritePrivateProfileStringW(u"Settings", u"Port", u"1", file), administrator);
        EXPECT_EQ(WritePrivateProfileStringW(u"Settings", u"Pwd", u"x", u"C:\\Program Files\\Velmora\\New.ini"), administrator);
        const base::FileHandle opened(CreateFileW(file, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_EQ(static_cast<bool>(opened), administrator);
        EXPECT_EQ(GetPrivateProfileStringW(u"Settings", u"Pwd", u"", text, 16, file), administrator ? 0u : 5u)
            << "a writer that shares nothing";
    }
    EXPECT_EQ(GetLastError(), DWORD{NO_ERROR});
    volumes.MakeReadOnly(u"C:\\Program Files\\Velmora");
    pc.Get<platform::Users>().Administrator(true);
    EXPECT_FALSE(WritePrivateProfileStringW(u"Settings", u"Port", u"2", file));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(volumes.ReadFile(file), "[Settings]\r\nPwd=AYWJj\r\nPort=1\r\n");
}

}  // namespace
