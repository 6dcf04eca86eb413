#include "app/RegistryValues.h"

#include "platform/sim/SimPc.h"
#include "platform/sim/Users.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

/// The masks with which keys were opened, one behind the other.
std::string Asked(SimPc& pc, const std::function<void()>& action)
{
    pc.Trace().Start();
    action();
    std::string asked;
    for (const CallRecord& call : pc.Trace().Of("RegOpenKeyExW"))
        asked += call.arguments.substr(call.arguments.rfind(' '));
    return asked;
}

TEST(RegistryKeys, AreOpenedForWritingAndByAReaderForReading)
{
    SimPc& pc = SimPc::Current();
    const WCHAR* const key = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    for (const bool wide : {false, true}) {
        const auto read = [&] { app::ReadRegValue(HKEY_LOCAL_MACHINE, key, TEXT("Velmora"), wide); };
        const auto open = [&] { app::CloseRegKey(app::OpenRegKey(HKEY_LOCAL_MACHINE, key, wide)); };
        const std::string write = wide ? " 0x2013F" : " 0x2003F";
        pc.Get<Users>().Administrator(true);
        EXPECT_EQ(Asked(pc, read), write);
        EXPECT_EQ(pc.Trace().Count("RegCloseKey"), 1u);
        pc.Get<Users>().Administrator(false);
        EXPECT_EQ(Asked(pc, read), write + (wide ? " 0x20119" : " 0x20019"));
        EXPECT_EQ(Asked(pc, open), write) << "who wants to write is not given less";
    }
}

}  // namespace
