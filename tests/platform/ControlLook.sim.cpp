// What the system's controls draw on the stand-in PC: which text, in which colour.
#include "platform/sim/Desktop.h"
#include "platform/sim/Graphics.h"
#include "platform/sim/SimPc.h"
#include "platform/sim/Theme.h"
#include "tests/support/ControlParent.h"

#include <gtest/gtest.h>

namespace {

using platform::Graphics;
using platform::SimPc;

class ControlLook : public testing::Test {
protected:
    /// The texts that painting the window afresh draws.
    std::vector<Graphics::DrawnText> Paint(HWND window)
    {
        graphics_.ForgetTexts();
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_FRAME);
        return graphics_.Texts();
    }
    platform::Image Picture(HWND window)
    {
        Paint(window);
        return SimPc::Current().Get<platform::Desktop>().Snapshot(window);
    }

    Graphics& graphics_ = SimPc::Current().Get<Graphics>();
    tests::ControlParent parent_;
};

TEST_F(ControlLook, DisabledControls_DrawGreyText)
{
    for (const LPCWSTR className : {TEXT("Static"), TEXT("Edit"), TEXT("Button")}) {
        const HWND control = parent_.Add(className, 0, TEXT("Word"));
        EnableWindow(control, FALSE);
        const auto texts = Paint(control);
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(texts.back().text, u"Word");
        EXPECT_EQ(texts.back().color, graphics_.SystemColor(COLOR_GRAYTEXT));
        EnableWindow(control, TRUE);
        EXPECT_EQ(Paint(control).back().color, graphics_.SystemColor(COLOR_WINDOWTEXT));
        DestroyWindow(control);
    }
}

TEST_F(ControlLook, Password_IsNeverDrawn)
{
    const HWND edit = parent_.Add(TEXT("Edit"), ES_AUTOHSCROLL | ES_PASSWORD, TEXT("abc"));
    EXPECT_EQ(Paint(edit).at(0).text, u"\u25CF\u25CF\u25CF");
    SendMessageW(edit, EM_SETPASSWORDCHAR, u'*', 0);
    EXPECT_EQ(Paint(edit).at(0).text, u"***");
}

TEST_F(ControlLook, State_ShowsInEveryLook)
{
    auto& theme = SimPc::Current().Get<platform::Theme>();
    for (const bool themed : {true, false}) {
        theme.Active(themed);
        const HWND box = parent_.Add(TEXT("Button"), BS_3STATE, TEXT("Box"));
        std::vector<platform::Image> looks;
        for (const WPARAM check : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE}) {
            SendMessageW(box, BM_SETCHECK, check, 0);
            looks.push_back(Picture(box));
        }
        SendMessageW(box, BM_SETCHECK, BST_UNCHECKED, 0);
        SendMessageW(box, BM_SETSTATE, TRUE, 0);
        looks.push_back(Picture(box));
        SendMessageW(box, BM_SETSTATE, FALSE, 0);
        EnableWindow(box, FALSE);
        looks.push_back(Picture(box));
        for (std::size_t one = 0; one < looks.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other)
                EXPECT_FALSE(looks[one] == looks[other]) << one << " looks like " << other << (themed ? " themed" : " classic");
        }
        DestroyWindow(box);
    }
}

}  // namespace
