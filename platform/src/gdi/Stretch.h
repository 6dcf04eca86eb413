// Copying pixels from an image to a device context, stretched and mirrored as needed.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

namespace platform {

/// Copies `from` (pixels of `source`) to `target` (pixels of the device context's image) by a raster operation such as SRCCOPY.
/// A rectangle whose right lies left of its left mirrors. Monochrome pixels take the target's text and background colours; on a monochrome
/// target what has the source's background colour becomes white.
void StretchPixels(DeviceContext& dc, RECT target, const Image& source, RECT from, DWORD rop,
                   COLORREF sourceBackground = RGB(255, 255, 255));

/// A block as GDI's calls give it. A negative size runs from the corner towards left or up, the corner's own pixel included.
[[nodiscard]] inline RECT Block(int x, int y, int width, int height)
{
    x += width < 0 ? 1 : 0;
    y += height < 0 ? 1 : 0;
    return {x, y, x + width, y + height};
}

}  // namespace platform
