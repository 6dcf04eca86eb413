// Icons on device contexts.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

namespace platform {

/// An icon or a cursor: its colours and, per pixel, whether it covers what lies beneath.
struct Icon : Object {
    Image color;
    std::vector<bool> opaque;
    POINT hotSpot{};
    bool isIcon = true;
    bool isBlackAndWhite = false;
};

/// Draws an icon into a logical rectangle, stretched to it.
void PaintIcon(DeviceContext& dc, const Icon& icon, const RECT& rectangle);

}  // namespace platform
