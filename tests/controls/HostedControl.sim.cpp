// A check box and a text box whose windows Windows refuses, or whose program is left for another.
#include "controls/CheckBox/CheckBox.h"
#include "controls/TextBox/TextBox.h"
#include "platform/sim/SimPc.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class HostedControlSurroundings : public FormFixture {};

TEST_F(HostedControlSurroundings, WithoutAWindow_KeepsWhatItHad)
{
    Open(R"(TextBox Text { Width = 900 Height = 300 TabIndex = 1 Text = "stored" } CheckBox Tick { Top = 600 Width = 900 Height = 300 })");
    auto& text = Get<controls::TextBox>("Text");
    auto& tick = Get<controls::CheckBox>("Tick");
    text.SetFocus();
    SendMessageW(text.hWnd(), WM_CHAR, 'x', 1);
    tick.Value(1);
    platform::SimPc& pc = platform::SimPc::Current();
    pc.GetFaults().FailAlways("CreateWindowExW", ERROR_NOT_ENOUGH_MEMORY);
    text.MultiLine(true);
    tick.AlignRight(true);
    EXPECT_EQ(text.hWnd(), nullptr);
    EXPECT_EQ(text.Text(), TEXT("xstored"));
    EXPECT_EQ(tick.Value(), 1);
    tick.Click.Connect([this] { Note("click"); });
    tick.Value(1);
    EXPECT_EQ(Take(), Lines{});
    tick.Value(0);
    EXPECT_EQ(Take(), Lines{"click"});
    pc.Trace().Start();
    for (const HWND place : {HWND_TOP, HWND_BOTTOM, tick.OwnHandle()})
        tick.ZedOrder(place);
    EXPECT_EQ(pc.Trace().Count("RedrawWindow"), 0U) << "not the whole desktop";
    pc.GetFaults().Clear();
    text.MultiLine(false);
    tick.AlignRight(false);
    EXPECT_EQ(text.Text(), TEXT("xstored"));
    EXPECT_EQ(tick.Value(), 0);
    EXPECT_EQ(SendMessageW(tick.hWnd(), BM_GETCHECK, 0, 0), 0);
}

TEST_F(HostedControlSurroundings, AnotherProgramInFront_TakesTheLookOfTheFocusMeanwhile)
{
    Open("CheckBox Tick { Width = 900 Height = 300 }");
    const auto looksFocused = [&] { return (SendMessageW(Any("Tick").hWnd(), BM_GETSTATE, 0, 0) & BST_FOCUS) != 0; };
    EXPECT_TRUE(looksFocused());
    platform::SimPc::Current().ActAs({900, 904}, [] {
        CreateWindowExW(0, TEXT("Button"), TEXT(""), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    });
    EXPECT_FALSE(looksFocused());
    SetForegroundWindow(form->hWnd());
    EXPECT_TRUE(looksFocused());
    EXPECT_EQ(Focused(), "Tick");
}

}  // namespace tests
