// What has to be painted, when it is asked for, and what painting may touch.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A popup and a child in its corner, both painted and at rest.
class Painting : public testing::Test {
protected:
    Painting()
        : top_(log_.Create("top", WS_POPUP | WS_VISIBLE, nullptr, {100, 100, 300, 250})),
          child_(log_.Create("child", WS_CHILD | WS_VISIBLE, top_, {20, 20, 70, 60}))
    {
        log_.Also(WM_PAINT);
        log_.Also(WM_ERASEBKGND);
        tests::PumpMessages(20);
        log_.Clear();
    }

    void Fill(HWND window, COLORREF color, RECT area = {0, 0, 400, 400})
    {
        const HDC dc = GetDC(window);
        const HBRUSH brush = CreateSolidBrush(color);
        FillRect(dc, &area, brush);
        DeleteObject(brush);
        ReleaseDC(window, dc);
    }
    COLORREF PixelOf(HWND window, int x, int y)
    {
        const HDC dc = GetDC(window);
        const COLORREF color = GetPixel(dc, x, y);
        ReleaseDC(window, dc);
        return color;
    }
    MessageLog log_;
    HWND top_;
    HWND child_;
};

TEST_F(Painting, Invalid_IsCollectedPaintedOnceAndThenValid)
{
    const RECT one{100, 10, 110, 20}, other{150, 80, 160, 95}, outside{-50, -50, -10, -10};
    InvalidateRect(top_, &one, FALSE);
    InvalidateRect(top_, &other, FALSE);
    InvalidateRect(top_, &outside, FALSE);
    RECT area{};
    GetUpdateRect(top_, &area, FALSE);
    const RECT both{100, 10, 160, 95};
    EXPECT_TRUE(EqualRect(&area, &both));
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
    Fill(child_, blue);
    EXPECT_EQ(PixelOf(top_, 20, 20), blue);
    EXPECT_EQ(PixelOf(top_, 69, 59), blue);
    EXPECT_NE(PixelOf(top_, 70, 59), blue) << "a child draws inside itself only";
    Fill(top_, red);
    EXPECT_EQ(PixelOf(child_, 5, 5), red) << "a parent draws over its children";
    SetWindowLongW(top_, GWL_STYLE, GetWindowLongW(top_, GWL_STYLE) | static_cast<LONG>(WS_CLIPCHILDREN));
    Fill(child_, blue);
    Fill(top_, red);
    EXPECT_EQ(PixelOf(child_, 5, 5), blue) << "unless it clips them";
    EXPECT_EQ(PixelOf(top_, 5, 5), red);
    const HWND behind = log_.Create("behind", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, top_, {40, 20, 90, 60});
    Fill(behind, red);
    EXPECT_EQ(PixelOf(child_, 25, 5), blue) << "a sibling in front";
    EXPECT_EQ(PixelOf(behind, 40, 5), red);
}

TEST_F(Painting, HidingAndMoving_ExposeTheParent)
{
    Fill(top_, red);
    Fill(child_, blue);
    MoveWindow(child_, 120, 20, 50, 40, TRUE);
    tests::PumpMessages(20);
    EXPECT_EQ(PixelOf(top_, 30, 30), GetSysColor(COLOR_BTNFACE)) << "the background comes back where it was";
    EXPECT_EQ(PixelOf(top_, 5, 5), red) << "and nowhere else";
    ShowWindow(child_, SW_HIDE);
    tests::PumpMessages(20);
    EXPECT_EQ(PixelOf(top_, 130, 30), GetSysColor(COLOR_BTNFACE));
}

}  // namespace
