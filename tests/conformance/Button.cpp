// Facts about the Button class: check states, clicks and what the parent hears of them.
#include "tests/support/ControlParent.h"

#include <gtest/gtest.h>

namespace {

using tests::ControlParent;
using Codes = std::vector<int>;

class Button : public testing::Test {
protected:
    HWND Add(DWORD style) { return parent_.Add(TEXT("Button"), style, TEXT("Text"), 120, 24); }
    static LRESULT Check(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0); }
    static LRESULT State(HWND button) { return SendMessageW(button, BM_GETSTATE, 0, 0); }
    static void SetCheck(HWND button, WPARAM check) { SendMessageW(button, BM_SETCHECK, check, 0); }

    ControlParent parent_;
};

TEST_F(Button, SettingTheCheck_IsSilentAndHeldToTheStatesThatThereAre)
{
    const HWND three = Add(BS_3STATE | BS_NOTIFY);
    for (const WPARAM check : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        SetCheck(three, check);
        EXPECT_EQ(Check(three), static_cast<LRESULT>(check));
    }
    SetCheck(three, 7);
    EXPECT_EQ(Check(three), BST_INDETERMINATE);
    EXPECT_EQ(parent_.Codes(), Codes());
}

TEST_F(Button, Click_GivesTheFocusFirstAndLeavesTheCheck)
{
    const HWND other = Add(BS_3STATE | BS_NOTIFY);
    const HWND button = Add(BS_3STATE | BS_NOTIFY);
    SetFocus(other);
    EXPECT_EQ(parent_.Codes(), Codes{BN_SETFOCUS});
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(GetFocus(), button);
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(State(button) & (BST_PUSHED | BST_FOCUS), BST_PUSHED | BST_FOCUS);
    EXPECT_EQ(parent_.Codes(), (Codes{BN_KILLFOCUS, BN_SETFOCUS}));
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(parent_.Codes(), Codes{BN_CLICKED});
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(State(button) & BST_PUSHED);
    EXPECT_EQ(Check(button), BST_UNCHECKED);
}

TEST_F(Button, SpaceBar_ClicksWhenItIsReleased)
{
    const HWND button = Add(BS_3STATE);
    SetFocus(button);
    SendMessageW(button, WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_TRUE(State(button) & BST_PUSHED);
    EXPECT_EQ(parent_.Codes(), Codes());
    SendMessageW(button, WM_KEYUP, VK_SPACE, 1);
    EXPECT_EQ(parent_.Codes(), Codes{BN_CLICKED});
    tests::Press(button, VK_RETURN);
    EXPECT_EQ(parent_.Codes(), Codes()) << "Enter is the dialog's business";
}

TEST_F(Button, LooksToItsParentAsAStaticDoes)
{
    const HWND label = parent_.Add(TEXT("Static"), 0, TEXT("Text"));
    for (const HWND window : {Add(BS_3STATE), label})
        EXPECT_EQ(parent_.ColorsAskedBy(window), std::vector<UINT>{WM_CTLCOLORSTATIC});
    EXPECT_EQ(SendMessageW(label, WM_NCHITTEST, 0, MAKELPARAM(70, 90)), HTTRANSPARENT) << "a label lets the mouse through";
}

}  // namespace
