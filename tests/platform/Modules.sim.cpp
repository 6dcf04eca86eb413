// Libraries of the stand-in PC.
#include "platform/sim/Modules.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

using platform::SimPc;

TEST(Modules, LoadedLibrary_IsALeakUntilItIsFreed)
{
    SimPc& pc = SimPc::Current();
    const HMODULE shell = LoadLibraryW(u"shell32.dll");
    EXPECT_EQ(LoadLibraryW(u"SHELL32"), shell);
    EXPECT_EQ(pc.Handles().Leaks().size(), 2u);
    EXPECT_TRUE(FreeLibrary(shell));
    EXPECT_EQ(GetModuleHandleW(u"shell32"), shell);
    EXPECT_TRUE(FreeLibrary(shell));
    EXPECT_EQ(GetModuleHandleW(u"shell32"), nullptr);
    EXPECT_FALSE(FreeLibrary(shell));
    pc.Get<platform::Modules>().RemoveExport(u"kernel32", "IsWow64Process");
    EXPECT_EQ(GetProcAddress(GetModuleHandleW(u"kernel32"), "IsWow64Process"), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PROC_NOT_FOUND});
    EXPECT_EQ(GetProcAddress(GetModuleHandleW(u"kernel32"), "NoSuchFunction"), nullptr);
    EXPECT_EQ(pc.Complaints().size(), 1u) << "a name that nobody told the PC of is not silently missing";
    pc.ForgetComplaints();
}

}  // namespace
