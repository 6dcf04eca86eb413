// SoftRoundStyle: a band of light along the top, a body that grows lighter downwards, a frame with rounded corners.
#include "controls/CommandButton/CommandButtonPainters.h"

#include "base/Handles.h"
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/CommandButtonValues.h"
#include "controls/Gradient.h"
#include "controls/TranslateOleColor.h"

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

void PaintSoftRoundStyle(const ButtonLook& look)
{
    const Shades shades = ShadesOf(TranslateOleColor(look.Custom(look.stateBackColor)), look.state);
    if (look.state == StateNormal || look.state == StateDefaulted)
        ApplyButtonShape(look.window, ButtonShape::SoftCorners, look.width, look.height);

    if (look.state >= StateNormal && look.state <= StateDefaulted) {
        const RECT client{0, 0, look.width, look.height};
        const base::BrushHandle fill(CreateSolidBrush(shades.fill));
        FillRect(look.dc, &client, fill.Get());
        // Between the band and the body one row keeps the fill colour. The body reaches beyond the lower edge, where it is cut off.
        DrawGradient(look.dc, 0, 0, look.width, 5, shades.bandTop, shades.bandBottom, GradientVertical);
        DrawGradient(look.dc, 0, 6, look.width, look.height - 1, shades.bodyTop, shades.bodyBottom, GradientVertical);
        const base::BrushHandle frame(CreateSolidBrush(shades.frame));
        FrameRect(look.dc, &client, frame.Get());
    }
    for (const int x : {1, look.width - 2}) {
        for (const int y : {1, look.height - 2})
            SetPixelV(look.dc, x, y, shades.corners);
    }
}

}  // namespace controls
