// CommandButtonStyles: the table.
#include "controls/CommandButton/CommandButtonStyles.h"

#include "controls/CommandButton/styles/ButtonPainters.h"

#include <algorithm>
#include <array>

namespace controls {

namespace {

using enum ButtonShape;
using enum Recut;

constexpr std::int8_t noFocus = -1;

constexpr std::array styles{
    ButtonStyle{ClassicStyle, "ClassicStyle", PaintClassicStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{ThemeStyle, "ThemeStyle", PaintNothing, 3, 2, Rectangle, Never, NoTrait},
    ButtonStyle{SoftRoundStyle, "SoftRoundStyle", PaintSoftRoundStyle, 6, 2, SoftCorners, WhenDrawn, NoTrait},
};

constexpr ButtonStyle noStyle{-1, "", PaintNothing, 3, noFocus, Rectangle, Never, NoTrait};

}  // namespace

const ButtonStyle& ButtonStyleOf(std::int32_t number)
{
    const auto* const found = std::ranges::find(styles, number, &ButtonStyle::number);
    return found == styles.end() ? noStyle : *found;
}

ButtonOutline OutlineOf(const ButtonStyle& own, const ButtonStyle& drawn, const ButtonLook& look, SIZE size)
{
    if (drawn.recut == WithContour && look.contourStyle != ContourNone)
        return {ByDiameter, size.cx, size.cy, look.roundedValue};
    return {drawn.recut == WhenDrawn ? drawn.shape : own.shape, size.cx, size.cy};
}

}  // namespace controls
