// Filling and framing with a brush that is not selected.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

namespace platform {

/// The brush of a handle, or of a system colour plus one given in its place; empty with ERROR_INVALID_HANDLE.
[[nodiscard]] std::shared_ptr<Brush> FindBrush(HBRUSH brush);
/// A border one pixel wide just inside the rectangle, which is logical.
void PaintFrame(DeviceContext& dc, const RECT& rectangle, const Brush& brush);

}  // namespace platform
