// CommandButtonShape: what the window of a button is cut to.
#pragma once

#include "base/Handles.h"

#include <cstdint>

namespace controls {

enum class ButtonShape : std::uint8_t {
    Rectangle,
    SoftCorners,     // rounded a little
    Gloss,           // rounded more
    CutCorners,      // cut off at 45 degrees
    ClippedCorners,  // three pixels a corner
    ByDiameter,      // rounded as the button's property says
};

struct ButtonOutline {
    ButtonShape shape = ButtonShape::Rectangle;
    int width = 0;
    int height = 0;
    int diameter = 0;  // of the corners, for `ByDiameter`
};

/// How many pixels at either end of a row lie outside the shape. The region and the lines along it are made of the same numbers.
[[nodiscard]] int ShapeInset(const ButtonOutline& outline, int row);

/// The pixels of the shape; none without memory.
[[nodiscard]] base::RegionHandle ShapeRegion(const ButtonOutline& outline);

/// Remembers what a window is cut to. SetWindowRgn repaints the window, so it is called on a change only.
class WindowShape {
public:
    void Cut(HWND window, base::RegionHandle region);

private:
    HWND window_ = nullptr;
    base::RegionHandle inForce_;
};

}  // namespace controls
