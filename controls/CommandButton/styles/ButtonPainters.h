// ButtonPainters: one function for each style of a button.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLook.h"

namespace controls {

/// The face is there already, or there is none.
inline void PaintNothing(Canvas&, const ButtonLook&) {}

/// A raised box of the days before visual styles; a toggle button that is on has a checkered face.
void PaintClassicStyle(Canvas& canvas, const ButtonLook& look);

/// Soft vertical gradients with rounded corners.
void PaintSoftRoundStyle(Canvas& canvas, const ButtonLook& look);

}  // namespace controls
