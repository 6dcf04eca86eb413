#include "controls/CommandButton/CommandButtonStyles.h"

#include "controls/CommandButton/styles/ButtonPainters.h"

#include <array>

namespace controls {

namespace {

using enum ButtonShape;
using enum Recut;

constexpr std::int8_t noFocus = -1;

/// Row n is style n.
constexpr std::array styles{
    ButtonStyle{ClassicStyle, "ClassicStyle", PaintClassicStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{SoftStyle, "SoftStyle", PaintSoftStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{HoverStyle, "HoverStyle", PaintHoverStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{GradientStyle, "GradientStyle", PaintGradientStyle, 3, 3, Rectangle, Never, NoTrait},
    ButtonStyle{RoundedStyle, "RoundedStyle", PaintRoundedStyle, 6, 4, Rectangle, WithContour, NoTrait},
    ButtonStyle{Raised3DStyle, "Raised3DStyle", PaintRaised3DStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{FlatStyle, "FlatStyle", PaintFlatStyle, 3, 4, Rectangle, Never, NoTrait},
    ButtonStyle{ThemeStyle, "ThemeStyle", PaintNothing, 3, 2, Rectangle, Never, NoTrait},
    ButtonStyle{GlossStyle, "GlossStyle", PaintGlossStyle, 7, 6, Gloss, Never, NoTrait},
    ButtonStyle{PanelStyle, "PanelStyle", PaintPanelStyle, 7, 6, SoftCorners, Never, NoTrait},
    ButtonStyle{SoftRoundStyle, "SoftRoundStyle", PaintSoftRoundStyle, 6, 2, SoftCorners, WhenDrawn, NoTrait},
    ButtonStyle{ShapedStyle, "ShapedStyle", PaintShapedStyle, 4, 3, CutCorners, Never, NoTrait},
    ButtonStyle{WarmStyle, "WarmStyle", PaintWarmStyle, 6, noFocus, Rectangle, Never, NoTrait},
    ButtonStyle{FlatHotStyle, "FlatHotStyle", PaintFlatHotStyle, 3, 4, Rectangle, Never, LiftsHotPicture},
    ButtonStyle{GlowStyle, "GlowStyle", PaintGlowStyle, 4, 4, Rectangle, Never, NoTrait},
    ButtonStyle{SilverStyle, "SilverStyle", PaintSilverStyle, 3, 2, ClippedCorners, Never, NormalInDesigner},
    ButtonStyle{BevelStyle, "BevelStyle", PaintBevelStyle, 6, 4, CutCorners, Never, NoTrait},
    ButtonStyle{SystemShadeStyle, "SystemShadeStyle", PaintSystemShadeStyle, 4, 4, ClippedCorners, Never, NoTrait},
    ButtonStyle{InsetStyle, "InsetStyle", PaintInsetStyle, 4, 4, Rectangle, Never, NoTrait},
};

constexpr bool IsWhole()
{
    for (std::size_t row = 0; row < styles.size(); ++row) {
        if (styles[row].number != static_cast<std::int32_t>(row))
            return false;
    }
    return styles.size() == 19;
}
static_assert(IsWhole(), "every style from 0 to 18 has its row in its place");

constexpr ButtonStyle noStyle{-1, "", PaintNothing, 3, noFocus, Rectangle, Never, NoTrait};

}  // namespace

const ButtonStyle& ButtonStyleOf(std::int32_t number)
{
    return number >= 0 && number < static_cast<std::int32_t>(styles.size()) ? styles[static_cast<std::size_t>(number)] : noStyle;
}

ButtonOutline OutlineOf(const ButtonStyle& own, const ButtonStyle& drawn, const ButtonLook& look, SIZE size)
{
    if (drawn.recut == WithContour && look.contourStyle != ContourNone)
        return {ByDiameter, size.cx, size.cy, look.roundedValue};
    return {drawn.recut == WhenDrawn ? drawn.shape : own.shape, size.cx, size.cy};
}

void PaintButtonFocus(Canvas& canvas, const ButtonStyle& style, const ButtonLook& look)
{
    const int inset = style.focusInset;
    if (inset < 0 || look.IsDisabled())
        return;
    const int lost = look.pressedByToggle ? 0 : 1;
    canvas.Focus({inset, inset, canvas.Width() - lost - inset, canvas.Height() - lost - inset});
}

}  // namespace controls
