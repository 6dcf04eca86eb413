// ClassicStyle: raised and sunken edges.
#include "controls/CommandButton/CommandButtonPainters.h"

#include "base/Handles.h"
#include "controls/CommandButton/CommandButtonValues.h"

namespace controls {

namespace {

void PaintFace(const ButtonLook& look)
{
    host::OleColor face = look.Custom(look.state == StatePressed ? look.highlightColor : look.backColor);
    if (look.pressedByToggle)
        face = look.useCustomColors ? host::ToRgb(look.stateBackColor) : RGB(255, 255, 255);
    look.surface.BackColor(face);
    look.surface.Clear();
    if (!look.pressedByToggle)
        return;
    const COLORREF dots = GetSysColor(COLOR_BTNFACE);
    for (int row = 0; row < look.height; ++row) {
        for (int column = row % 2; column < look.width; column += 2)
            SetPixelV(look.dc, column, row, dots);
    }
}

}  // namespace

void PaintClassicStyle(const ButtonLook& look)
{
    PaintFace(look);
    RECT client{0, 0, look.width, look.height};
    const bool isPressed = look.state == StatePressed;
    if (look.isDefault) {
        DrawEdge(look.dc, &client, isPressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
        if (!isPressed)
            FrameRect(look.dc, &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    } else if (look.contourStyle == Contour3D) {
        DrawEdge(look.dc, &client, isPressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    } else if (look.contourStyle == ContourFlat) {
        DrawEdge(look.dc, &client, EDGE_RAISED, BF_RECT | BF_FLAT);
    }
}

}  // namespace controls
