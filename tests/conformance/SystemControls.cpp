// Facts about the classes of the system that the program hosts: the colours they ask for, and what typing leaves.
#include "tests/support/SentMessages.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Messages = std::set<UINT>;

class SystemControls : public testing::Test {
protected:
    SystemControls() { SetWindowLongPtrW(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)); }
    ~SystemControls() override { DestroyWindow(parent_); }

    HWND Add(LPCWSTR className, DWORD style) const
    {
        return CreateWindowExW(0, className, TEXT("Text"), WS_CHILD | WS_VISIBLE | style, 10, 10, 200, 24, parent_, nullptr, nullptr,
                               nullptr);
    }
    /// The WM_CTLCOLOR messages that painting the control afresh sends.
    static Messages ColorsAskedBy(HWND child)
    {
        asked_.clear();
        RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return asked_;
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC)
            asked_.insert(message);
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static inline Messages asked_;
    const HWND parent_ =
        CreateWindowExW(0, TEXT("Static"), TEXT(""), WS_POPUP | WS_VISIBLE, 60, 80, 600, 400, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(SystemControls, ColorsAreAskedAsEdit_WhileOneCanTypeIntoIt)
{
    const HWND edit = Add(TEXT("Edit"), ES_AUTOHSCROLL);
    const HWND disabled = Add(TEXT("Edit"), ES_AUTOHSCROLL | WS_DISABLED);
    const HWND label = Add(TEXT("Static"), 0);
    EXPECT_EQ(ColorsAskedBy(edit), Messages{WM_CTLCOLOREDIT});
    SendMessageW(edit, EM_SETREADONLY, TRUE, 0);
    for (const HWND window : {edit, disabled, label, Add(TEXT("Button"), BS_3STATE)})
        EXPECT_EQ(ColorsAskedBy(window), Messages{WM_CTLCOLORSTATIC});
    EXPECT_EQ(SendMessageW(label, WM_NCHITTEST, 0, MAKELPARAM(70, 90)), HTTRANSPARENT) << "a label lets the mouse through";
}

TEST_F(SystemControls, StylesOfAnEdit_DecideWhatTypingLeaves)
{
    const struct {
        DWORD style;
        LPCWSTR typed;
        base::String text;
    } cases[] = {{ES_NUMBER, TEXT("1a2"), TEXT("12")},
                 {ES_UPPERCASE, TEXT("a\u00E0"), TEXT("A\u00C0")},
                 {ES_LOWERCASE, TEXT("MiX\u00C0"), TEXT("mix\u00E0")},
                 {0, TEXT("a\rb"), TEXT("ab")}};
    for (const auto& [style, typed, text] : cases) {
        const HWND edit = Add(TEXT("Edit"), ES_AUTOHSCROLL | style);
        SetWindowTextW(edit, TEXT(""));
        for (LPCWSTR unit = typed; *unit; ++unit)
            SendMessageW(edit, WM_CHAR, *unit, 1);
        EXPECT_EQ(tests::TextOf(edit), text);
    }
}

}  // namespace
