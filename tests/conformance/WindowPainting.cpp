// What has to be painted, when it is asked for, and what painting may touch.
#include "tests/support/MessageLog.h"
#include "tests/support/Place.h"

namespace {

using tests::MessageLog;

/// A popup and a child in its corner, both painted and at rest.
class Painting : public testing::Test {
protected:
    Painting()
        : top_(log_.Create("top", WS_POPUP | WS_VISIBLE, nullptr, {100, 100, 300, 250})),
          child_(log_.Create("child", WS_CHILD | WS_VISIBLE, top_, {20, 20, 70, 60}))
    {
        log_.WithPainting();
        tests::PumpMessages(20);
        log_.Clear();
    }

    /// Whether what is drawn on a window at this point of the popup is seen on the one that has the point.
    bool Draws(HWND window, HWND seen, POINT point)
    {
        const auto on = [&](HWND each, auto use) {
            POINT place = point;
            MapWindowPoints(top_, each, &place, 1);
            const HDC dc = GetDC(each);
            const COLORREF color = use(dc, place.x, place.y);
            ReleaseDC(each, dc);
            return color;
        };
        on(window, [&](HDC dc, int x, int y) { return SetPixel(dc, x, y, ++color_); });
        return on(seen, GetPixel) == color_;
    }

    MessageLog log_;
    HWND top_;
    HWND child_;
    COLORREF color_ = 0;
};

TEST_F(Painting, Invalid_IsCollectedPaintedOnceAndThenValid)
{
    const RECT one{100, 10, 110, 20}, other{150, 80, 160, 95}, outside{-50, -50, -10, -10};
    InvalidateRect(top_, &one, FALSE);
    InvalidateRect(top_, &other, FALSE);
    InvalidateRect(top_, &outside, FALSE);
    RECT area{};
    GetUpdateRect(top_, &area, FALSE);
    EXPECT_EQ(tests::PlaceOf(area), (tests::Place{100, 10, 160, 95}));
    tests::PumpMessages(20);
    EXPECT_TRUE(log_.Is({WM_PAINT, WM_ERASEBKGND}, {"top WM_PAINT"})) << "without the background";
    EXPECT_FALSE(GetUpdateRect(top_, nullptr, FALSE));
    InvalidateRect(top_, &one, TRUE);
    UpdateWindow(top_);
    EXPECT_TRUE(log_.Is({WM_PAINT, WM_ERASEBKGND}, {"top WM_PAINT", "top WM_ERASEBKGND"})) << "at once, with the background";
}

TEST_F(Painting, Children_AreInvalidWithTheirParentUnlessItClipsThem)
{
    InvalidateRect(top_, nullptr, TRUE);
    tests::PumpMessages(20);
    EXPECT_TRUE(log_.Is({WM_PAINT}, {"top WM_PAINT", "child WM_PAINT"}));
    SetWindowLongW(top_, GWL_STYLE, GetWindowLongW(top_, GWL_STYLE) | static_cast<LONG>(WS_CLIPCHILDREN));
    InvalidateRect(top_, nullptr, TRUE);
    tests::PumpMessages(20);
    EXPECT_TRUE(log_.Is({WM_PAINT}, {"top WM_PAINT"}));
    RedrawWindow(top_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_TRUE(log_.Is({WM_PAINT}, {"top WM_PAINT", "child WM_PAINT"}));
}

TEST_F(Painting, DeviceContext_IsClippedToWhatCanBeSeen)
{
    const POINT inside{69, 59}, beside{70, 59};
    EXPECT_TRUE(Draws(child_, child_, inside));
    EXPECT_FALSE(Draws(child_, top_, beside)) << "a child draws inside itself only";
    EXPECT_TRUE(Draws(top_, child_, inside)) << "a parent draws over its children";
    SetWindowLongW(top_, GWL_STYLE, GetWindowLongW(top_, GWL_STYLE) | static_cast<LONG>(WS_CLIPCHILDREN));
    EXPECT_FALSE(Draws(top_, child_, inside)) << "unless it clips them";
    EXPECT_TRUE(Draws(top_, top_, beside));
    const HWND behind = log_.Create("behind", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, top_, {40, 20, 90, 60});
    EXPECT_FALSE(Draws(behind, child_, inside)) << "a sibling is in front";
    EXPECT_TRUE(Draws(behind, behind, beside));
}

TEST_F(Painting, HidingAndMoving_ExposeTheParent)
{
    const auto exposed = [&] {
        RECT area{};
        GetUpdateRect(top_, &area, FALSE);
        ValidateRect(top_, nullptr);
        return tests::PlaceOf(area);
    };
    MoveWindow(child_, 120, 20, 50, 40, TRUE);
    EXPECT_EQ(exposed(), (tests::Place{20, 20, 70, 60}));
    ShowWindow(child_, SW_HIDE);
    EXPECT_EQ(exposed(), (tests::Place{120, 20, 170, 60}));
}

}  // namespace
