#include "controls/Balloon.h"

#include "tests/controls/FormFixture.h"
#include "tests/support/MessageLog.h"

namespace tests {

class Balloon : public FormFixture {
protected:
    void SetUp() override { Open("CommandButton B { Left = 1500 Top = 1500 Width = 1500 Height = 450 } TextBox T { TabIndex = 0 }"); }
    HWND Show(const WCHAR* text)
    {
        balloon.Show(Any("B").hWnd(), controls::Balloon::Icon::Error, TEXT("Tried"), text);
        return balloon.Window();
    }
    controls::Balloon balloon;
};

TEST_F(Balloon, Shown_PointsAtTheWindowAndTakesNoFocus)
{
    Any("T").SetFocus();
    const HWND window = Show(TEXT("one"));
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_NE(GetWindowLongW(window, GWL_STYLE) & TTS_BALLOON, 0);
    EXPECT_EQ(GetFocus(), Any("T").hWnd());
    EXPECT_EQ(GetForegroundWindow(), form->hWnd());
    RECT button{}, shown{};
    GetWindowRect(Any("B").hWnd(), &button);
    GetWindowRect(window, &shown);
    EXPECT_LT(shown.left, (button.left + button.right) / 2 + 1);
    EXPECT_GT(shown.right, (button.left + button.right) / 2);
    EXPECT_TRUE(shown.top <= button.bottom && shown.bottom >= button.top) << "it touches the button";
    WCHAR text[80]{};
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = Any("B").hWnd();
    tool.lpszText = text;
    SendMessageW(window, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool));
    EXPECT_EQ(base::String(text), TEXT("one"));

    const HWND next = Show(TEXT("two"));
    EXPECT_FALSE(IsWindow(window)) << "the next takes its place";
    SendMessageW(next, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(9, 9));
    EXPECT_FALSE(IsWindow(next));
    EXPECT_EQ(balloon.Window(), nullptr);

    const HWND last = Show(TEXT("three"));
    form->Unload();
    EXPECT_FALSE(IsWindow(last)) << "the window of the form takes it along";
    EXPECT_EQ(balloon.Window(), nullptr);
    EXPECT_EQ(Show(TEXT("four")), nullptr);
}

}  // namespace tests
