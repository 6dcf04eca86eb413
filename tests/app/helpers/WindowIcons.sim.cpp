#include "app/helpers/WindowIcons.h"

#include "platform/sim/Desktop.h"
#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

TEST(WindowIcons, GoToTheWindowAndTheLastOwner)
{
    const auto make = [](HWND owner) {
        return CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP, 0, 0, 9, 9, owner, nullptr, nullptr, nullptr);
    };
    SimPc& pc = SimPc::Current();
    pc.Get<Desktop>().AddIconResource(u"AAA");
    const HWND root = make(nullptr);
    const HWND middle = make(root);
    const HWND window = make(middle);
    pc.Trace().Start();
    helpers::SetWindowIcons(window);
    ASSERT_EQ(pc.Trace().Count("LoadImageW"), 2u);
    EXPECT_TRUE(pc.Trace().Of("LoadImageW")[0].arguments.ends_with("\"AAA\", 1, 0x20, 0x20, 0x8080"));
    EXPECT_TRUE(pc.Trace().Of("LoadImageW")[1].arguments.ends_with("\"AAA\", 1, 0x10, 0x10, 0x8080"));
    const auto icon = [](HWND of, WPARAM size) { return SendMessageW(of, WM_GETICON, size, 0); };
    EXPECT_NE(icon(window, ICON_BIG), 0);
    EXPECT_NE(icon(window, ICON_SMALL), 0);
    EXPECT_EQ(icon(root, ICON_BIG), icon(window, ICON_BIG));
    EXPECT_EQ(icon(middle, ICON_BIG), 0);
    DestroyWindow(root);
}

}  // namespace
