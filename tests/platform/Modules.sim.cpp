// Libraries of the stand-in PC.
#include "platform/sim/SimPc.h"

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
    EXPECT_EQ(GetProcAddress(GetModuleHandleW(u"kernel32"), "NoSuchFunction"), nullptr);
    EXPECT_EQ(pc.Complaints().size(), 1u) << "a name that nobody told the PC of is not silently missing";
    pc.ForgetComplaints();
}

}  // namespace
