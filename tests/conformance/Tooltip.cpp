// Facts about the tooltips class: its tools, texts, colours and delays.
#include "tests/support/ControlParent.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

class Tooltip : public testing::Test {
protected:
    void SetUp() override
    {
        const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
        ASSERT_TRUE(InitCommonControlsEx(&classes));
        tooltip_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                   CW_USEDEFAULT, parent_.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
        ASSERT_TRUE(tooltip_);
    }
    void TearDown() override { DestroyWindow(tooltip_); }
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam = 0) { return SendMessageW(tooltip_, message, wParam, lParam); }
    LRESULT Send(UINT message, TOOLINFOW& tool) { return Send(message, 0, reinterpret_cast<LPARAM>(&tool)); }
    TOOLINFOW Tool(UINT_PTR id, LPCWSTR text, UINT size = TTTOOLINFOW_V2_SIZE)
    {
        TOOLINFOW tool{};
        tool.cbSize = size;
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = parent_.Window();
        tool.uId = id;
        tool.rect = {1, 2, 30, 40};
        tool.lpszText = const_cast<LPWSTR>(text);
        return tool;
    }

    tests::ControlParent parent_;
    HWND tooltip_ = nullptr;
};

TEST_F(Tooltip, Window_IsAPopupWhateverStyleItWasGiven)
{
    EXPECT_TRUE(GetWindowLongW(tooltip_, GWL_STYLE) & static_cast<LONG>(WS_POPUP));
    EXPECT_TRUE(GetWindowLongW(tooltip_, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
    EXPECT_FALSE(IsWindowVisible(tooltip_));
}

TEST_F(Tooltip, Tools_AreKeptAndGivenBack)
{
    auto first = Tool(0, TEXT("first"));
    auto second = Tool(7, TEXT("second"), TTTOOLINFOW_V1_SIZE);
    EXPECT_TRUE(Send(TTM_ADDTOOLW, first));
    EXPECT_TRUE(Send(TTM_ADDTOOLW, second));
    EXPECT_EQ(Send(TTM_GETTOOLCOUNT, 0), 2);
    WCHAR text[80] = {};
    auto asked = Tool(7, text);
    asked.rect = {};
    EXPECT_TRUE(Send(TTM_GETTOOLINFOW, asked));
    EXPECT_EQ(base::String(text), TEXT("second"));
    EXPECT_EQ(asked.rect.bottom, 40);
    EXPECT_EQ(asked.uFlags & TTF_SUBCLASS, static_cast<UINT>(TTF_SUBCLASS));
    auto changed = Tool(7, TEXT("changed"));
    Send(TTM_UPDATETIPTEXTW, changed);
    Send(TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&asked));
    EXPECT_EQ(base::String(text), TEXT("changed"));
    Send(TTM_DELTOOLW, second);
    EXPECT_EQ(Send(TTM_GETTOOLCOUNT, 0), 1);
    EXPECT_FALSE(Send(TTM_GETTOOLINFOW, asked)) << "it is gone";
}

TEST_F(Tooltip, Delays_AreSetOneByOneOrAllAtOnce)
{
    Send(TTM_SETDELAYTIME, TTDT_AUTOPOP, 6000);
    EXPECT_EQ(Send(TTM_GETDELAYTIME, TTDT_AUTOPOP), 6000);
    Send(TTM_SETDELAYTIME, TTDT_AUTOMATIC, 200);
    EXPECT_EQ(Send(TTM_GETDELAYTIME, TTDT_INITIAL), 200);
    EXPECT_EQ(Send(TTM_GETDELAYTIME, TTDT_AUTOPOP), 2000);
    EXPECT_EQ(Send(TTM_GETDELAYTIME, TTDT_RESHOW), 40);
}

TEST_F(Tooltip, Look_IsKept)
{
    EXPECT_EQ(Send(TTM_SETMAXTIPWIDTH, 0, 120), -1);
    EXPECT_EQ(Send(TTM_GETMAXTIPWIDTH, 0), 120);
    Send(TTM_SETTIPBKCOLOR, 0x112233);
    Send(TTM_SETTIPTEXTCOLOR, 0x445566);
    EXPECT_EQ(Send(TTM_GETTIPBKCOLOR, 0), 0x112233);
    EXPECT_EQ(Send(TTM_GETTIPTEXTCOLOR, 0), 0x445566);
    EXPECT_TRUE(Send(TTM_SETTITLEW, TTI_WARNING, reinterpret_cast<LPARAM>(TEXT("Title"))));
}

}  // namespace
