// What is left when Windows refuses.
#include "host/MessageLoop.h"
#include "platform/sim/SimPc.h"
#include "tests/host/Probe.h"
#include "tests/support/SentMessages.h"

namespace tests {

class Failures : public HostTest {
protected:
    static constexpr const char* text = R"(Form F {
    ClientWidth = 4500
    ClientHeight = 3000
    Probe A { Left = 150 Top = 300 Width = 900 Height = 300 TabIndex = 0 Default = True }
    Label L { Left = 150 Top = 900 Width = 900 Height = 300 TabIndex = 1 Caption = "&x" }
    ComboBox C { Left = 1500 Top = 900 Width = 900 Height = 300 TabIndex = 2 List = ["a"] }
    Timer T { Interval = 100 }
})";

    /// What a user does with the form, whatever works of it.
    void Use()
    {
        form->Show();
        host::MessageLoop::RunPending();
        Probe& probe = ProbeNamed(TEXT("A"));
        probe.GetSurface().Clear();
        probe.Refresh();
        if (probe.OwnHandle() != nullptr)
            ClickAt(probe.OwnHandle(), 0, 0);
        Press('X', 4);
        Press(VK_RETURN);
        ExtenderOf(TEXT("A")).Width(1200);
        platform::SimPc::Current().Advance(250);
        (void)form->Write();
        form->Unload();
        host::MessageLoop::RunPending();
    }
};

TEST_F(Failures, FormWithoutItsWindow_DoesNotLoad)
{
    platform::SimPc::Current().GetFaults().FailCall("CreateWindowExW", ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_FALSE(form->Load(text, factory));
    EXPECT_EQ(form->LoadError(), "no window");
    EXPECT_EQ(log.Take(), Lines{"Form.Initialize"});
    EXPECT_EQ(host::Form::First(), nullptr);
}

TEST_F(Failures, ControlWithoutItsWindow_LivesOn)
{
    platform::SimPc::Current().GetFaults().FailCall("CreateWindowExW", ERROR_NOT_ENOUGH_MEMORY, 2);
    ASSERT_TRUE(form->Load(text, factory));
    EXPECT_EQ(log.lines[2], "A.ReadProperties without a window");
    Use();
    EXPECT_EQ(log.lines.back(), "A.Terminate");
}

TEST_F(Failures, AnySingleFailingCall_LeavesNothingBehind)
{
    platform::Faults& faults = platform::SimPc::Current().GetFaults();
    std::uint64_t call = 1;
    for (;; ++call) {
        form = std::make_unique<ProbeForm>(log);
        faults.FailNth(call);
        if (form->Load(text, factory))
            Use();
        const bool struck = !faults.Struck().empty();
        faults.FailNth(0);
        form.reset();
        host::MessageLoop::RunPending();
        if (!struck)
            break;
    }
    EXPECT_GT(call, 50U);
}

}  // namespace tests
