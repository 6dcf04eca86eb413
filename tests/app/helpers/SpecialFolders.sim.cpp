#include "app/helpers/SpecialFolders.h"

#include "platform/sim/Folders.h"
#include "platform/sim/Machine.h"
#include "platform/sim/Volumes.h"
#include "tests/app/FreshCaches.h"

#include <shlobj.h>

using namespace platform;
using helpers::GetSpecialFolder;

namespace {

class SpecialFolders : public tests::FreshCaches {
protected:
    SimPc& pc = SimPc::Current();
};

TEST_F(SpecialFolders, EndAsAsked)
{
    EXPECT_EQ(GetSpecialFolder(CSIDL_APPDATA, true, true), TEXT("C:\\Users\\Anna\\AppData\\Roaming\\"));
    EXPECT_EQ(GetSpecialFolder(CSIDL_APPDATA, false, true), TEXT("C:\\Users\\Anna\\AppData\\Roaming"));
    EXPECT_EQ(GetSpecialFolder(helpers::temporaryFolder, false, true), TEXT("C:\\Users\\Anna\\AppData\\Local\\Temp"));
}

TEST_F(SpecialFolders, SystemFolder_IsRedirectedFor32BitProgramsOn64Bits)
{
    EXPECT_EQ(GetSpecialFolder(CSIDL_SYSTEM, true, false), TEXT("C:\\Windows\\system32\\"));
    tests::ForgetCaches();
    pc.Get<Machine>().Wow64(true);
    pc.Get<Volumes>().MakeFolder(u"C:\\System32\\system32");
    pc.Get<Folders>().Path(CSIDL_SYSTEMX86, u"C:\\System32\\system32");
    EXPECT_EQ(GetSpecialFolder(CSIDL_SYSTEM, true, false), TEXT("C:\\Windows\\Sysnative\\"));
    EXPECT_EQ(GetSpecialFolder(CSIDL_SYSTEM, true, true), TEXT("C:\\Windows\\system32\\"));
    EXPECT_EQ(GetSpecialFolder(CSIDL_SYSTEMX86, false, false), TEXT("C:\\System32\\Sysnative")) << "the last one only";
    EXPECT_EQ(GetSpecialFolder(CSIDL_WINDOWS, false, false), TEXT("C:\\Windows"));
}

}  // namespace
