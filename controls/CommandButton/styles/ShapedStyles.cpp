// Styles with cut corners, made of shades of the back colour.
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/styles/ButtonPainters.h"
#include "controls/CommandButton/styles/ButtonSkin.h"

namespace controls {

namespace {

/// Light from the top left; pressed, the light comes from the other side.
SkinRim Lit(COLORREF base, int light, int shade, bool isPressed)
{
    const SkinRim rim{Shift(base, light), Darken(base, shade)};
    return isPressed ? SkinRim{rim.bottomRight, rim.topLeft} : rim;
}

}  // namespace

void PaintShapedStyle(Canvas& canvas, const ButtonLook& look)
{
    // A little darker than the button's colour, so that light stays visible on a light one.
    const COLORREF base = look.IsHot() ? Shift(look.back, 4) : Darken(look.back, 10);
    const int contrast = look.IsDisabled() ? 2 : 1;
    const int slope = look.IsPressed() ? -24 : 24;
    const COLORREF edge = Darken(look.back, 96 / contrast);
    const SkinRim inner =
        look.IsHot() ? SkinRim{Shift(base, 56), Shift(base, 56)} : Lit(base, 56 / contrast, 40 / contrast, look.IsPressed());
    PaintSkin(canvas, {.shape = ButtonShape::CutCorners,
                       .outside = look.back,
                       .rims = {{edge, edge}, inner},
                       .bands = {{100, Shift(base, slope / contrast), Shift(base, -slope / contrast)}}});
}

void PaintBevelStyle(Canvas& canvas, const ButtonLook& look)
{
    const COLORREF base = look.IsHot() ? Darken(look.back, 4) : Darken(look.back, look.IsPressed() ? 32 : 18);
    const int contrast = look.IsDisabled() ? 2 : 1;
    const COLORREF edge = Darken(look.back, 110 / contrast);
    const auto line = [&](int light, int shade) { return Lit(base, light / contrast, shade / contrast, look.IsPressed()); };
    PaintSkin(canvas, {.shape = ButtonShape::CutCorners,
                       .outside = look.back,
                       .rims = {{edge, edge}, line(60, 70), line(40, 45), line(20, 20)},
                       .bands = {{100, base, base}}});
}

}  // namespace controls
