// Flat faces in frames of one pixel.
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/styles/ButtonPainters.h"

namespace controls {

namespace {

COLORREF InsetColor(const ButtonLook& look)
{
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    switch (look.state) {
        case StateHot:
            return look.useCustomColors ? Mix(look.highlight, look.back) : Mix(shadow, GetSysColor(COLOR_BTNFACE));
        case StatePressed:
            return look.HighlightOr(shadow);
        default:
            return look.customBack;
    }
}

}  // namespace

void PaintRaised3DStyle(Canvas& canvas, const ButtonLook& look)
{
    if (!look.IsDisabled())
        canvas.Ground(look.IsPressed() ? look.customHighlight : look.customBack);
    COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    if (look.IsPressed())
        std::swap(light, shadow);
    canvas.Bevel(canvas.Inside(1), light, shadow);
    canvas.Bevel(canvas.Inside(2), light, shadow);
    canvas.Outline(canvas.Client(), GetSysColor(COLOR_3DDKSHADOW));
}

void PaintFlatStyle(Canvas& canvas, const ButtonLook& look)
{
    const LONG width = canvas.Width();
    const LONG height = canvas.Height();
    if (!look.IsDisabled()) {
        if (look.IsPressed())
            canvas.Ground(look.HighlightOr(0xBECBD1));
        else
            canvas.Ground(look.useCustomColors ? look.customBack : 0xD4DCE0);
    }
    canvas.Outline({1, 1, width, height}, RGB(255, 255, 255));
    const LONG first = look.IsPressed() ? 1 : 0;
    canvas.Outline({first, first, width - 1, height - 1}, GetSysColor(COLOR_3DDKSHADOW));
}

void PaintFlatHotStyle(Canvas& canvas, const ButtonLook& look)
{
    const COLORREF highlight = look.HighlightOr(GetSysColor(COLOR_HIGHLIGHT));
    if (look.IsHot() || look.IsPressed()) {
        // The frame round the face has the colour of the face.
        canvas.Ground(Tint(highlight, look.IsHot() ? 176 : 128));
        return;
    }
    canvas.Ground(Tint(look.customBack, 32));
    if (!look.IsDisabled() && look.contourStyle != ContourNone)
        canvas.Outline(canvas.Client(), look.useCustomColors ? look.contour : GetSysColor(COLOR_BTNSHADOW));
}

void PaintInsetStyle(Canvas& canvas, const ButtonLook& look)
{
    const LONG right = canvas.Width() - 1;
    const LONG bottom = canvas.Height() - 1;
    const COLORREF inside = InsetColor(look);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    canvas.Ground(look.customBack);
    canvas.Fill(canvas.Inside(4), inside);
    canvas.Outline({0, 0, right, bottom}, shadow);
    canvas.Outline({1, 1, right + 1, bottom + 1}, window);
    canvas.Pixel(0, bottom, inside);
    canvas.Pixel(right, 0, inside);
    canvas.Pixel(1, bottom - 1, Mix(shadow, window));
    canvas.Pixel(right - 1, 1, Mix(shadow, window));
}

}  // namespace controls
