// ButtonEdges: the border that several styles share.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLook.h"

namespace controls {

/// Raised or sunken, flat or none, as `contourStyle` says; the form's default button has a black outline in any case.
void PaintContour(Canvas& canvas, const ButtonLook& look);

}  // namespace controls
