// CommandButtonStyles: the table, the shapes and the themed button.
#include "controls/CommandButton/CommandButtonStyles.h"

#include "base/Handles.h"
#include "controls/CommandButton/CommandButtonPainters.h"
#include "controls/ThemeHandle.h"

#include <vsstyle.h>

#include <algorithm>
#include <iterator>

namespace controls {

namespace {

constexpr ButtonStyle styles[] = {
    {0, "ClassicStyle", PaintClassicStyle, 3, 4, ButtonShape::Rectangle},
    {7, "ThemeStyle", nullptr, 3, 2, ButtonShape::Rectangle},
    {10, "SoftRoundStyle", PaintSoftRoundStyle, 6, 2, ButtonShape::SoftCorners},
};

/// Windows owns a region that a window has accepted.
void GiveRegion(HWND window, base::RegionHandle region)
{
    if (region && SetWindowRgn(window, region.Get(), TRUE))
        static_cast<void>(region.Release());
}

}  // namespace

COLORREF ButtonLook::Custom(host::OleColor color) const
{
    return useCustomColors ? host::ToRgb(color) : GetSysColor(COLOR_BTNFACE);
}

const ButtonStyle* FindButtonStyle(std::int32_t number)
{
    const auto* const found = std::ranges::find(styles, number, &ButtonStyle::number);
    return found == std::end(styles) ? nullptr : found;
}

void ApplyButtonShape(HWND window, ButtonShape shape, int width, int height)
{
    GiveRegion(window, base::RegionHandle(shape == ButtonShape::SoftCorners ? CreateRoundRectRgn(0, 0, width + 1, height + 1, 4, 4)
                                                                            : CreateRectRgn(0, 0, width, height)));
}

bool DrawThemeButton(const ButtonLook& look, std::int32_t themeState, bool roundedBorders)
{
    const ThemeHandle theme(OpenThemeData(look.window, TEXT("Button")));
    if (!theme)
        return false;
    const RECT client{0, 0, look.width, look.height};
    if (roundedBorders) {
        const RECT grown{-1, -1, look.width + 1, look.height + 1};
        base::RegionHandle region;
        if (SUCCEEDED(GetThemeBackgroundRegion(theme.Get(), look.dc, BP_PUSHBUTTON, themeState, &grown, region.Receive())))
            GiveRegion(look.window, std::move(region));
    }
    return SUCCEEDED(DrawThemeBackground(theme.Get(), look.dc, BP_PUSHBUTTON, themeState, &client, &client));
}

}  // namespace controls
