// Facts about the Button class: check states, clicks and what the parent hears of them.
#include "tests/support/ControlParent.h"

#include <gtest/gtest.h>

namespace {

using tests::ClickAt;
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
    const HWND two = Add(BS_AUTOCHECKBOX);
    SetCheck(two, BST_INDETERMINATE);
    EXPECT_EQ(Check(two), BST_CHECKED);
    const HWND push = Add(BS_PUSHBUTTON);
    SetCheck(push, BST_CHECKED);
    EXPECT_EQ(Check(push), BST_UNCHECKED);
    EXPECT_EQ(parent_.Codes(), Codes());
}

TEST_F(Button, Click_ChangesOnlyTheAutomaticKinds)
{
    const HWND plain = Add(BS_3STATE);
    ClickAt(plain, 5, 5);
    EXPECT_EQ(Check(plain), BST_UNCHECKED);
    EXPECT_EQ(parent_.Codes(), Codes{BN_CLICKED});
    const HWND automatic = Add(BS_AUTO3STATE);
    for (const LRESULT expected : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        ClickAt(automatic, 5, 5);
        EXPECT_EQ(Check(automatic), expected);
    }
    const HWND two = Add(BS_AUTOCHECKBOX);
    SendMessageW(two, BM_CLICK, 0, 0);
    EXPECT_EQ(Check(two), BST_CHECKED);
    SendMessageW(two, BM_CLICK, 0, 0);
    EXPECT_EQ(Check(two), BST_UNCHECKED);
}

TEST_F(Button, Click_GivesTheFocusFirst)
{
    const HWND other = Add(BS_PUSHBUTTON | BS_NOTIFY);
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
}

TEST_F(Button, ReleaseOutside_IsNoClick)
{
    const HWND button = Add(BS_AUTOCHECKBOX);
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 5));
    EXPECT_FALSE(State(button) & BST_PUSHED);
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(500, 5));
    EXPECT_EQ(Check(button), BST_UNCHECKED);
    EXPECT_EQ(parent_.Codes(), Codes());
}

TEST_F(Button, SpaceBar_ClicksWhenItIsReleased)
{
    const HWND button = Add(BS_AUTOCHECKBOX);
    SetFocus(button);
    SendMessageW(button, WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_TRUE(State(button) & BST_PUSHED);
    EXPECT_EQ(parent_.Codes(), Codes());
    SendMessageW(button, WM_KEYUP, VK_SPACE, 1);
    EXPECT_EQ(parent_.Codes(), Codes{BN_CLICKED});
    EXPECT_EQ(Check(button), BST_CHECKED);
    tests::Press(button, VK_RETURN);
    EXPECT_EQ(parent_.Codes(), Codes()) << "Enter is the dialog's business";
}

TEST_F(Button, DialogCode_TellsTheKind)
{
    const auto code = [&](DWORD style) { return SendMessageW(Add(style), WM_GETDLGCODE, 0, 0); };
    EXPECT_EQ(code(BS_PUSHBUTTON), DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON);
    EXPECT_EQ(code(BS_DEFPUSHBUTTON), DLGC_BUTTON | DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(code(BS_3STATE) & ~DLGC_WANTCHARS, DLGC_BUTTON);
    EXPECT_EQ(code(BS_GROUPBOX), DLGC_STATIC);
}

TEST_F(Button, ColorsAreAskedAsStaticByCheckBoxesAndFrames)
{
    EXPECT_EQ(parent_.ColorsAskedBy(Add(BS_3STATE)), std::vector<UINT>{WM_CTLCOLORSTATIC});
    EXPECT_EQ(parent_.ColorsAskedBy(Add(BS_GROUPBOX)), std::vector<UINT>{WM_CTLCOLORSTATIC});
    EXPECT_EQ(parent_.ColorsAskedBy(Add(BS_PUSHBUTTON)), std::vector<UINT>{WM_CTLCOLORBTN});
}

TEST_F(Button, Frame_LetsTheMouseThrough)
{
    EXPECT_EQ(SendMessageW(Add(BS_GROUPBOX), WM_NCHITTEST, 0, MAKELPARAM(70, 90)), HTTRANSPARENT);
    const HWND label = parent_.Add(TEXT("Static"), 0, TEXT("Text"));
    EXPECT_EQ(SendMessageW(label, WM_NCHITTEST, 0, MAKELPARAM(70, 90)), HTTRANSPARENT);
    EXPECT_EQ(parent_.ColorsAskedBy(label), std::vector<UINT>{WM_CTLCOLORSTATIC});
    EXPECT_EQ(SendMessageW(label, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

}  // namespace
