#include "app/helpers/Paths.h"

#include "platform/sim/Processes.h"
#include "tests/app/FreshCaches.h"

using namespace platform;

namespace {

class OwnPath : public tests::FreshCaches {};

TEST_F(OwnPath, IsWholeHoweverLong)
{
    for (const std::size_t length : {1u, 240u, 250u, 270u, 510u, 2000u}) {
        SCOPED_TRACE(testing::Message() << "a folder of " << length << " characters");
        const base::String folder = TEXT("C:\\") + base::String(length, TEXT('f')) + TEXT("\\");
        SimPc::Current().Get<Processes>().OwnImage(folder + TEXT("Foo.Bar.exe"));
        tests::ForgetCaches();
        EXPECT_EQ(helpers::GetAppPath(), folder);
        EXPECT_EQ(helpers::GetAppExeName(), TEXT("Foo.Bar"));
    }
}

}  // namespace
