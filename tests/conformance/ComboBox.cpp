// Facts about the ComboBox class as a drop-down list: its items, its selection and what the parent hears.
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
    base::String Item(WPARAM index)
    {
        base::String text(static_cast<std::size_t>(Send(CB_GETLBTEXTLEN, index)) + 1, 0);
        text.resize(static_cast<std::size_t>(SendMessageW(combo_, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()))));
        return text;
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

TEST_F(ComboBox, Items_StandWhereTheyWerePut)
{
    EXPECT_EQ(Send(CB_ADDSTRING, 0, TEXT("Last")), 3);
    EXPECT_EQ(Send(CB_INSERTSTRING, 1, TEXT("Second")), 1);
    EXPECT_EQ(Send(CB_GETCOUNT), 5);
    EXPECT_EQ(Item(1), TEXT("Second"));
    EXPECT_EQ(Item(4), TEXT("Last"));
    EXPECT_EQ(Send(CB_INSERTSTRING, 99, TEXT("Far")), CB_ERR);
    EXPECT_EQ(Send(CB_GETLBTEXTLEN, 5), CB_ERR);
    EXPECT_EQ(Send(CB_DELETESTRING, 0), 4);
    EXPECT_EQ(Send(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), TEXT("manual")), 1) << "without regard to case";
    EXPECT_EQ(Send(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), TEXT("man")), CB_ERR);
    EXPECT_EQ(Send(CB_FINDSTRING, static_cast<WPARAM>(-1), TEXT("man")), 1);
    Send(CB_RESETCONTENT);
    EXPECT_EQ(Send(CB_GETCOUNT), 0);
    EXPECT_EQ(Send(CB_GETCURSEL), CB_ERR);
}

TEST_F(ComboBox, Selection_IsSetInSilence)
{
    EXPECT_EQ(Send(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(tests::TextOf(combo_), TEXT(""));
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
    SetFocus(combo_);
    EXPECT_EQ(parent_.Codes(), Codes{CBN_SETFOCUS});
    Send(CB_SETCURSEL, 0);
    SendMessageW(combo_, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    const Codes codes = parent_.Codes();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), CBN_SELCHANGE), 1);
    SendMessageW(combo_, WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 2);
    parent_.Codes();
    SendMessageW(combo_, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 2);
    tests::Type(combo_, TEXT("m"));
    EXPECT_EQ(Send(CB_GETCURSEL), 1) << "a letter finds the item that begins with it";
}

TEST_F(ComboBox, DropDown_OpensAndClosesTheList)
{
    SetFocus(combo_);
    parent_.Codes();
    EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_TRUE(Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ(parent_.Codes(), Codes{CBN_DROPDOWN});
    SendMessageW(combo_, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(parent_.Codes(), Codes{CBN_SELCHANGE});
    SendMessageW(combo_, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(parent_.Codes(), (Codes{CBN_SELENDOK, CBN_CLOSEUP}));
    EXPECT_EQ(Send(CB_GETCURSEL), 0);
    Send(CB_SHOWDROPDOWN, TRUE);
    parent_.Codes();
    SendMessageW(combo_, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ(parent_.Codes(), (Codes{CBN_SELENDCANCEL, CBN_CLOSEUP}));
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
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), reinterpret_cast<LPCWSTR>(30));
    EXPECT_GE(Send(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)), 30);
    EXPECT_GE(Height(), 30);
    const int height = Height();
    SetWindowPos(combo_, nullptr, 0, 0, 150, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Height(), height);
    RECT client{};
    GetClientRect(combo_, &client);
    EXPECT_EQ(client.right, 150) << "the scroll bar that was asked for is the list's";
}

}  // namespace
