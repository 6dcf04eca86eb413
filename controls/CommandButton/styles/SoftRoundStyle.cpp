// SoftRoundStyle: a band of light along the top, a body that grows lighter downwards, a frame with rounded corners.
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/styles/ButtonPainters.h"

namespace controls {

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

struct Shades {
    COLORREF fill;
    COLORREF bandTop;
    COLORREF bandBottom;
    COLORREF bodyTop;
    COLORREF bodyBottom;
    COLORREF frame;
    COLORREF corners;
};

Shades ShadesOf(COLORREF color, std::int32_t state)
{
    const auto shifted = [color](double fraction) { return ShiftByFraction(color, fraction); };
    const auto lightened = [color](COLORREF with, double fraction) { return ShiftByFraction(Mix(color, with), fraction); };
    switch (state) {
        case StateDisabled:
            return {color, lightened(white, 0.05), color, shifted(-0.02), Mix(white, shifted(0.08)), shifted(-0.2), shifted(-0.23)};
        case StateHot:
            return {shifted(-0.03),           lightened(white, 0.15), color,         shifted(-0.03),
                    Mix(white, shifted(0.2)), shifted(-0.28),         shifted(-0.36)};
        case StatePressed:
            return {shifted(-0.03), lightened(0x000002, 0.22), color, shifted(-0.08), Mix(white, color), shifted(-0.36), shifted(-0.36)};
        default:
            return {shifted(-0.03), lightened(white, 0.1), color, shifted(-0.05), Mix(white, shifted(0.1)), shifted(-0.33), shifted(-0.36)};
    }
}

}  // namespace

void PaintSoftRoundStyle(Canvas& canvas, const ButtonLook& look)
{
    Shades shades = ShadesOf(look.Face(), look.state);
    // Around a face that is dark itself no darker line can be seen.
    if (look.isSchemeDark && !look.useCustomColors)
        shades.frame = shades.corners = GetSysColor(look.IsDisabled() ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    const int width = canvas.Width();
    const int height = canvas.Height();
    canvas.Fill(canvas.Client(), shades.fill);
    // Between the band and the body one row keeps the fill colour. The body reaches beyond the lower edge, where it is cut off.
    canvas.Gradient({0, 0, width, 5}, shades.bandTop, shades.bandBottom, GradientVertical);
    canvas.Gradient({0, 6, width, 6 + height - 1}, shades.bodyTop, shades.bodyBottom, GradientVertical);
    canvas.Outline(canvas.Client(), shades.frame);
    canvas.Corners(1, shades.corners);
}

}  // namespace controls
