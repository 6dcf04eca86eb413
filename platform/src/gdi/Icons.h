// Icons on device contexts.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

namespace platform {

/// Draws an icon into a logical rectangle, stretched to it.
void PaintIcon(DeviceContext& dc, const Icon& icon, const RECT& rectangle);

}  // namespace platform
