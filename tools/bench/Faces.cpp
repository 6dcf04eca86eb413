#include "tools/bench/Faces.h"

#include "base/Handles.h"
#include "controls/CommandButton/CommandButtonPicture.h"
#include "controls/CommandButton/CommandButtonStyles.h"
#include "controls/Pixels.h"
#include "controls/Selection.h"
#include "controls/ThemeHandle.h"

#include <vsstyle.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <vector>

namespace bench {

namespace {

using namespace controls;

/// Microseconds of the shortest of the runs of 50 milliseconds, after a first one that nobody times.
double Shortest(const std::function<void()>& draw)
{
    using Clock = std::chrono::steady_clock;
    double best = std::numeric_limits<double>::max();
    draw();
    for (const auto end = Clock::now() + std::chrono::milliseconds(50); Clock::now() < end;) {
        const auto start = Clock::now();
        draw();
        best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    return best;
}

base::BitmapHandle Sheet(int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    return base::BitmapHandle(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
}

void TimeAt(int width, int height)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const base::BitmapHandle sheet = Sheet(width, height);
    const Selection paper(dc.Get(), sheet.Get());
    Canvas canvas(dc.Get(), width, height);
    const RECT all = canvas.Client();
    const double fill = Shortest([&] { canvas.Fill(all, 0x808080); });
    const ThemeHandle theme(OpenThemeData(nullptr, TEXT("Button")));
    const double themed =
        theme ? Shortest([&] { DrawThemeBackground(theme.Get(), dc.Get(), BP_PUSHBUTTON, PBS_NORMAL, &all, nullptr); }) : 0;

    std::printf("\n%d x %d: one FillRect %.1f us, one themed drawing %.1f us\n", width, height, fill, themed);
    std::printf("%-20s%10s%10s%10s\n", "", "us", "fills", "themed");
    std::vector<double> ratios;
    for (std::int32_t style = 0; style < 19; ++style) {
        if (style == ThemeStyle)
            continue;
        const ButtonStyle& row = ButtonStyleOf(style);
        double worst = 0;
        for (const std::int32_t state : {StateNormal, StateHot, StatePressed, StateDisabled}) {
            ButtonLook look;
            look.state = state;
            look.pressedByToggle = state == StatePressed;
            look.Resolve({true, 0x406080, 0x808080, 0x20A0E0, 0x0000C0});
            worst = std::max(worst, Shortest([&] { row.painter(canvas, look); }));
        }
        ratios.push_back(themed > 0 ? worst / themed : 0);
        std::printf("%-20s%10.1f%10.1f%10.1f\n", row.name, worst, worst / fill, ratios.back());
    }
    std::ranges::sort(ratios);
    std::printf("%-20s%30.1f\n%-20s%30.1f\n", "median", ratios[ratios.size() / 2], "worst", ratios.back());
}

void TimePictures()
{
    std::printf("\n%-20s%10s%10s%10s\n", "a picture", "us", "copy us", "copies");
    for (const int side : {16, 48, 256}) {
        const base::MemoryDc dc(CreateCompatibleDC(nullptr));
        const base::BitmapHandle sheet = Sheet(side + 20, side + 20);
        const Selection paper(dc.Get(), sheet.Get());
        Canvas canvas(dc.Get(), side + 20, side + 20);
        canvas.Fill(canvas.Client(), 0x406080);
        // One copy: the same pixels read and written back, with nothing done to them.
        const double copying = Shortest([&] {
            if (const auto pixels = ReadPixels(dc.Get(), {10, 10, side + 10, side + 10}))
                DrawPixels(dc.Get(), 10, 10, *pixels);
        });
        const ButtonPictures pictures{std::make_shared<host::Picture>(Sheet(side, side)), nullptr, nullptr, nullptr};
        ButtonLook look;
        look.state = StateHot;
        const double drawing = Shortest(
            [&] { PaintButtonPicture(canvas, ButtonStyleOf(SoftStyle), look, {.pictures = pictures, .hasMask = true, .mask = 0xC0C0C0}); });
        std::printf("%3d x %-14d%10.1f%10.1f%10.1f\n", side, side, drawing, copying, drawing / copying);
    }
}

}  // namespace

void TimeFaces()
{
    TimeAt(113, 33);
    TimeAt(1200, 400);
    TimePictures();
}

}  // namespace bench
