// Every face of a button, with a picture on it, while one Windows call after another fails: drawing reports nothing, leaves nothing open
// and nothing selected, and draws whole the next time.
#include "controls/CommandButton/CommandButton.h"
#include "controls/RegisterControls.h"
#include "host/Form.h"
#include "platform/sim/Graphics.h"
#include "tests/support/FaultSweep.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class DrawingFaults : public testing::TestWithParam<int> {
protected:
    /// A bitmap for the normal state, an icon for the hot one.
    void Load(host::Form& form)
    {
        controls::RegisterControls(factory_);
        ASSERT_TRUE(
            form.Load("Form F { ClientWidth = 1800 ClientHeight = 1200 CheckBox Other { Left = 900 Width = 600 Height = 300 TabIndex = 0 } "
                      "CommandButton C { Width = 900 Height = 345 Caption = \"&Go\" Style = " +
                          std::to_string(GetParam()) + R"( USeCustomColors = 1 BackColor = 0x00406080 MaskColorEnabled = 1
            Picture = Bitmap("Qk1GAAAAAAAAADYAAAAoAAAAAgAAAAIAAAABABgAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAwMDAAAAAAAAeCmTAwMAAAA==")
            PictureOver = Icon("AAABAAEAAgIAAAEAIABAAAAAFgAAACgAAAACAAAABAAAAAEAIAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAHgpkAB4KZAAAAAAAgAAAAEAAAAA=") } })",
                      factory_))
            << form.LoadError();
        form.Show();
    }

private:
    host::ControlFactory factory_;
};

std::uint64_t Picture(controls::CommandButton& button)
{
    const auto pixels = platform::SimPc::Current().Get<platform::Graphics>().PixelsOf(button.GetSurface().Dc());
    return pixels ? pixels->Hash() : 0;
}

TEST_P(DrawingFaults, LeaveTheNextDrawingWhole)
{
    tests::FaultSweep([this](const auto& arm) {
        host::Form form;
        Load(form);
        auto& button = dynamic_cast<controls::CommandButton&>(*form.Find(TEXT("C")));
        const std::uint64_t before = Picture(button);
        arm();
        SendMessageW(button.hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
        SendMessageW(button.hWnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
        SendMessageW(button.hWnd(), WM_LBUTTONUP, 0, MAKELPARAM(5, 6));
        SendMessageW(button.hWnd(), WM_MOUSELEAVE, 0, 0);
        button.Enabled(false);
        button.Enabled(true);
        for (int time = 0; time < 2; ++time) {
            form.Find(TEXT("Other"))->SetFocus();
            button.Refresh();
        }
        // The one call that fails spoils one drawing at the most.
        if (Picture(button) != before)
            button.DrawControl();
        EXPECT_EQ(Picture(button), before);
        form.Unload();
    });
}

INSTANTIATE_TEST_SUITE_P(EachStyle, DrawingFaults, testing::Range(0, 19));

}  // namespace
