// Facts about the Edit class: its text, what the parent hears of changes, limits, selection and undo.
#include "tests/support/ControlParent.h"
#include "tests/support/KnownGap.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using tests::ControlParent;
using tests::Press;
using tests::TextOf;
using tests::Type;
using Codes = std::vector<int>;

class Edit : public testing::Test {
protected:
    HWND Add(DWORD style, LPCWSTR text = TEXT(""), int width = 200, int height = 24)
    {
        return parent_.Add(TEXT("Edit"), style, text, width, height);
    }
    static std::pair<DWORD, DWORD> Selection(HWND edit)
    {
        DWORD start = 99;
        DWORD end = 99;
        SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return {start, end};
    }
    static void Select(HWND edit, INT start, INT end) { SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(start), end); }
    static void Replace(HWND edit, LPCWSTR text, bool undoable = true)
    {
        SendMessageW(edit, EM_REPLACESEL, undoable, reinterpret_cast<LPARAM>(text));
    }
    static bool Is(HWND edit, UINT question) { return SendMessageW(edit, question, 0, 0) != 0; }

    ControlParent parent_;
};

const Codes kChange{EN_UPDATE, EN_CHANGE};

TEST_F(Edit, SettingTheText_IsToldByASingleLineOnly)
{
    const HWND single = Add(ES_AUTOHSCROLL);
    SetWindowTextW(single, TEXT("abc"));
    EXPECT_EQ(parent_.Codes(), kChange);
    SetWindowTextW(single, TEXT("abc"));
    EXPECT_EQ(parent_.Codes(), kChange) << "the same text again is told too";
    const HWND multi = Add(ES_MULTILINE | ES_AUTOVSCROLL);
    SetWindowTextW(multi, TEXT("abc"));
    EXPECT_EQ(parent_.Codes(), Codes());
    EXPECT_EQ(TextOf(multi), TEXT("abc"));
}

TEST_F(Edit, TypingAndReplacing_IsToldByBothKinds)
{
    for (const DWORD style : {ES_AUTOHSCROLL, ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL}) {
        const HWND edit = Add(style);
        Type(edit, TEXT("a"));
        EXPECT_EQ(parent_.Codes(), kChange);
        Replace(edit, TEXT("bc"));
        EXPECT_EQ(parent_.Codes(), kChange);
        Type(edit, TEXT("\b"));
        EXPECT_EQ(parent_.Codes(), kChange);
        Press(edit, VK_HOME);
        EXPECT_EQ(parent_.Codes(), Codes());
        Type(edit, TEXT("\b"));
        EXPECT_EQ(parent_.Codes(), Codes()) << "there is nothing before the caret";
        EXPECT_EQ(TextOf(edit), TEXT("ab"));
    }
}

TEST_F(Edit, Limit_HoldsForTypingAndReplacingButNotForSetting)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    EXPECT_EQ(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0), 30000);
    SendMessageW(edit, EM_SETLIMITTEXT, 3, 0);
    Type(edit, TEXT("abc"));
    parent_.Codes();
    Type(edit, TEXT("d"));
    EXPECT_EQ(parent_.Codes().front(), EN_MAXTEXT);
    EXPECT_EQ(TextOf(edit), TEXT("abc"));
    Select(edit, 1, 2);
    Type(edit, TEXT("x"));
    EXPECT_EQ(TextOf(edit), TEXT("axc")) << "what is typed over makes room";
    parent_.Codes();
    Select(edit, 0, 2);
    Replace(edit, TEXT("12345"));
    EXPECT_EQ(TextOf(edit), TEXT("12c"));
    EXPECT_EQ(parent_.Codes(), (Codes{EN_MAXTEXT, EN_UPDATE, EN_CHANGE}));
    SetWindowTextW(edit, TEXT("longer than three"));
    EXPECT_EQ(TextOf(edit), TEXT("longer than three"));
    SendMessageW(edit, EM_SETLIMITTEXT, 0, 0);
    EXPECT_EQ(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0), 0x7FFFFFFE);
    const HWND multi = Add(ES_MULTILINE);
    SendMessageW(multi, EM_SETLIMITTEXT, 0, 0);
    EXPECT_EQ(static_cast<DWORD>(SendMessageW(multi, EM_GETLIMITTEXT, 0, 0)), 0xFFFFFFFFu);
}

TEST_F(Edit, CharacterThatHasNoRoom_IsNoChange)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    SendMessageW(edit, EM_SETLIMITTEXT, 1, 0);
    Type(edit, TEXT("a"));
    parent_.Codes();
    KNOWN_GAP("tells of an update and a change although the text stayed");
    Type(edit, TEXT("b"));
    EXPECT_EQ(parent_.Codes(), Codes{EN_MAXTEXT});
}

TEST_F(Edit, LineBreak_NeedsRoomForBothItsCharacters)
{
    const HWND edit = Add(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    SendMessageW(edit, EM_SETLIMITTEXT, 4, 0);
    Type(edit, TEXT("a\r"));
    EXPECT_EQ(TextOf(edit), TEXT("a\r\n"));
    Type(edit, TEXT("\b"));
    EXPECT_EQ(TextOf(edit), TEXT("a")) << "backspace takes both";
    const HWND single = Add(ES_AUTOHSCROLL);
    Type(single, TEXT("a\rb"));
    EXPECT_EQ(TextOf(single), TEXT("ab"));
}

TEST_F(Edit, NumberStyle_RefusesTypedLettersAndCanBeSwitchedAtAnyTime)
{
    const HWND edit = Add(ES_AUTOHSCROLL | ES_NUMBER);
    Type(edit, TEXT("1a2"));
    EXPECT_EQ(TextOf(edit), TEXT("12"));
    SetWindowTextW(edit, TEXT("x"));
    EXPECT_EQ(TextOf(edit), TEXT("x"));
    SetWindowLongW(edit, GWL_STYLE, GetWindowLongW(edit, GWL_STYLE) & ~ES_NUMBER);
    SendMessageW(edit, EM_SETSEL, 0, 0);
    Type(edit, TEXT("a"));
    EXPECT_EQ(TextOf(edit), TEXT("ax"));
}

TEST_F(Edit, CaseStyles_ConvertWhatIsTypedAndSet)
{
    const HWND upper = Add(ES_AUTOHSCROLL | ES_UPPERCASE);
    Type(upper, TEXT("a\u00E0"));
    EXPECT_EQ(TextOf(upper), TEXT("A\u00C0"));
    SetWindowTextW(upper, TEXT("mixED"));
    EXPECT_EQ(TextOf(upper), TEXT("MIXED"));
    const HWND lower = Add(ES_AUTOHSCROLL | ES_LOWERCASE);
    Replace(lower, TEXT("MIX\u00C0"));
    EXPECT_EQ(TextOf(lower), TEXT("mix\u00E0"));
}

TEST_F(Edit, ReadOnly_TakesNoTypingButReplacements)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("abc"));
    SendMessageW(edit, EM_SETREADONLY, TRUE, 0);
    EXPECT_TRUE(GetWindowLongW(edit, GWL_STYLE) & ES_READONLY);
    Type(edit, TEXT("x\b"));
    Press(edit, VK_DELETE);
    EXPECT_EQ(TextOf(edit), TEXT("abc"));
    EXPECT_EQ(parent_.Codes(), Codes());
    Replace(edit, TEXT("x"));
    EXPECT_EQ(TextOf(edit), TEXT("xabc"));
    SendMessageW(edit, EM_SETREADONLY, FALSE, 0);
    Type(edit, TEXT("y"));
    EXPECT_EQ(TextOf(edit), TEXT("xyabc"));
}

TEST_F(Edit, Selection_IsOrderedAndHeldInsideTheText)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("hello"));
    Select(edit, 3, 1);
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(1, 3)));
    Select(edit, 0, -1);
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(0, 5)));
    Select(edit, -1, 0);
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(5, 5))) << "the caret stays where it was";
    Select(edit, 2, 99);
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(2, 5)));
    EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELONG(2, 5));
    SetWindowTextW(edit, TEXT("new"));
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(0, 0)));
}

TEST_F(Edit, ArrowKeys_MoveTheCaret)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("hello"));
    Select(edit, 2, 2);
    Press(edit, VK_LEFT);
    EXPECT_EQ(Selection(edit).first, 1u);
    Press(edit, VK_END);
    Press(edit, VK_RIGHT);
    EXPECT_EQ(Selection(edit).first, 5u);
    Press(edit, VK_HOME);
    Press(edit, VK_DELETE);
    EXPECT_EQ(TextOf(edit), TEXT("ello"));
    Press(edit, VK_DOWN);
    EXPECT_EQ(Selection(edit).first, 1u) << "a single line takes down for right";
    EXPECT_EQ(parent_.Codes(), kChange);
    const HWND multi = Add(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, TEXT("one\r\ntwo\r\nlonger"), 200, 80);
    Select(multi, 12, 12);
    Press(multi, VK_UP);
    Press(multi, VK_HOME);
    EXPECT_EQ(Selection(multi).first, 5u);
    Press(multi, VK_LEFT);
    EXPECT_EQ(Selection(multi).first, 3u) << "a line break is passed in one go";
    Press(multi, VK_END);
    EXPECT_EQ(Selection(multi).first, 3u);
}

TEST_F(Edit, Undo_TakesBackARunOfTypingAndThenItself)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    EXPECT_FALSE(Is(edit, EM_CANUNDO));
    Type(edit, TEXT("abc"));
    EXPECT_TRUE(Is(edit, EM_CANUNDO));
    EXPECT_TRUE(Is(edit, EM_UNDO));
    EXPECT_EQ(TextOf(edit), TEXT(""));
    SendMessageW(edit, EM_UNDO, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("abc"));
    Select(edit, 0, 2);
    Replace(edit, TEXT("xyz"));
    SendMessageW(edit, EM_UNDO, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("abc"));
    Select(edit, 0, 1);
    SendMessageW(edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("bc"));
    SendMessageW(edit, EM_UNDO, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("abc"));
    EXPECT_EQ(Selection(edit), (std::pair<DWORD, DWORD>(0, 1))) << "what came back is selected";
}

TEST_F(Edit, Undo_IsToldOnce)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    Type(edit, TEXT("abc"));
    parent_.Codes();
    SendMessageW(edit, EM_UNDO, 0, 0);
    KNOWN_GAP("tells of the change twice");
    EXPECT_EQ(parent_.Codes(), kChange);
}

TEST_F(Edit, Undo_IsForgottenAfterSettingTextAndSilentReplacing)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    Type(edit, TEXT("a"));
    SetWindowTextW(edit, TEXT("b"));
    EXPECT_FALSE(Is(edit, EM_CANUNDO));
    Type(edit, TEXT("a"));
    Replace(edit, TEXT("c"), false);
    EXPECT_FALSE(Is(edit, EM_CANUNDO));
    Type(edit, TEXT("d"));
    SendMessageW(edit, EM_EMPTYUNDOBUFFER, 0, 0);
    EXPECT_FALSE(Is(edit, EM_CANUNDO));
}

TEST_F(Edit, ModifyFlag_IsSetByTheUserAndClearedBySettingText)
{
    const HWND edit = Add(ES_AUTOHSCROLL);
    EXPECT_FALSE(Is(edit, EM_GETMODIFY));
    Type(edit, TEXT("b"));
    EXPECT_TRUE(Is(edit, EM_GETMODIFY));
    SendMessageW(edit, EM_SETMODIFY, FALSE, 0);
    EXPECT_FALSE(Is(edit, EM_GETMODIFY));
    Replace(edit, TEXT("c"));
    EXPECT_TRUE(Is(edit, EM_GETMODIFY));
    SetWindowTextW(edit, TEXT("d"));
    EXPECT_FALSE(Is(edit, EM_GETMODIFY));
}

TEST_F(Edit, CutAndPaste_GoThroughTheClipboard)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("hello"));
    Select(edit, 0, 2);
    SendMessageW(edit, WM_CUT, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("llo"));
    Press(edit, VK_END);
    parent_.Codes();
    Type(edit, TEXT("\x16"));  // Ctrl+V
    EXPECT_EQ(TextOf(edit), TEXT("llohe"));
    EXPECT_EQ(parent_.Codes(), kChange);
    SendMessageW(edit, EM_UNDO, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("llo"));
}

TEST_F(Edit, Password_DoesNotReachTheClipboard)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("open"));
    Select(edit, 0, -1);
    SendMessageW(edit, WM_COPY, 0, 0);
    const HWND password = Add(ES_AUTOHSCROLL | ES_PASSWORD, TEXT("secret"));
    Select(password, 0, -1);
    KNOWN_GAP("copies and cuts passwords when it is asked by message");
    SendMessageW(password, WM_COPY, 0, 0);
    SendMessageW(password, WM_CUT, 0, 0);
    EXPECT_EQ(TextOf(password), TEXT("secret"));
    SendMessageW(edit, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(edit), TEXT("open"));
}

TEST_F(Edit, PasswordCharacter_ComesWithTheStyleAndCanBeChanged)
{
    const HWND edit = Add(ES_AUTOHSCROLL | ES_PASSWORD, TEXT("x"));
    const auto standard = SendMessageW(edit, EM_GETPASSWORDCHAR, 0, 0);
    EXPECT_TRUE(standard == 0x25CF || standard == '*') << standard;
    SendMessageW(edit, EM_SETPASSWORDCHAR, '#', 0);
    EXPECT_EQ(SendMessageW(edit, EM_GETPASSWORDCHAR, 0, 0), '#');
    SendMessageW(edit, EM_SETPASSWORDCHAR, 0, 0);
    EXPECT_FALSE(GetWindowLongW(edit, GWL_STYLE) & ES_PASSWORD);
    EXPECT_EQ(TextOf(edit), TEXT("x"));
}

TEST_F(Edit, ColorsAreAskedAsEditWhileItCanBeTypedInto)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("text"));
    EXPECT_EQ(parent_.ColorsAskedBy(edit), std::vector<UINT>{WM_CTLCOLOREDIT});
    SendMessageW(edit, EM_SETREADONLY, TRUE, 0);
    EXPECT_EQ(parent_.ColorsAskedBy(edit), std::vector<UINT>{WM_CTLCOLORSTATIC});
    SendMessageW(edit, EM_SETREADONLY, FALSE, 0);
    EnableWindow(edit, FALSE);
    EXPECT_EQ(parent_.ColorsAskedBy(edit), std::vector<UINT>{WM_CTLCOLORSTATIC});
}

TEST_F(Edit, Focus_IsToldAndWantsAllArrowKeys)
{
    const HWND first = Add(ES_AUTOHSCROLL);
    const HWND second = Add(ES_MULTILINE);
    SetFocus(first);
    EXPECT_EQ(parent_.Codes(), Codes{EN_SETFOCUS});
    SetFocus(second);
    EXPECT_EQ(parent_.Codes(), (Codes{EN_KILLFOCUS, EN_SETFOCUS}));
    const LRESULT code = SendMessageW(first, WM_GETDLGCODE, 0, 0);
    EXPECT_EQ(code, DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_HASSETSEL);
    EXPECT_TRUE(SendMessageW(second, WM_GETDLGCODE, 0, 0) & DLGC_WANTALLKEYS);
}

}  // namespace
