// Lines of pixels with a pen. All coordinates are pixels of the image.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

#include <span>

namespace platform {

/// Draws from `from` up to, but without, `to`. Wide pens cover both ends.
void StrokeLine(DeviceContext& dc, const Pen& pen, POINT from, POINT to);
/// A line through all points; the last point of the whole is left out by thin pens.
void StrokePolyline(DeviceContext& dc, const Pen& pen, std::span<const POINT> points);
/// The outermost pixels of a region.
void StrokeOutline(DeviceContext& dc, const Pen& pen, const Region& region);

}  // namespace platform
