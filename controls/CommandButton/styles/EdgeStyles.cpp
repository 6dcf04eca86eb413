// Styles with the edges of the days before visual styles.
#include "controls/CommandButton/styles/ButtonEdges.h"
#include "controls/CommandButton/styles/ButtonPainters.h"

namespace controls {

void PaintContour(Canvas& canvas, const ButtonLook& look)
{
    if (look.isDefault) {
        canvas.Edge(canvas.Client(), look.IsPressed() ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
        if (!look.IsPressed())
            canvas.Outline(canvas.Client(), 0);
    } else if (look.contourStyle == Contour3D) {
        canvas.Edge(canvas.Client(), look.IsPressed() ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    } else if (look.contourStyle == ContourFlat) {
        canvas.Edge(canvas.Client(), EDGE_RAISED, BF_RECT | BF_FLAT);
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

}  // namespace controls
