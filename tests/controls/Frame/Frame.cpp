#include "controls/Frame/Frame.h"

#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/FrameLayout.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"

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
    const struct {
        const WCHAR* caption;
        const WCHAR* measured;
        const WCHAR* key;
    } cases[] = {{TEXT("Save && Exit"), TEXT("Save A Exit"), TEXT("")},
                 {TEXT("&Options"), TEXT("Options"), TEXT("O")},
                 {TEXT(""), TEXT(" "), TEXT("")},
                 {TEXT("&&&x"), TEXT("Ax"), TEXT("x")},
                 {TEXT("end&"), TEXT("end"), TEXT("")}};
    for (const auto& [caption, measured, key] : cases) {
        const controls::FrameCaption result = controls::AnalyseFrameCaption(caption);
        EXPECT_EQ(result.measured, measured);
        EXPECT_EQ(result.accessKey, key);
    }
    EXPECT_EQ(Box().AccessKey(), TEXT("f"));
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

    Box().EnableDisableChilds(false);
    Box().Enabled(false);
    EXPECT_TRUE(Any("First").Enabled());
}

TEST_F(Frame, BorderRound_StaysBetween0And20)
{
    Box().BorderRound(25);
    EXPECT_EQ(Box().BorderRound(), 20);
    Box().BorderRound(-3);
    EXPECT_EQ(Box().BorderRound(), 0);
    EXPECT_FALSE(Box().TabStop());
}

TEST_F(Frame, Looks_DrawWhatTheyShould)
{
    const COLORREF back = RGB(10, 200, 30);
    const auto pixel = [&](int x, int y) { return GetPixel(Box().GetSurface().Dc(), x, y); };
    Box().BackColor(back);
    Box().BorderColorDark(0x0000FF);
    Box().BorderColorLight(0xFF0000);
    Box().UseClassicTheme(true);
    Box().Caption(TEXT(""));
    const int width = Box().GetSurface().ScaleWidth(), height = Box().GetSurface().ScaleHeight(), middle = height / 2;
    const struct {
        std::uint8_t appearance;
        COLORREF outer, inner, right;
    } looks[] = {{0, 0x0000FF, back, 0x0000FF}, {1, 0x0000FF, 0xFF0000, 0xFF0000}, {2, 0x0000FF, 0xFF0000, 0xFF0000}};
    for (const auto& look : looks) {
        Box().Appearance(look.appearance);
        EXPECT_EQ(pixel(0, middle), look.outer) << int{look.appearance};
        EXPECT_EQ(pixel(1, middle), look.inner) << int{look.appearance};
        EXPECT_EQ(pixel(width - 1, middle), look.right) << int{look.appearance};
        EXPECT_EQ(pixel(width / 2, middle), back);
        EXPECT_EQ(pixel(width / 2, height - 1), back) << "the last row stays free";
    }
    Box().Appearance(2);
    Box().BorderRound(8);
    EXPECT_EQ(pixel(0, middle), 0xFF0000U) << "inverted: light on top";
    EXPECT_EQ(pixel(width - 1, middle), 0x0000FFU);
    Box().BorderStyle(0);
    EXPECT_EQ(pixel(0, middle), back);
    Box().BorderStyle(1);
    Box().Invisible(true);
    EXPECT_EQ(pixel(0, middle), back);
    Box().Invisible(false);
    Box().BackStyle(1);
    EXPECT_EQ(pixel(width / 2, middle), controls::TranslateOleColor(form->BackColor())) << "the container's colours";
}

TEST_F(Frame, TopRow_IsPaintedOverOnceMoreAfterAPaint)
{
    SendMessageW(Box().hWnd(), WM_PAINT, 0, 0);
    MSG message{};
    bool fired = false;
    for (int tries = 0; tries < 50 && !fired; ++tries) {
        fired = PeekMessageW(&message, Box().hWnd(), WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE;
        if (!fired)
            Sleep(5);
    }
    ASSERT_TRUE(fired);
    DispatchMessageW(&message);
    Sleep(30);
    EXPECT_FALSE(PeekMessageW(&message, Box().hWnd(), WM_TIMER, WM_TIMER, PM_REMOVE)) << "once only";
}

TEST_F(Frame, DragDropEnabled_AcceptsFiles)
{
    const auto accepts = [&] { return (GetWindowLongW(Box().hWnd(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0; };
    EXPECT_FALSE(accepts());
    Box().DragDropEnabled(true);
    EXPECT_TRUE(accepts());
    Box().DragDropEnabled(false);
    EXPECT_FALSE(accepts());
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
