// Styles whose face is a gradient that a property directs.
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/styles/ButtonEdges.h"
#include "controls/CommandButton/styles/ButtonPainters.h"

#include <cmath>

namespace controls {

namespace {

/// One colour a row: `base`, darkened from the top down to almost `depth` at the bottom.
void DarkenRows(Canvas& canvas, COLORREF base, int depth, int firstRow)
{
    const double step = depth / (canvas.Height() + 0.00001);
    std::vector<COLORREF> rows;
    for (int row = firstRow; row < canvas.Height(); ++row)
        rows.push_back(Darken(base, static_cast<int>(std::lrint(row * step))));
    canvas.Rows(firstRow, rows);
}

struct Bevels {
    COLORREF outerLight, innerLight, outerDark, innerDark;
};

void PaintRoundedFace(Canvas& canvas, const ButtonLook& look, COLORREF base)
{
    switch (look.gradientDirection) {
        case 0:
            canvas.Fill({1, 1, canvas.Width(), canvas.Height()}, base);
            break;
        case GradientDiagonal: {
            const int depth = look.isDefault ? 70 : 50;
            DarkenRows(canvas, base, look.IsPressed() ? -depth : depth, 0);
            break;
        }
        default: {
            const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
            COLORREF first = look.customBack;
            COLORREF last = look.HighlightOr(look.IsHot() ? Shift(light, 30) : light);
            if (look.IsPressed())
                std::swap(first, last);
            canvas.Gradient(canvas.Client(), first, last, look.gradientDirection);
            break;
        }
    }
}

}  // namespace

void PaintGradientStyle(Canvas& canvas, const ButtonLook& look)
{
    const auto gradient = [&](int lighter, int darker, std::int32_t direction) {
        canvas.Gradient(canvas.Client(), Shift(look.back, lighter), Darken(look.back, darker), direction);
    };
    if (look.IsDisabled())
        DarkenRows(canvas, Shift(look.back, 10), 50, 1);
    else if (!look.IsPressed())
        gradient(look.IsHot() ? 35 : 20, 30, look.gradientDirection);
    else if (look.gradientDirection == 0)
        canvas.Fill(canvas.Client(), look.back);
    else if (look.gradientDirection == GradientDiagonal)
        gradient(15, 15, GradientDiagonal);
    else
        gradient(-20, -20, look.gradientDirection);
    PaintContour(canvas, look);
}

void PaintRoundedStyle(Canvas& canvas, const ButtonLook& look)
{
    const COLORREF base = Shift(look.back, look.IsPressed() ? -40 : look.IsHot() ? 35 : 20);
    PaintRoundedFace(canvas, look, base);
    if (look.contourStyle == Contour3D) {
        const auto [outerLight, innerLight, outerDark, innerDark] =
            look.IsPressed() ? Bevels{Darken(base, 25), Darken(base, 12), Shift(base, 10), Shift(base, 5)}
                             : Bevels{Shift(base, 10), Shift(base, 5), Darken(base, 60), Darken(base, 55)};
        canvas.Bevel(canvas.Inside(1), outerLight, outerDark);
        canvas.Bevel(canvas.Inside(2), innerLight, innerDark);
    }
    if (look.contourStyle != ContourNone)
        canvas.RoundOutline(canvas.Client(), look.roundedValue, look.contour);
}

}  // namespace controls
