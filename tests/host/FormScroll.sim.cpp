// FormScroll while the screen changes.
#include "platform/sim/Desktop.h"
#include "tests/host/Probe.h"

namespace tests {

class FormScrollScreen : public HostTest {};

TEST_F(FormScrollScreen, AnotherSize_IsFollowedAlsoByAnIcon)
{
    auto& desktop = platform::SimPc::Current().Get<platform::Desktop>();
    const struct {
        bool isIcon;
        int width, height;
        Place window;  // the frame takes 3 pixels a side and 23 for the caption, the task bar 40
        DWORD bars;
        LONG at;  // of the control, after the form was scrolled down as far as it goes
    } steps[] = { // 306 by 429: in the middle of 1280 by 760.
                 {false, 1280, 800, {487, 165, 793, 594}, 0, 10},
                 {false, 1280, 500, {487, 31, 793, 460}, 0, 10},
                 {false, 800, 440, {477, 0, 800, 400}, WS_VSCROLL, -19},
                 {false, 250, 800, {0, 0, 250, 446}, WS_HSCROLL, 10},
                 // The one bar takes the room that makes the other one necessary.
                 {false, 306, 440, {0, 0, 306, 400}, WS_VSCROLL | WS_HSCROLL, -36},
                 {false, 300, 469, {0, 0, 300, 429}, WS_VSCROLL | WS_HSCROLL, -7},
                 {true, 1280, 800, {0, 0, 306, 429}, 0, 10},
                 {true, 1280, 340, {0, 0, 323, 300}, WS_VSCROLL, -119}};
    Open("Form F {\nScaleMode = 3\nClientWidth = 4500\nClientHeight = 6000\nProbe A { Left = 10 Top = 10 Width = 60 Height = 20 }\n}");
    for (const auto& [isIcon, width, height, window, bars, at] : steps) {
        SCOPED_TRACE(testing::Message() << width << " by " << height);
        if (isIcon)
            ShowWindow(form->hWnd(), SW_MINIMIZE);
        desktop.Resolution(width, height);
        if (isIcon)
            ShowWindow(form->hWnd(), SW_RESTORE);
        EXPECT_EQ(PlaceIn(form->hWnd()), window);
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(form->hWnd(), GWL_STYLE)) & (WS_VSCROLL | WS_HSCROLL), bars);
        if (bars != 0)
            SendMessageW(form->hWnd(), WM_VSCROLL, SB_BOTTOM, 0);
        EXPECT_EQ(PlaceIn(WindowOf(TEXT("A")), form->hWnd())[1], at);
    }
    // 27 of its 400 rows are seen: a notch of the wheel goes no further, though three lines would be 48.
    desktop.Resolution(1280, 96);
    SendMessageW(form->hWnd(), WM_VSCROLL, SB_TOP, 0);
    SendMessageW(form->hWnd(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0);
    EXPECT_EQ(PlaceIn(WindowOf(TEXT("A")), form->hWnd())[1], 10 - 27);
}

}  // namespace tests
