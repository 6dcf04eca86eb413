// A form that the screen has no room for: the size of its window, and what scrolls it.
#include "host/FormScroll.h"

#include "host/ComboBox.h"
#include "tests/host/Probe.h"
#include "tests/support/UserInput.h"

namespace tests {

class FormScroll : public HostTest {
protected:
    FormScroll()
    {
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        RECT frame{};
        AdjustWindowRectEx(&frame, WS_CAPTION | WS_SYSMENU, FALSE, 0);
        room = {area.right - area.left - (frame.right - frame.left), area.bottom - area.top - (frame.bottom - frame.top)};
    }

    /// A form that is so many pixels wider and higher than what the work area has room for, its controls in pixels.
    void OpenBeyond(LONG across, LONG down, const std::string& controls = {})
    {
        Open("Form F {\nScaleMode = 3\nKeyPreview = True\nClientWidth = " + std::to_string((room.cx + across) * 15) +
             "\nClientHeight = " + std::to_string((room.cy + down) * 15) + "\n" + controls + "}");
    }

    /// 400 pixels too high. Half is cut through by the lower edge, Last ends with the form.
    void OpenHigh()
    {
        const auto at = [&](LONG top) { return " { Left = 8 Width = 60 Height = 20 Top = " + std::to_string(room.cy + top); };
        OpenBeyond(
            -100, 400,
            "Probe First { Width = 60 Height = 20 TabIndex = 1 }\nProbe Half" + at(-10) + " TabIndex = 3 }\nProbe Below" + at(100) +
                " TabIndex = 4 }\nProbe Last" + at(380) + " TabIndex = 2 Key = \"l\" }\nProbe Huge { Left = 90 Top = 200 Width = 20" +
                " TabIndex = 5 TabStop = False Height = " + std::to_string(room.cy + 100) +
                " }\nComboBox Combo { Left = 120 Width = 100 Height = 21 TabIndex = 6 TabStop = False List = [\"a\", \"b\", \"c\"] }\n");
    }

    /// How far the form is scrolled down: by its bar and by its first control.
    LONG Down()
    {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        EXPECT_TRUE(GetScrollInfo(form->hWnd(), SB_VERT, &info));
        EXPECT_EQ(static_cast<LONG>(info.nPage), room.cy);
        EXPECT_EQ(info.nMax, room.cy + 399);
        const Place first = PlaceIn(WindowOf(TEXT("First")), form->hWnd());
        EXPECT_EQ(first[0], 0);
        EXPECT_EQ(first[1], -info.nPos);
        return info.nPos;
    }

    void Send(UINT message, WPARAM wParam) { SendMessageW(form->hWnd(), message, wParam, 0); }

    RECT area{};
    SIZE room{};
};

TEST_F(FormScroll, BarWheelAndKeys_MoveItToItsEndsAndNoFurther)
{
    OpenHigh();
    const std::string written = form->Write();
    const std::pair<std::function<void()>, LONG> steps[] = {
        {[&] { Send(WM_VSCROLL, SB_LINEUP); }, 0},
        {[&] { Send(WM_VSCROLL, SB_LINEDOWN); }, 16},
        {[&] { Send(WM_VSCROLL, SB_PAGEDOWN); }, 400},
        {[&] { Send(WM_VSCROLL, SB_LINEUP); }, 384},
        {[&] { Send(WM_VSCROLL, SB_PAGEUP); }, 0},
        {[&] { Send(WM_VSCROLL, SB_BOTTOM); }, 400},
        {[&] { Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 300)); }, 300},
        {[&] { Send(WM_VSCROLL, SB_TOP); }, 0},
        // The wheel goes to whoever has the focus; a probe has no use for it. Three lines a notch, half of it for half a notch.
        {[&] { SendMessageW(GetFocus(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0); }, 48},
        {[&] { SendMessageW(GetFocus(), WM_MOUSEWHEEL, MAKEWPARAM(0, 60), 0); }, 24},
        {[&] { Press(VK_NEXT); }, 400},
        {[&] { Press(VK_PRIOR); }, 0},
        {[&] { Press(VK_END); }, 0},
        {[&] { Press(VK_END, 2); }, 400},
        {[&] { Press(VK_HOME, 2); }, 0},
        {[&] {
             form->changeKey = [](std::int16_t& code) { code = 0; };
             Press(VK_NEXT);
             form->changeKey = nullptr;
         },
         0},
        // A list turns its own pages.
        {[&] {
             form->Find(TEXT("Combo"))->SetFocus();
             Press(VK_NEXT);
             Press(VK_END, 2);
         },
         0}};
    for (std::size_t step = 0; step < std::size(steps); ++step) {
        steps[step].first();
        EXPECT_EQ(Down(), steps[step].second) << "step " << step;
    }
    EXPECT_EQ(form->Find<host::ComboBox>(TEXT("Combo"))->ListIndex(), 2);
    // What is stored knows nothing of it, and what is moved now goes where it belongs.
    Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 100));
    EXPECT_FALSE(form->IsChanged());
    EXPECT_EQ(form->Write(), written);
    ExtenderOf(TEXT("Below")).Top(150);
    EXPECT_EQ(PlaceIn(WindowOf(TEXT("Below")), form->hWnd())[1], 50);
}

TEST_F(FormScroll, Focus_IsFollowedUnlessTheMouseBringsIt)
{
    OpenHigh();
    const std::pair<std::function<void()>, LONG> steps[] = {
        {[&] { Press('L', 4); }, 400},
        // No further than to have a line below or above it.
        {[&] { ProbeNamed(TEXT("First")).SetFocus(); }, 0},
        {[&] { ProbeNamed(TEXT("Below")).SetFocus(); }, 136},
        {[&] { ProbeNamed(TEXT("Half")).SetFocus(); }, 136},
        // Of what is higher than the window the beginning.
        {[&] { ProbeNamed(TEXT("Huge")).SetFocus(); }, 184},
        // Half a control that is clicked stays where it is: the button is let go over it.
        {[&] {
             ProbeNamed(TEXT("First")).SetFocus();
             log.Take();
             MoveMouse(WindowOf(TEXT("Half")), 5, 5);
             ClickMouse();
             EXPECT_EQ(log.lines.back(), "Half.Click");
         },
         0}};
    for (std::size_t step = 0; step < std::size(steps); ++step) {
        steps[step].first();
        EXPECT_EQ(Down(), steps[step].second) << "step " << step;
    }
}

TEST_F(FormScroll, WideForm_ScrollsSidewaysByTheSameHands)
{
    OpenBeyond(300, -100, "Probe A { Left = 8 Width = 60 Height = 20 }\n");
    const std::pair<std::function<void()>, LONG> steps[] = {{[&] { Send(WM_HSCROLL, SB_LINEDOWN); }, 16},
                                                            {[&] { Send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120))); }, 64},
                                                            {[&] { Press(VK_NEXT); }, 300},
                                                            {[&] { Send(WM_HSCROLL, SB_TOP); }, 0}};
    for (const auto& [act, expected] : steps) {
        act();
        EXPECT_EQ(PlaceIn(WindowOf(TEXT("A")), form->hWnd())[0], 8 - expected);
    }
}

}  // namespace tests
