// Facts about the ComboBox class as a drop-down list: its selection and what the parent hears.
#include "tests/support/ControlParent.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using tests::ClickAt;
using tests::ControlParent;
using Codes = std::vector<int>;

class ComboBox : public testing::Test {
protected:
    void SetUp() override
    {
        combo_ = parent_.Add(TEXT("ComboBox"), CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL, TEXT(""), 150, 200);
        for (const LPCWSTR text : {TEXT("Automatic"), TEXT("Manual"), TEXT("Disabled")})
            Send(CB_ADDSTRING, 0, text);
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPCWSTR text = nullptr)
    {
        return SendMessageW(combo_, message, wParam, reinterpret_cast<LPARAM>(text));
    }
    int Height() const
    {
        RECT rectangle{};
        GetWindowRect(combo_, &rectangle);
        return rectangle.bottom - rectangle.top;
    }

    ControlParent parent_;
    HWND combo_ = nullptr;
};

TEST_F(ComboBox, Selection_IsSetInSilence)
{
    EXPECT_EQ(Send(CB_ADDSTRING, 0, TEXT("Last")), 3);
    EXPECT_EQ(Send(CB_SETCURSEL, 1), 1);
    EXPECT_EQ(tests::TextOf(combo_), TEXT("Manual"));
    EXPECT_EQ(Send(CB_SETCURSEL, 9), CB_ERR);
    EXPECT_EQ(Send(CB_SETCURSEL, static_cast<WPARAM>(-1)), CB_ERR);
    EXPECT_EQ(Send(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(tests::TextOf(combo_), TEXT(""));
    EXPECT_EQ(parent_.Codes(), Codes());
}

TEST_F(ComboBox, ArrowKeys_ChooseAndTellTheParent)
{
    Send(CB_SETCURSEL, 0);
    SendMessageW(combo_, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    const Codes codes = parent_.Codes();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), CBN_SELCHANGE), 1);
    for (const WPARAM key : {VK_END, VK_DOWN}) {
        SendMessageW(combo_, WM_KEYDOWN, key, 1);
        EXPECT_EQ(Send(CB_GETCURSEL), 2);
    }
    tests::Type(combo_, TEXT("m"));
    EXPECT_EQ(Send(CB_GETCURSEL), 1) << "a letter finds the item that begins with it";
}

TEST_F(ComboBox, OpenList_ClosesWithEnterEscapeAndTheFocus)
{
    SetFocus(combo_);
    const struct {
        WPARAM key;
        Codes told;
    } cases[] = {{VK_DOWN, {CBN_SELCHANGE}}, {VK_RETURN, {CBN_SELENDOK, CBN_CLOSEUP}}, {VK_ESCAPE, {CBN_SELENDCANCEL, CBN_CLOSEUP}}};
    for (const auto& [key, told] : cases) {
        Send(CB_SHOWDROPDOWN, TRUE);
        parent_.Codes();
        SendMessageW(combo_, WM_KEYDOWN, key, 1);
        EXPECT_EQ(parent_.Codes(), told) << key;
        EXPECT_EQ(Send(CB_GETDROPPEDSTATE), key == VK_DOWN);
        EXPECT_EQ(Send(CB_GETCURSEL), 0);
    }
    Send(CB_SHOWDROPDOWN, TRUE);
    parent_.Codes();
    SetFocus(parent_.Window());
    EXPECT_EQ(parent_.Codes(), (Codes{CBN_SELENDCANCEL, CBN_CLOSEUP, CBN_KILLFOCUS}));
}

TEST_F(ComboBox, PickingWithTheMouse_IsToldEvenWhenNothingChanges)
{
    SetFocus(combo_);
    Send(CB_SETCURSEL, 0);
    for (int round = 0; round < 2; ++round) {
        Send(CB_SHOWDROPDOWN, TRUE);
        parent_.Codes();
        const HWND list = FindWindowW(TEXT("ComboLBox"), nullptr);
        ASSERT_TRUE(IsWindowVisible(list));
        ClickAt(list, 10, static_cast<int>(Send(CB_GETITEMHEIGHT)) + 3);
        EXPECT_EQ(parent_.Codes(), (Codes{CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}));
        EXPECT_EQ(Send(CB_GETCURSEL), 1);
        EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
    }
}

TEST_F(ComboBox, ClosedHeight_FollowsTheFieldAndNotTheCreator)
{
    EXPECT_LT(Height(), 60) << "the 200 pixels are for the open list";
    const int height = Height();
    SetWindowPos(combo_, nullptr, 0, 0, 150, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Height(), height);
    RECT client{};
    GetClientRect(combo_, &client);
    EXPECT_EQ(client.right, 150) << "the scroll bar that was asked for is the list's";
}

}  // namespace
