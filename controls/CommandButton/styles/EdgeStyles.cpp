// Styles with the edges of the days before visual styles.
#include "controls/CommandButton/styles/ButtonEdges.h"
#include "controls/CommandButton/styles/ButtonPainters.h"

namespace controls {

namespace {

constexpr COLORREF black = 0x000000;

COLORREF SoftFill(const ButtonLook& look)
{
    return look.state == StateNormal || look.IsDisabled() ? look.customBack : look.customHighlight;
}

}  // namespace

void PaintContour(Canvas& canvas, const ButtonLook& look)
{
    const RECT& client = canvas.Client();
    if (look.isDefault) {
        canvas.Edge(client, look.IsPressed() ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
        if (!look.IsPressed())
            canvas.Outline(client, black);
    } else if (look.contourStyle == Contour3D) {
        canvas.Edge(client, look.IsPressed() ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    } else if (look.contourStyle == ContourFlat) {
        canvas.Edge(client, EDGE_RAISED, BF_RECT | BF_FLAT);
    }
}

void PaintClassicStyle(Canvas& canvas, const ButtonLook& look)
{
    if (look.pressedByToggle) {
        canvas.Ground(look.useCustomColors ? look.back : RGB(255, 255, 255));
        canvas.Checker(GetSysColor(COLOR_BTNFACE));
    } else {
        canvas.Ground(look.IsPressed() ? look.customHighlight : look.customBack);
    }
    PaintContour(canvas, look);
}

void PaintSoftStyle(Canvas& canvas, const ButtonLook& look)
{
    canvas.Ground(SoftFill(look));
    if (look.IsDisabled())
        canvas.Outline(canvas.Client(), black);
    else
        canvas.Edge(canvas.Client(), look.IsPressed() ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
}

void PaintHoverStyle(Canvas& canvas, const ButtonLook& look)
{
    canvas.Ground(SoftFill(look));
    if (look.IsHot() || look.IsPressed())
        canvas.Edge(canvas.Client(), look.IsPressed() ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
    else if (look.state == StateDefaulted)
        canvas.Outline(canvas.Client(), black);
    // Normal and disabled the outline has the colour of the fill: the button is flat until the mouse comes.
}

}  // namespace controls
