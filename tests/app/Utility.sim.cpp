#include "app/Utility.h"

#include "platform/sim/Desktop.h"
#include "platform/sim/Machine.h"
#include "platform/sim/MessageBoxes.h"
#include "platform/sim/Volumes.h"
#include "tests/app/UtilityScene.h"
#include "tests/support/FailingMemory.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

class Utility : public testing::Test, protected tests::UtilityScene {};

TEST_F(Utility, WithoutItsAgentOrNt_SaysSoAndEndsWell)
{
    The<Volumes>().Remove(u"C:\\Tools\\Velmora.exe");
    for (const char16_t* const text :
         {u"\"Velmora.exe\" needs to be on this directory.", u"Velmora can be set as Service only on NT Systems"}) {
        pc.Clock().Schedule(1000, [] { PostQuitMessage(9); });  // should it open its window after all
        EXPECT_EQ(app::RunUtility(), 0);
        ASSERT_FALSE(The<MessageBoxes>().All().empty());
        const auto& box = The<MessageBoxes>().Last();
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(box.caption, u"Velmora Setup Utility");
        EXPECT_EQ(box.style, 48u);
        EXPECT_EQ(The<Desktop>().FindByText(u"Velmora Setup Utility"), nullptr);
        The<Machine>().NotNt();
    }
    EXPECT_EQ(The<MessageBoxes>().All().size(), 2u);
}

TEST_F(Utility, WindowThatCannotBeOpened_IsToldAndEndsWithACode)
{
    pc.GetFaults().FailAlways("CreateWindowExW", ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_EQ(app::RunUtility(), 1);
    ASSERT_EQ(The<MessageBoxes>().All().size(), 1u);
    EXPECT_EQ(The<MessageBoxes>().Last().text, u"The window could not be opened:\r\nno window");
    EXPECT_EQ(The<MessageBoxes>().Last().caption, u"Velmora Setup Utility");
    EXPECT_EQ(The<MessageBoxes>().Last().style, 0x10u);
}

TEST_F(Utility, LackOfMemory_IsToldToo)
{
    const tests::FailingMemory first(1);
    EXPECT_EQ(app::RunUtility(), 1);
    ASSERT_EQ(The<MessageBoxes>().All().size(), 1u);
    EXPECT_EQ(The<MessageBoxes>().Last().text, u"The window could not be opened:\r\nstd::bad_alloc");
}

}  // namespace
