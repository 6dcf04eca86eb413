#include "host/Form.h"

#include "host/MessageLoop.h"
#include "tests/host/Probe.h"
#include "tests/support/SentMessages.h"

namespace tests {

class Form : public HostTest {};

constexpr const char* small = R"(Form F {
    Caption = "Small"
    ClientWidth = 4830
    ClientHeight = 3000
    Probe A { Left = 150 Top = 300 Width = 900 Height = 300 TabIndex = 0 }
    Probe B { Left = 150 Top = 900 Width = 900 Height = 300 TabIndex = 1 }
    Timer Clock { Interval = 10000 }
})";

TEST_F(Form, Window_IsAsDesignedAndInTheMiddle)
{
    Open(small);
    RECT client{}, window{}, area{};
    GetClientRect(form->hWnd(), &client);
    GetWindowRect(form->hWnd(), &window);
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_EQ(client.right, 322);
    EXPECT_EQ(client.bottom, 200);
    EXPECT_NEAR(window.left - area.left, area.right - window.right, 1);
    EXPECT_NEAR(window.top - area.top, area.bottom - window.bottom, 1);
    const auto style = static_cast<DWORD>(GetWindowLongW(form->hWnd(), GWL_STYLE));
    constexpr DWORD wanted = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    EXPECT_EQ(style & (wanted | WS_THICKFRAME | WS_MAXIMIZEBOX), wanted);
    EXPECT_EQ(TextOf(form->hWnd()), TEXT("Small"));
    EXPECT_EQ(host::Form::First(), form.get());
    EXPECT_EQ(host::Form::Of(WindowOf(TEXT("A"))), form.get());
    EXPECT_EQ(host::Form::Of(GetDesktopWindow()), nullptr);
}

TEST_F(Form, CloseBox_UnloadsAndEndsTheLoop)
{
    Open(small);
    PostMessageW(form->hWnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(host::MessageLoop::Run(), 0);
    EXPECT_EQ(log.Take(), (Lines{"Form.Unload", "B.Hide", "B.Terminate", "A.Hide", "A.Terminate"}));
    EXPECT_EQ(host::Form::First(), nullptr);
}

TEST_F(Form, UnloadedWhileLoading_NeverShows)
{
    log.on["Form.Load"] = [&] { form->Unload(); };
    EXPECT_TRUE(form->Load(small, factory));
    form->Show();
    EXPECT_EQ(form->hWnd(), nullptr);
    EXPECT_EQ(host::MessageLoop::Run(), 0);
}

TEST_F(Form, UnloadFromInsideAnyEvent_IsSafe)
{
    for (const std::string event :
         {"A.MouseDown 1 0 1,1", "A.MouseUp 1 0 1,1", "A.Click", "B.LostFocus", "B.ExitFocus", "A.EnterFocus", "A.GotFocus", "A.KeyDown 65",
          "A.KeyPress 97", "A.KeyUp 65", "A.Hide", "A.AccessKeyPress 120", "A.Resize 61x20"}) {
        form = std::make_unique<ProbeForm>(log);
        log.on.clear();
        Open(small);
        ProbeNamed(TEXT("B")).SetFocus();
        log.Take();
        log.on[event] = [&] {
            form->Unload();
            EXPECT_EQ(ProbeNamed(TEXT("A")).GetSurface().Dc(), nullptr);
        };
        ProbeNamed(TEXT("A")).Input().AccessKey(TEXT("x"));
        ClickAt(WindowOf(TEXT("A")), 1, 1);
        Press('A');
        Press('X', 4);
        if (form->IsLoaded())
            ExtenderOf(TEXT("A")).Width(915);
        ExtenderOf(TEXT("A")).Visible(false);
        EXPECT_FALSE(form->IsLoaded()) << event;
        EXPECT_EQ(log.lines.back(), "A.Terminate") << event;
        host::MessageLoop::RunPending();
    }
}

TEST_F(Form, ExceptionsInHandlers_EndAtTheWindow)
{
    Open(small);
    int thrown = 0;
    for (const char* event : {"A.MouseDown 1 0 0,0", "A.MouseUp 1 0 0,0", "A.KeyDown 65", "A.GotFocus", "Form.Unload"})
        log.on[event] = [&] { throw ++thrown; };
    SetFocus(nullptr);
    ClickAt(WindowOf(TEXT("A")), 0, 0);
    Press('A');
    SendMessageW(form->hWnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(thrown, 5);
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_EQ(log.lines.back(), "A.Terminate");
}

TEST_F(Form, BadTexts_FailWithAReason)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Form F {\n    A = \n}", "line 3: a value"},
        {"Frame F {\n}", "the text does not begin with a form"},
        {"Form F {\n    Gadget G {\n    }\n}", "unknown kind of control: Gadget"},
        {"Form F {\n    Probe P {\n    }\n    Label L {\n        Label M {\n        }\n    }\n}", "L can't contain controls"}};
    for (const auto& [text, reason] : cases) {
        form = std::make_unique<ProbeForm>(log);
        EXPECT_FALSE(form->Load(text, factory));
        EXPECT_EQ(form->LoadError().substr(0, std::string_view(reason).size()), reason);
        EXPECT_EQ(form->hWnd(), nullptr);
        form->Show();
        EXPECT_EQ(host::Form::First(), nullptr);
    }
}

TEST_F(Form, Routines_AreFoundByNameOncePublished)
{
    EXPECT_EQ(form->RoutineByName(TEXT("Form_KeyDown")), nullptr);
    form->Publish(TEXT("Form_KeyDown"), [](std::int16_t& code, std::int16_t& shift) { code = static_cast<std::int16_t>(code + shift); });
    const auto* const routine = form->RoutineByName(TEXT("Form_KeyDown"));
    ASSERT_NE(routine, nullptr);
    std::int16_t code = 20, shift = 4;
    (*routine)(code, shift);
    EXPECT_EQ(code, 24);
    // A key that is sent to the form's window is the form's own.
    Open(small);
    SendMessageW(form->hWnd(), WM_KEYDOWN, 70, 0);
    EXPECT_EQ(log.Take(), Lines{"Form.KeyDown 70"});
}

TEST_F(Form, TwoForms_TheLoopEndsWithTheLast)
{
    Open(small);
    ProbeForm other(log);
    ASSERT_TRUE(other.Load("Form G { }", factory));
    EXPECT_EQ(host::Form::First(), form.get());
    form->Unload();
    EXPECT_TRUE(host::MessageLoop::RunPending());
    EXPECT_EQ(host::Form::First(), &other);
    other.Unload();
    EXPECT_FALSE(host::MessageLoop::RunPending());
}

}  // namespace tests
