// CommandButtonPainters: one function for each style of a button.
#pragma once

#include "controls/CommandButton/CommandButtonStyles.h"

namespace controls {

/// A raised box of the days before visual styles; a toggle button that is on has a checkered face.
void PaintClassicStyle(const ButtonLook& look);

/// Soft vertical gradients with rounded corners.
void PaintSoftRoundStyle(const ButtonLook& look);

}  // namespace controls
