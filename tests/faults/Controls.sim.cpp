// Each control while one Windows call after another fails: without a window, a heap, a device context, a font or a theme it neither
// crashes nor leaks.
#include "controls/RegisterControls.h"
#include "controls/ThemeState.h"
#include "host/Form.h"
#include "host/MessageLoop.h"
#include "platform/sim/Desktop.h"
#include "tests/support/FaultSweep.h"

#include <gtest/gtest.h>

using tests::FaultSweep;

namespace {

struct Kind {
    const char* name;
    const char* control;
};

constexpr const char* tip = R"(ToolTipTextW = "A tip" Tooltiptitle = "Title" Left = 150 Top = 150 Width = 900 Height = 450 )";

class ControlFaults : public testing::TestWithParam<Kind> {
protected:
    /// The control alone on its form. The version of the common controls is asked for anew.
    bool Load(host::Form& form)
    {
        controls::ThemeState::OfProcess().AskVersionWith({});
        controls::RegisterControls(factory_);
        platform::SimPc::Current().OnPump([] { host::MessageLoop::RunPending(); });
        const std::string control = GetParam().control;
        const std::size_t brace = control.find('{') + 1;
        return form.Load(
            "Form F { ClientWidth = 1800 ClientHeight = 1200\n" + control.substr(0, brace) + tip + control.substr(brace) + "\n}", factory_);
    }
    ~ControlFaults() override { controls::ThemeState::OfProcess().AskVersionWith({}); }

private:
    host::ControlFactory factory_;
};

TEST_P(ControlFaults, Creation)
{
    FaultSweep([this](const auto& arm) {
        host::Form form;
        arm();
        const bool isLoaded = Load(form);
        EXPECT_EQ(isLoaded, form.LoadError().empty()) << form.LoadError();
        EXPECT_EQ(isLoaded, IsWindow(form.hWnd()) != FALSE);
        form.Show();
        platform::SimPc::Current().Settle();
        form.Unload();
        EXPECT_EQ(form.hWnd(), nullptr);
    });
}

/// What happens to a control in its life: the mouse rests on it and leaves, it is told to look and stand otherwise, and draws each time.
TEST_P(ControlFaults, Life)
{
    FaultSweep([this](const auto& arm) {
        auto& pc = platform::SimPc::Current();
        auto& desktop = pc.Get<platform::Desktop>();
        host::Form form;
        ASSERT_TRUE(Load(form)) << form.LoadError();
        form.Show();
        pc.Settle();
        host::Control& control = *form.Controls().front();
        arm();
        desktop.Hover(control.OwnHandle(), 20, 10);
        desktop.Hover(control.OwnHandle(), 22, 10);
        pc.Advance(700);
        desktop.MouseDown();
        desktop.MouseUp();
        desktop.Press(VK_SPACE);
        desktop.Hover(form.hWnd(), 110, 75);
        pc.Advance(200);
        control.Enabled(false);
        control.GetExtender().Move(300, 300, 1200, 600);
        control.Enabled(true);
        form.BackColor(0x8080FF);
        desktop.AnnounceThemeChange();
        desktop.AnnounceColorChange();
        pc.Settle();
        EXPECT_TRUE(IsWindow(form.hWnd()));
        form.Unload();
    });
}

const Kind kinds[] = {
    {"ThemedFrame", R"(Frame C { ForceTrueType = 1 DragDropEnabled = 1 EnableDisableChilds = 1 Caption = "A &frame" Font = Font("Symbol", 8)
        Label L { Left = 150 Top = 225 Width = 450 Height = 210 Caption = "text" } })"},
    {"RoundFrame", "Frame C { UseClassicTheme = 1 BackStyle = 1 BorderRound = 8 BorderColorDark = 0x000000FF }"},
    {"SquareFrame", "Frame C { UseClassicTheme = 1 BorderColorDark = 0x000000FF }"},
    {"ThemedButton", R"(CommandButton C { Style = 7 Caption = "A &button" ShowFocus = 1 ForceTrueType = 1 Font = Font("Symbol", 8) })"},
    {"SoftRoundButton", R"(CommandButton C { Style = 10 Caption = "A &button" ShowFocus = 1 FontAutoSize = 1 CaptionFx = 1 })"},
    {"ClassicButton", R"(CommandButton C { Style = 0 Caption = "A &button" ButtonType = 1 FontAutoSize = 2 USeCustomColors = 1 })"},
    {"CheckBox", R"(CheckBox C { AutoSize = 1 ForceTrueType = 1 Caption = "A &check box" Font = Font("Symbol", 8) })"},
    {"TransparentCheckBox", R"(CheckBox C { Transparent = 1 UseClassicTheme = 1 BackStyle = 1 Caption = "A &check box" })"},
    {"TextBox", R"(TextBox C { Text = "text" ForceTrueType = 1 DragDropEnabled = 1 UseSystemPasswordChar = 1 Font = Font("Symbol", 8) })"},
    {"MultiLineTextBox", R"(TextBox C { Text = "one two" MultiLine = 1 ScrollBars = 2 WordWrap = 2 UseClassicTheme = 1 })"}};

INSTANTIATE_TEST_SUITE_P(EachOf, ControlFaults, testing::ValuesIn(kinds), [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
