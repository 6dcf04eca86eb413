// Facts about the lines of the Edit class: hard line breaks, word wrap and the questions about them.
#include "tests/support/ControlParent.h"
#include "tests/support/KnownGap.h"

#include <gtest/gtest.h>

namespace {

using tests::ControlParent;

class EditLines : public testing::Test {
protected:
    HWND Add(DWORD style, LPCWSTR text, int width = 300)
    {
        return parent_.Add(TEXT("Edit"), ES_MULTILINE | ES_AUTOVSCROLL | style, text, width, 60);
    }
    static LRESULT Ask(HWND edit, UINT question, INT parameter) { return SendMessageW(edit, question, static_cast<WPARAM>(parameter), 0); }
    static base::String Line(HWND edit, WPARAM line, WORD capacity = 64)
    {
        base::String buffer(64, TEXT('?'));
        buffer[0] = static_cast<WCHAR>(capacity);
        buffer.resize(static_cast<std::size_t>(SendMessageW(edit, EM_GETLINE, line, reinterpret_cast<LPARAM>(buffer.data()))));
        return buffer;
    }

    ControlParent parent_;
};

TEST_F(EditLines, HardLines_AreCountedAndMeasuredWithoutTheirBreaks)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("one\r\n\r\nthree"));
    const struct {
        UINT question;
        INT parameter, answer;
        const char* why = "";
    } cases[] = {{EM_GETLINECOUNT, 0, 3},
                 {EM_LINEINDEX, 1, 5},
                 {EM_LINEINDEX, 2, 7},
                 {EM_LINEINDEX, 3, -1},
                 {EM_LINELENGTH, 2, 3},
                 {EM_LINELENGTH, 5, 0},
                 {EM_LINELENGTH, 12, 5, "the end of the text belongs to the last line"},
                 {EM_LINEFROMCHAR, 4, 0, "the line feed ends its own line"},
                 {EM_LINEFROMCHAR, 5, 1},
                 {EM_LINEFROMCHAR, 99, 2}};
    for (const auto& test : cases)
        EXPECT_EQ(Ask(edit, test.question, test.parameter), test.answer) << test.question << ", " << test.parameter << " " << test.why;
    SetWindowTextW(edit, TEXT(""));
    EXPECT_EQ(Ask(edit, EM_GETLINECOUNT, 0), 1) << "no text is still one line";
    SetWindowTextW(edit, TEXT("a\r\n"));
    EXPECT_EQ(Ask(edit, EM_GETLINECOUNT, 0), 2);
}

TEST_F(EditLines, BehindTheText_NoLineHasALength)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("one"));
    KNOWN_GAP("gives the length of the last line")
    {
        EXPECT_EQ(Ask(edit, EM_LINELENGTH, 4), 0);
    }
}

TEST_F(EditLines, MinusOne_AsksForTheLineOfTheCaret)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("one\r\ntwo\r\nthree"));
    SendMessageW(edit, EM_SETSEL, 6, 6);
    EXPECT_EQ(Ask(edit, EM_LINEFROMCHAR, -1), 1);
    EXPECT_EQ(Ask(edit, EM_LINEINDEX, -1), 5);
    SendMessageW(edit, EM_SETSEL, 1, 11);
    EXPECT_EQ(Ask(edit, EM_LINEFROMCHAR, -1), 0) << "with a selection it is where that begins";
}

TEST_F(EditLines, GetLine_CopiesNoMoreThanTheFirstWordAllows)
{
    const HWND edit = Add(ES_AUTOHSCROLL, TEXT("one\r\ntwo\r\nx"));
    EXPECT_EQ(Line(edit, 1), TEXT("two"));
    EXPECT_EQ(Line(edit, 1, 2), TEXT("tw"));
    EXPECT_EQ(Line(edit, 2, 2), TEXT("x"));
    EXPECT_EQ(Line(edit, 3), TEXT("")) << "no such line";
}

TEST_F(EditLines, WordWrap_IsThereExactlyWithoutHorizontalScrolling)
{
    const LPCWSTR text = TEXT("several words that do not fit into the width of a narrow box");
    EXPECT_EQ(Ask(Add(ES_AUTOHSCROLL, text, 100), EM_GETLINECOUNT, 0), 1);
    const HWND wrapped = Add(0, text, 100);
    EXPECT_GT(Ask(wrapped, EM_GETLINECOUNT, 0), 2);
    const auto second = Ask(wrapped, EM_LINEINDEX, 1);
    ASSERT_GT(second, 0);
    EXPECT_EQ(text[second - 1], TEXT(' ')) << "lines break behind a space";
    EXPECT_EQ(tests::TextOf(wrapped), text) << "wrapping puts nothing into the text";
}

TEST_F(EditLines, MessageOnlyWindow_CountsHardLines)
{
    const HWND edit = CreateWindowExW(0, TEXT("Edit"), nullptr, WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, 0, 0, 0, 0,
                                      HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr);
    ASSERT_TRUE(edit);
    SetWindowTextW(edit, TEXT("a long first line with many words\r\nsecond"));
    EXPECT_EQ(Ask(edit, EM_GETLINECOUNT, 0), 2);
    SendMessageW(edit, EM_SETSEL, 36, 36);
    EXPECT_EQ(Ask(edit, EM_LINEFROMCHAR, -1), 1);
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(TEXT("x\r\n")));
    EXPECT_EQ(Ask(edit, EM_GETLINECOUNT, 0), 3);
    DestroyWindow(edit);
}

TEST_F(EditLines, FirstVisibleLine_FollowsTheCaretWhenAsked_AndTheBar)
{
    const HWND edit = Add(ES_AUTOHSCROLL | WS_VSCROLL, TEXT("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n12"));
    SendMessageW(edit, WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(Ask(edit, EM_GETFIRSTVISIBLELINE, 0), 1);
    EXPECT_EQ(parent_.Codes(), std::vector<int>{EN_VSCROLL});
    SendMessageW(edit, EM_SETSEL, 34, 34);
    SendMessageW(edit, EM_SCROLLCARET, 0, 0);
    EXPECT_GT(Ask(edit, EM_GETFIRSTVISIBLELINE, 0), 4);
}

}  // namespace
