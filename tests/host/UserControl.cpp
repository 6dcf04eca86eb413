#include "host/UserControl.h"

#include "host/MessageLoop.h"
#include "tests/host/Probe.h"

namespace tests {

class UserControl : public HostTest {};

constexpr const char* nested = R"(Form Form1 { Caption = "Probes" ClientWidth = 4500 ClientHeight = 3000
    Probe Outer { Left = 150 Top = 150 Width = 3000 Height = 1500 TabIndex = 0 Focus = False
        Probe Inner { Left = 300 Top = 150 Width = 1500 Height = 450 TabIndex = 1 }
    }
    Probe Unseen { Left = 0 Top = 2000 Width = 1500 Height = 450 TabIndex = 2 Visible = False }
})";

TEST_F(UserControl, StoredOnes_LiveThroughTheirCallsInOrder)
{
    ASSERT_TRUE(form->Load(nested, factory));
    const Lines loaded = {"Form.Initialize",      "Outer.Initialize",  "Outer.ReadProperties",
                          "Outer.Resize 200x100", "Inner.Initialize",  "Inner.ReadProperties",
                          "Inner.Resize 100x30",  "Unseen.Initialize", "Unseen.ReadProperties",
                          "Unseen.Resize 100x30", "Form.Load"};
    EXPECT_EQ(log.Take(), loaded);
    form->Show();
    host::MessageLoop::RunPending();
    const Lines shown = {"Outer.Show", "Inner.Show", "Inner.EnterFocus", "Inner.GotFocus"};
    EXPECT_EQ(log.Take(), shown);
    EXPECT_FALSE(form->IsChanged());
    form->Unload();
    const Lines unloaded = {"Form.Unload", "Unseen.Terminate", "Inner.Hide", "Inner.Terminate", "Outer.Hide", "Outer.Terminate"};
    EXPECT_EQ(log.Take(), unloaded);
    EXPECT_EQ(form->hWnd(), nullptr);
    EXPECT_EQ(WindowOf(TEXT("Inner")), nullptr);
    form->Unload();
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_FALSE(host::MessageLoop::RunPending());
}

TEST_F(UserControl, NewOne_GetsInitPropertiesAndIsShownWithTheForm)
{
    ASSERT_TRUE(form->Load(nested, factory));
    log.Take();
    ASSERT_NE(form->Add(TEXT("Probe"), TEXT("Early"), 0, 0, 300, 150, factory), nullptr);
    EXPECT_EQ(log.Take(), (Lines{"Early.Initialize", "Early.InitProperties", "Early.Resize 20x10"}));
    form->Show();
    host::MessageLoop::RunPending();
    EXPECT_EQ(std::ranges::count(log.Take(), "Early.Show"), 1);
    auto& outer = ProbeNamed(TEXT("Outer"));
    ASSERT_NE(form->Add(TEXT("Probe"), TEXT("Late"), 0, 0, 300, 150, factory, &outer), nullptr);
    const Lines made = {"Late.Initialize", "Late.InitProperties", "Late.Resize 20x10", "Late.Show"};
    EXPECT_EQ(log.Take(), made);
    EXPECT_EQ(GetParent(WindowOf(TEXT("Late"))), outer.OwnHandle());
    EXPECT_EQ(outer.ContainedControls().size(), 2U);
}

TEST_F(UserControl, Ambient_AnswersForTheFormAndTheContainer)
{
    form->UserMode(false);
    Open(nested);
    auto& outer = ProbeNamed(TEXT("Outer"));
    auto& inner = ProbeNamed(TEXT("Inner"));
    form->BackColor(0x112233);
    EXPECT_EQ(log.Take().front(), "Outer.AmbientChanged BackColor");
    form->ForeColor(0x778899);
    EXPECT_EQ(log.Take().front(), "Outer.AmbientChanged ForeColor");
    EXPECT_EQ(outer.Ambient().ForeColor(), 0x778899U);
    outer.GetSurface().ForeColor(0x445566);
    EXPECT_EQ(outer.Ambient().BackColor(), 0x112233U);
    EXPECT_EQ(inner.Ambient().ForeColor(), 0x445566U);
    EXPECT_FALSE(inner.Ambient().UserMode());
    EXPECT_EQ(inner.Ambient().DisplayName(), TEXT("Inner"));
    inner.Ambient().Font()->Name(TEXT("Other"));
    EXPECT_EQ(form->Font()->Name(), TEXT("MS Sans Serif"));
    inner.GetExtender().Default(true);
    outer.GetExtender().Default(true);
    EXPECT_FALSE(inner.Ambient().DisplayAsDefault());
    EXPECT_TRUE(outer.Ambient().DisplayAsDefault());
}

TEST_F(UserControl, MouseClicks_ComeAsTheirEvents)
{
    Open(nested);
    const HWND window = WindowOf(TEXT("Inner"));
    const auto send = [=](UINT message, WPARAM keys, int x, int y) { SendMessageW(window, message, keys, MAKELPARAM(x, y)); };

    send(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 5, 6);
    EXPECT_EQ(GetCapture(), window);
    send(WM_LBUTTONUP, MK_CONTROL, 7, 8);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(log.Take(), (Lines{"Inner.MouseDown 1 1 5,6", "Inner.MouseUp 1 2 7,8", "Inner.Click"}));

    send(WM_LBUTTONDBLCLK, MK_LBUTTON, 5, 6);
    send(WM_LBUTTONUP, 0, 5, 6);
    // Released outside, and pressed elsewhere.
    send(WM_LBUTTONDOWN, MK_LBUTTON, 5, 6);
    send(WM_LBUTTONUP, 0, -1, 6);
    send(WM_LBUTTONUP, 0, 5, 6);
    EXPECT_EQ(log.Take(), (Lines{"Inner.DblClick", "Inner.MouseUp 1 0 5,6", "Inner.MouseDown 1 0 5,6", "Inner.MouseUp 1 0 -1,6",
                                 "Inner.MouseUp 1 0 5,6"}));

    // The right button holds the mouse until both are up and never clicks.
    send(WM_RBUTTONDOWN, MK_RBUTTON, 1, 1);
    send(WM_LBUTTONDOWN, MK_RBUTTON | MK_LBUTTON, 1, 1);
    send(WM_LBUTTONUP, MK_RBUTTON, 1, 1);
    EXPECT_EQ(GetCapture(), window);
    send(WM_RBUTTONUP, 0, 1, 1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(log.Take(), (Lines{"Inner.MouseDown 2 0 1,1", "Inner.MouseDown 1 0 1,1", "Inner.MouseUp 1 0 1,1", "Inner.Click",
                                 "Inner.MouseUp 2 0 1,1"}));
}

TEST_F(UserControl, ClickThatLosesTheMouse_IsNone)
{
    Open(nested);
    const HWND window = WindowOf(TEXT("Inner"));
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    SetCapture(WindowOf(TEXT("Outer")));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 6));
    EXPECT_EQ(log.Take(), (Lines{"Inner.MouseDown 1 0 5,6", "Inner.MouseUp 1 0 5,6"}));
    EXPECT_EQ(GetCapture(), WindowOf(TEXT("Outer"))) << "which is not the control's to release";
    ReleaseCapture();
}

TEST_F(UserControl, MousePointer_IsWhatTheMouseTurnsInto)
{
    const LPCWSTR pointers[] = {IDC_ARROW,    IDC_ARROW,  IDC_CROSS,   IDC_IBEAM, IDC_ARROW, IDC_SIZEALL,     IDC_SIZENESW, IDC_SIZENS,
                                IDC_SIZENWSE, IDC_SIZEWE, IDC_UPARROW, IDC_WAIT,  IDC_NO,    IDC_APPSTARTING, IDC_HELP,     IDC_SIZEALL};
    Open(nested);
    auto& inner = ProbeNamed(TEXT("Inner"));
    const auto window = reinterpret_cast<WPARAM>(inner.OwnHandle());
    for (std::int16_t number = 0; number < 16; ++number) {
        inner.Input().MousePointer(number);
        SendMessageW(inner.OwnHandle(), WM_SETCURSOR, window, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_EQ(SetCursor(nullptr), LoadCursorW(nullptr, pointers[number])) << number;
    }
}

TEST_F(UserControl, DrawingInAPaint_DoesNotAskForAnother)
{
    Open(nested);
    auto& inner = ProbeNamed(TEXT("Inner"));
    const int before = inner.paints;
    inner.Refresh();
    inner.whenPainting = [&] { inner.GetSurface().Clear(); };
    host::MessageLoop::RunPending();
    EXPECT_EQ(inner.paints, before + 1);
    EXPECT_FALSE(GetUpdateRect(inner.OwnHandle(), nullptr, FALSE));
}

TEST_F(UserControl, Picture_SurvivesHidingAndGoesWithANewSize)
{
    Open(nested);
    auto& inner = ProbeNamed(TEXT("Inner"));
    SetPixel(inner.GetSurface().Dc(), 3, 4, 0x123456);
    inner.GetExtender().Visible(false);
    inner.GetExtender().Visible(true);
    EXPECT_EQ(log.Take(), (Lines{"Inner.Hide", "Inner.LostFocus", "Inner.ExitFocus", "Inner.Show"}));
    EXPECT_EQ(GetPixel(inner.GetSurface().Dc(), 3, 4), 0x123456U);
    EXPECT_EQ(GetPixel(inner.GetSurface().Dc(), 100, 4), CLR_INVALID);
    for (const UINT message : {WM_PRINTCLIENT, WM_PAINT}) {
        const HDC paper = ProbeNamed(TEXT("Outer")).GetSurface().Dc();
        SendMessageW(inner.OwnHandle(), message, reinterpret_cast<WPARAM>(paper), 0);
        EXPECT_EQ(GetPixel(paper, 3, 4), 0x123456U) << message;
        SetPixel(paper, 3, 4, 0);
    }
    inner.GetExtender().Width(1515);
    EXPECT_EQ(log.Take(), Lines{"Inner.Resize 101x30"});
    EXPECT_EQ(GetPixel(inner.GetSurface().Dc(), 3, 4), GetSysColor(COLOR_BTNFACE));
}

TEST_F(UserControl, Surface_DrawsInItsFontAndLetsGoOfAFormerOne)
{
    Open(nested);
    auto& surface = ProbeNamed(TEXT("Inner")).GetSurface();
    const auto font = std::make_shared<host::Font>();
    surface.Font(font);
    const auto selected = [&] { return GetCurrentObject(surface.Dc(), OBJ_FONT); };
    EXPECT_EQ(selected(), font->Handle());
    font->Size(24);
    EXPECT_EQ(selected(), font->Handle());
    LOGFONTW logical{};
    GetObjectW(selected(), sizeof logical, &logical);
    EXPECT_EQ(logical.lfHeight, -32);
}

}  // namespace tests
