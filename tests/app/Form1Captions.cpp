// The captions of the window's buttons as ink: whole, on one line and in the middle, whatever the screen's resolution.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using base::String;

/// The button's pixels, row by row.
std::vector<std::uint32_t> Picture(controls::CommandButton& button)
{
    BITMAP picture{};
    const HDC dc = button.GetSurface().Dc();
    GetObjectW(GetCurrentObject(dc, OBJ_BITMAP), sizeof picture, &picture);
    // Windows may draw later than it is told to; what is asked for is drawn.
    GetPixel(dc, 0, 0);
    const auto* const first = static_cast<const std::uint32_t*>(picture.bmBits);
    return first ? std::vector<std::uint32_t>(first, first + picture.bmWidth * picture.bmHeight) : std::vector<std::uint32_t>();
}

/// Where the button looks different with its caption than without.
RECT Ink(controls::CommandButton& button)
{
    const std::vector<std::uint32_t> with = Picture(button);
    button.CaptionHide(true);
    const std::vector<std::uint32_t> without = Picture(button);
    button.CaptionHide(false);
    const LONG width = button.GetSurface().ScaleWidth(), height = button.GetSurface().ScaleHeight();
    EXPECT_EQ(with.size(), static_cast<std::size_t>(width * height));
    EXPECT_EQ(without.size(), with.size());
    RECT ink{width, height, 0, 0};
    for (LONG y = 0; y < height; ++y) {
        for (LONG x = 0; x < width; ++x) {
            const auto place = static_cast<std::size_t>(y * width + x);
            if (with[place] != without[place])
                ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1), std::max(ink.bottom, y + 1)};
        }
    }
    return ink;
}

void ExpectWholeCaptions()
{
    host::ControlFactory factory;
    controls::RegisterControls(factory);
    host::Form form;
    form.UserMode(false);
    ASSERT_TRUE(form.Load(app::Form1Text(), factory)) << form.LoadError();
    form.Show();
    const std::pair<const WCHAR*, std::vector<String>> captions[] = {
        {TEXT("cmdInstall"), {TEXT("Install Service"), TEXT("Uninstall Service")}},
        {TEXT("cmdStart"), {TEXT("Start Service"), TEXT("Stop Service")}},
        {TEXT("CommandStartVelmora"), {TEXT("Start Velmora")}},
        {TEXT("CommandCloseVelmora"), {TEXT("Close Velmora")}},
        {TEXT("CommandOk"), {TEXT("OK")}}};
    for (const auto& [name, texts] : captions) {
        auto& button = *form.Find<controls::CommandButton>(name);
        for (const String& text : texts) {
            button.Caption(text);
            SIZE extent{};
            GetTextExtentPoint32W(button.GetSurface().Dc(), text.c_str(), static_cast<int>(text.size()), &extent);
            const RECT ink = Ink(button);
            const std::string trace(text.begin(), text.end());
            // Letters leave a little of their measure free at either side.
            EXPECT_GE(ink.right - ink.left, extent.cx - extent.cy / 3) << trace;
            EXPECT_LE(ink.bottom - ink.top, extent.cy) << trace;
            EXPECT_LE(std::abs(ink.left + ink.right - button.GetSurface().ScaleWidth()), 4) << trace << " stands in the middle";
        }
    }
    // A label's and a check box's line needs no more than its window.
    for (host::Control* const control : form.Controls()) {
        auto* const check = dynamic_cast<controls::CheckBox*>(control);
        const auto* const label = dynamic_cast<host::Label*>(control);
        if (!check && !label)
            continue;
        const String& text = check ? check->Caption() : label->Caption();
        const base::ScreenDc screen(GetDC(nullptr));
        const HGDIOBJ former = SelectObject(screen.Get(), reinterpret_cast<HFONT>(SendMessageW(control->hWnd(), WM_GETFONT, 0, 0)));
        SIZE extent{};
        GetTextExtentPoint32W(screen.Get(), text.c_str(), static_cast<int>(text.size()), &extent);
        SelectObject(screen.Get(), former);
        RECT client{};
        GetClientRect(control->hWnd(), &client);
        const std::string trace(text.begin(), text.end());
        EXPECT_LE(extent.cy, client.bottom) << trace;
        EXPECT_LE(extent.cx + (check ? GetSystemMetrics(SM_CXMENUCHECK) : 0), client.right) << trace;
    }
    form.Unload();
}

TEST(Form1Captions, StandWholeOnTheirButtons_AtEveryResolution)
{
    int seen = 0;
    for (const int dots : {96, 120, 144, 168, 192}) {
        if (!tests::AtDotsPerInch(dots))
            continue;
        SCOPED_TRACE(testing::Message() << dots << " dots per inch");
        ExpectWholeCaptions();
        ++seen;
    }
    EXPECT_GE(seen, 1) << "another resolution than was asked for";
    // Windows has one resolution a session; whoever starts it says which it is to be.
    if (const char* const wanted = std::getenv("VELMORA_DPI")) {
        EXPECT_TRUE(tests::AtDotsPerInch(std::atoi(wanted)));
    }
}

}  // namespace
