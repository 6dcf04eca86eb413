// What only the stand-in PC shows: the events that readers are told, and a PC where they are not to be had.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "platform/sim/SimPc.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/FailingMemory.h"
#include "tests/support/Reader.h"

#include <functional>
#include <optional>

namespace tests {

class AccessibleEvents : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(CommandButton Push { Left = 150 Top = 150 Width = 1500 Height = 450 TabIndex = 1 Caption = "Push" }
            CommandButton Toggle { Left = 150 Top = 900 Width = 1500 Height = 450 TabIndex = 2 ButtonType = 1 }
            CheckBox Check { Left = 150 Top = 1500 Width = 1500 Height = 450 TabIndex = 3 Caption = "Check" }
            Frame Group { Left = 4500 Top = 150 Width = 3000 Height = 1500 TabIndex = 4 Caption = "Group" })");
    }
    /// Each event of the control's client area while `act` runs: 0x800A for its state, 0x800C for its name.
    Lines EventsOf(std::string_view name, const std::function<void()>& act)
    {
        platform::CallTrace& trace = platform::SimPc::Current().Trace();
        trace.Start();
        act();
        trace.Stop();
        char window[32];
        std::snprintf(window, sizeof window, ", 0x%llX, 0x",
                      static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(Any(name).hWnd())));
        Lines events;
        for (const platform::CallRecord& call : trace.Of("NotifyWinEvent")) {
            EXPECT_NE(call.arguments.find(window), std::string::npos) << call.arguments;
            EXPECT_TRUE(call.arguments.ends_with("FFFFFFFC, 0")) << call.arguments;
            events.push_back(call.arguments.substr(0, call.arguments.find(',')));
        }
        return events;
    }
};

TEST_F(AccessibleEvents, WhatWindowsCannotSee_IsTold)
{
    auto& push = Get<controls::CommandButton>("Push");
    auto& toggle = Get<controls::CommandButton>("Toggle");
    const struct {
        const char* what;
        const char* control;
        std::function<void()> act;
        Lines events;
    } cases[] = {
        {"caption", "Push", [&] { push.Caption(TEXT("Other")); }, {"0x800C"}},
        {"text for readers", "Push", [&] { push.ScreenReaderCaption(TEXT("Other")); }, {"0x800C"}},
        {"a press", "Push", [&] { SendMessageW(push.hWnd(), WM_KEYDOWN, VK_SPACE, 1); }, {"0x800A"}},
        {"its end", "Push", [&] { SendMessageW(push.hWnd(), WM_KEYUP, VK_SPACE, 1); }, {"0x800A"}},
        {"disabled", "Push", [&] { push.Enabled(false); }, {"0x800A"}},
        {"default", "Push", [&] { push.GetExtender().Default(true); }, {"0x800A"}},
        {"a redraw", "Push", [&] { push.Refresh(); }, {}},
        {"on", "Toggle", [&] { toggle.Value(1); }, {"0x800A"}},
        {"off", "Toggle", [&] { toggle.Value(0); }, {"0x800A"}},
        {"the frame's caption", "Group", [&] { Get<controls::Frame>("Group").Caption(TEXT("Other")); }, {"0x800C"}},
        {"the frame disabled", "Group", [&] { Get<controls::Frame>("Group").Enabled(false); }, {"0x800A"}},
        {"a system window, which Windows sees",
         "Check",
         [&] {
             Get<controls::CheckBox>("Check").Value(1);
             Get<controls::CheckBox>("Check").Caption(TEXT("Other"));
             Get<controls::CheckBox>("Check").Enabled(false);
         },
         {}},
    };
    for (const auto& [what, control, act, events] : cases)
        EXPECT_EQ(EventsOf(control, act), events) << what;
}

TEST_F(AccessibleEvents, DefaultAction_IsAKeyAsTheKeyboardSendsIt)
{
    const Reader reader = Reader::Of(SendMessageW(Any("Push").hWnd(), WM_GETOBJECT, 0, OBJID_CLIENT));
    platform::CallTrace& trace = platform::SimPc::Current().Trace();
    trace.Start();
    EXPECT_EQ(reader->accDoDefaultAction(itself), S_OK);
    trace.Stop();
    const auto posted = trace.Of("PostMessageW");
    ASSERT_EQ(posted.size(), 2U);
    EXPECT_TRUE(posted[0].arguments.ends_with(", 0x100, 0x20, 1")) << posted[0].arguments;
    EXPECT_TRUE(posted[1].arguments.ends_with(", 0x101, 0x20, 0xC0000001")) << posted[1].arguments;
}

TEST_F(AccessibleEvents, WithoutTheLibraryOrOle_WindowsAnswers)
{
    platform::Faults& faults = platform::SimPc::Current().GetFaults();
    for (const char* const function : {"LoadLibraryExW", "GetProcAddress", "OleInitialize", "LresultFromObject"}) {
        faults.FailAlways(function, ERROR_NOT_ENOUGH_MEMORY);
        EXPECT_EQ(SendMessageW(Any("Push").hWnd(), WM_GETOBJECT, 0, OBJID_CLIENT), 0) << function;
        faults.Clear();
    }
}

/// Exceptions end inside: a reader is told of the shortage and gets no half of an answer.
TEST_F(AccessibleEvents, WithoutMemory_NothingLeaves)
{
    const Reader reader = Reader::Of(SendMessageW(Any("Push").hWnd(), WM_GETOBJECT, 0, OBJID_CLIENT));
    ASSERT_TRUE(reader);
    Get<controls::CommandButton>("Push").Caption(TEXT("A caption that is too long to need no memory"));
    bool struck = true, refused = false;
    for (int n = 1; struck; ++n) {
        BSTR name = nullptr;
        std::optional<FailingMemory> failing(n);
        const HRESULT result = reader->get_accName(itself, &name);
        struck = FailingMemory::HasStruck();
        failing.reset();
        EXPECT_EQ(result, name ? S_OK : E_OUTOFMEMORY);
        refused = refused || !name;
        SysFreeString(name);
    }
    EXPECT_TRUE(refused);
}

}  // namespace tests
