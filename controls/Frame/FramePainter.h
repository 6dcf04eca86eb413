// FramePainter: draws a frame, with the visual style of a group box or in one of the classic looks.
#pragma once

#include "base/String.h"
#include "controls/Frame/FrameLayout.h"

#include <cstdint>

namespace controls {

/// The state of a frame as its picture needs it. Colours are RGB.
struct FrameLook {
    HWND window = nullptr;
    bool themed = false;
    bool enabled = true;
    bool hasBorder = true;
    std::uint8_t appearance = 1;     // 0 flat, 1 etched, 2 etched the other way round
    std::int32_t borderRound = 0;    // corner diameter, 0 for square corners
    bool systemBorderColors = true;  // the border colours are the system's shadow and highlight
    COLORREF dark = 0;
    COLORREF light = 0;
    COLORREF back = 0;
    base::String caption;
};

/// Size of the caption in the font that is selected in `dc`.
[[nodiscard]] SIZE MeasureFrameCaption(HDC dc, const base::String& measured);

/// Draws border and caption on a background that has been cleared.
void PaintFrame(HDC dc, const FrameLook& look, const FrameGeometry& geometry);

}  // namespace controls
