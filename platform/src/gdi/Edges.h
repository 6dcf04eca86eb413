// Edges: the two-line borders of classic controls.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

namespace platform {

/// DrawEdge: the BDR_ and BF_ flags; `rectangle` is logical and shrinks with BF_ADJUST.
void PaintEdge(DeviceContext& dc, RECT& rectangle, UINT edge, UINT flags);
/// The dotted rectangle of the focus; painting it twice removes it. Pixels are logical.
void PaintFocusRect(DeviceContext& dc, const RECT& rectangle);

}  // namespace platform
