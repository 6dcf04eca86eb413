#include "controls/Frame/Frame.h"

#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/FramePainter.h"
#include "controls/TextBox/TextBox.h"
#include "controls/ThemeState.h"
#include "tests/controls/FormFixture.h"

#include <algorithm>
#include <functional>

namespace tests {

class Frame : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(Frame Box { Width = 4500 Height = 3000 Caption = "A &frame" EnableDisableChilds = 1
            CommandButton First { Top = 600 Width = 900 Height = 300 TabIndex = 1 }
            CommandButton Off { Top = 900 Width = 900 Height = 300 TabIndex = 2 Enabled = False }
            TextBox Text { Top = 1500 Width = 900 Height = 300 TabIndex = 3 Text = "" }
            Timer Clock { Interval = 100 Enabled = False }
        })");
    }
    controls::Frame& Box() { return Get<controls::Frame>("Box"); }
};

TEST_F(Frame, Caption_IsMeasuredWithoutItsMarks)
{
    const std::pair<const WCHAR*, const WCHAR*> cases[] = {{TEXT("Save && Exit"), TEXT("Save A Exit")},
                                                           {TEXT("&Options"), TEXT("Options")},
                                                           {TEXT(""), TEXT(" ")},
                                                           {TEXT("&&&x"), TEXT("Ax")},
                                                           {TEXT("end&"), TEXT("end")}};
    for (const auto& [caption, measured] : cases)
        EXPECT_EQ(controls::AnalyseFrameCaption(caption).measured, measured);
    EXPECT_EQ(Box().AccessKey(), TEXT("f"));
    Any("Text").SetFocus();
    Press('F', 4);
    EXPECT_EQ(Focused(), "First") << "the key of what can't have the focus is for the control that follows";
}

TEST_F(Frame, Caption_IsTheWindowsTextToo)
{
    Box().Caption(TEXT("Other"));
    WCHAR text[20]{};
    GetWindowTextW(Box().hWnd(), text, 20);
    EXPECT_STREQ(Narrow(text).c_str(), "Other");
    SetWindowTextW(Box().hWnd(), TEXT("tampered"));
    EXPECT_EQ(Box().Caption(), TEXT("Other"));
    GetWindowTextW(Box().hWnd(), text, 20);
    EXPECT_STREQ(Narrow(text).c_str(), "Other") << "reading brings the window into line";
}

TEST_F(Frame, Children_ThatWereDisabledBefore_StayDisabled)
{
    Box().Enabled(false);
    for (const char* const name : {"First", "Off", "Text"})
        EXPECT_FALSE(Any(name).Enabled()) << name;
    EXPECT_FALSE(IsWindowEnabled(Box().hWnd()));
    Box().Enabled(true);
    EXPECT_TRUE(Any("First").Enabled());
    EXPECT_FALSE(Any("Off").Enabled());
    EXPECT_TRUE(Any("Text").Enabled());
    EXPECT_FALSE(Any("Clock").Enabled()) << "timers are none of its business";
    Any("Off").Enabled(true);
    Box().Enabled(false);
    Box().Enabled(true);
    EXPECT_TRUE(Any("Off").Enabled()) << "what was disabled the time before is forgotten";
    Any("Off").Enabled(false);
    Box().Enabled(false);
    Box().EnableDisableChilds(true);
    Box().Enabled(true);
    EXPECT_TRUE(Any("Off").Enabled()) << "who asks for it anew begins without a memory";

    Box().EnableDisableChilds(false);
    Box().Enabled(false);
    EXPECT_TRUE(Any("First").Enabled());
}

TEST_F(Frame, Colors_AreAmbientToWhatStandsInIt)
{
    Open(R"(Frame Outer { Width = 4500 Height = 3000
            Frame Inner { Width = 3000 Height = 1500 BackStyle = 1
                Frame Innermost { Width = 1500 Height = 900 BackStyle = 1 }
                Frame Own { Top = 900 Width = 1500 Height = 900 }
            }
        })");
    Get<controls::Frame>("Outer").BackColor(0x123456);
    for (const char* const follower : {"Inner", "Innermost"}) {
        EXPECT_EQ(Get<controls::Frame>(follower).BackColor(), 0x123456U) << follower;
        EXPECT_EQ(GetPixel(Get<controls::Frame>(follower).GetSurface().Dc(), 20, 40), 0x123456U) << follower;
    }
    EXPECT_EQ(Get<controls::Frame>("Own").BackColor(), 0x8000000FU);
}

TEST_F(Frame, BorderRound_StaysBetween0And20)
{
    Box().BorderRound(-3);
    EXPECT_EQ(Box().BorderRound(), 0);
    for (const auto& [stored, kept] : {std::pair("25", 20), {"-3", 0}}) {
        Open("Frame Box { Width = 1500 Height = 900 BorderRound = " + std::string(stored) + " }");
        EXPECT_EQ(Box().BorderRound(), kept);
    }
}

class FrameBorder : public FormFixture {
protected:
    using Rows = std::vector<std::string>;

    void SetUp() override
    {
        Open(R"(Frame Box { Width = 210 Height = 600 Caption = "" UseClassicTheme = 1 BackColor = 0x0000FF00
            BorderColorDark = 0x000000FF BorderColorLight = 0x00FF0000 })");
        SIZE blank{};
        GetTextExtentPoint32W(Box().GetSurface().Dc(), TEXT(" "), 1, &blank);
        top_ = blank.cy / 2;
        Box().GetExtender().Height(static_cast<float>(15 * (top_ + 9)));
    }
    controls::Frame& Box() { return Get<controls::Frame>("Box"); }
    /// The whole frame from the middle of the caption's row down, 14 by 9 pixels: '.' the background, 'D' and 'L' the border's colours.
    Rows Picture()
    {
        const std::map<COLORREF, char> letters{{0x00FF00, '.'}, {0x0000FF, 'D'}, {0xFF0000, 'L'}};
        Rows rows;
        for (int y = 0; y < Box().GetSurface().ScaleHeight(); ++y) {
            std::string row;
            for (int x = 0; x < Box().GetSurface().ScaleWidth(); ++x) {
                const auto letter = letters.find(GetPixel(Box().GetSurface().Dc(), x, y));
                row += letter == letters.end() ? '?' : letter->second;
            }
            if (y >= top_)
                rows.push_back(row);
            else
                EXPECT_EQ(row, "..............") << "above the border at " << y;
        }
        return rows;
    }

    int top_ = 0;
};

TEST_F(FrameBorder, ClassicForms_StandInWithoutThemes)
{
    const Rows etched{"DDDDDDDDDDDDDL", "DLLLLLLLLLLLDL", "DL..........DL", "DL..........DL", "DL..........DL",
                      "DL..........DL", "DDDDDDDDDDDDDL", "LLLLLLLLLLLLLL", ".............."};
    const std::tuple<std::uint8_t, int, Rows> forms[] = {
        {0,
         0,
         {"DDDDDDDDDDDDDD", "D............D", "D............D", "D............D", "D............D", "D............D", "D............D",
          "DDDDDDDDDDDDDD", ".............."}},
        {1, 0, etched},
        {2, 0, etched},
        {0,
         6,
         {"..DDDDDDDDD...", ".D.........D..", "D...........D.", "D...........D.", "D...........D.", ".D.........D..", "..DDDDDDDDD...",
          "..............", ".............."}},
        {1,
         6,
         {"..DDDDDDDDD...", ".D.LLLLLLLLD..", "D.L.........D.", "DL..........DL", "DL..........DL", ".D.........D.L", "..DDDDDDDDD.L.",
          "...LLLLLLLLL..", ".............."}},
        {2,
         6,
         {"..LLLLLLLLL...", ".L.DDDDDDDDL..", "L.D.........L.", "LD..........LD", "LD..........LD", ".L.........L.D", "..LLLLLLLLL.D.",
          "...DDDDDDDDD..", ".............."}}};
    for (const auto& [appearance, round, picture] : forms) {
        Box().Appearance(appearance);
        Box().BorderRound(round);
        EXPECT_EQ(Picture(), picture) << int{appearance} << ", round " << round;
    }
    const Rows last = Picture();
    Box().UseClassicTheme(false);
    EXPECT_NE(Picture(), last) << "the theme's own border";
    // Common controls that are too old.
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{5}; });
    SendMessageW(Box().hWnd(), WM_THEMECHANGED, 0, 0);
    EXPECT_EQ(Picture(), last);
}

TEST_F(Frame, TopRow_IsPaintedOverOnceMoreAfterAPaint)
{
    Box().GetExtender().Move(300, 150, 4500, 3000);
    SendMessageW(Box().hWnd(), WM_PAINT, 0, 0);
    MSG message{};
    bool fired = false;
    for (int tries = 0; tries < 50 && !fired; ++tries) {
        fired = PeekMessageW(&message, Box().hWnd(), WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE;
        if (!fired)
            Sleep(5);
    }
    ASSERT_TRUE(fired);
    Box().BackColor(0x00123456);
    const HDC dc = GetWindowDC(Box().hWnd());
    for (const int row : {0, 1})
        for (int x = 0; x < 300; ++x)
            SetPixel(dc, x, row, 0);
    DispatchMessageW(&message);
    for (int x = 0; x < 300; ++x)
        EXPECT_EQ(GetPixel(dc, x, 0), 0x00123456u) << x;
    EXPECT_EQ(GetPixel(dc, 150, 1), 0u) << "the row below is left alone";
    ReleaseDC(Box().hWnd(), dc);
    Sleep(30);
    EXPECT_FALSE(PeekMessageW(&message, Box().hWnd(), WM_TIMER, WM_TIMER, PM_REMOVE)) << "once only";
}

TEST_F(Frame, CaptionAndEnabled_EndWithARepaintOfTheWholeWindow)
{
    controls::DSubclass watch;
    watch.WndProc.Connect([&](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool&) {
        if (message == WM_NCPAINT || message == WM_PAINT)
            Note((message == WM_PAINT ? "paint " : "frame ") + std::to_string(wParam));
    });
    watch.Enable(Box().hWnd());
    for (const std::function<void()>& change :
         {std::function<void()>([&] { Box().Caption(TEXT("x")); }), {[&] { Box().Enabled(false); }}}) {
        change();
        // Windows may ask for the frame once more while it paints.
        const Lines lines = Take(), wanted{"frame 1", "paint 0"};
        EXPECT_NE(std::ranges::search(lines, wanted).begin(), lines.end());
    }
}

TEST_F(Frame, MouseAndContextMenu_RaiseEvents)
{
    Box().Click.Connect([&] { Note("Click"); });
    Box().MouseDown.Connect([&](std::int16_t& button, std::int16_t&, float&, float&) { Note("MouseDown " + std::to_string(button)); });
    Box().MouseUp.Connect([&](std::int16_t& button, std::int16_t&, float&, float&) { Note("MouseUp " + std::to_string(button)); });
    Box().ContextMenu.Connect([&] { Note("ContextMenu"); });
    const std::string focused = Focused();
    Click(Box().hWnd());
    SendMessageW(Box().hWnd(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(Take(), (Lines{"MouseDown 1", "MouseUp 1", "Click", "ContextMenu"}));
    EXPECT_EQ(Focused(), focused) << "a frame never takes the focus";
}

}  // namespace tests
