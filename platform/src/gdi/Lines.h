// Lines of pixels with a pen. All coordinates are pixels of the image.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

#include <span>

namespace platform {

/// Draws from `from` up to, but without, `to`. Wide pens cover both ends.
void StrokeLine(DeviceContext& dc, const Pen& pen, POINT from, POINT to);
/// The outermost pixels of a region.
void StrokeOutline(DeviceContext& dc, const Pen& pen, const Region& region);

}  // namespace platform
