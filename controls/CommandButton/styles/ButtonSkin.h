// ButtonSkin: a recipe for faces made of layers.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonShape.h"

#include <vector>

namespace controls {

/// A line one pixel wide along the shape. Where the corner is more than a pixel, the two corners between the colours have their mean.
struct SkinRim {
    COLORREF topLeft;
    COLORREF bottomRight;
};

/// A ramp from one colour to another, from where the band above ends.
struct SkinBand {
    int end;  // percent of the face's height
    COLORREF first;
    COLORREF last;
};

/// A single pixel at each of the four corners.
struct SkinDot {
    int column;  // both counted from the corner
    int row;
    COLORREF color;
};

struct ButtonSkin {
    ButtonShape shape = ButtonShape::Rectangle;
    COLORREF outside = 0;           // what the shape leaves out, should anything show it
    std::vector<SkinRim> rims{};    // from the border inwards
    std::vector<SkinBand> bands{};  // of the face inside the rims, from the top down
    std::vector<SkinDot> dots{};

    /// All colours but the outside half way to `color`.
    [[nodiscard]] ButtonSkin FadedTo(COLORREF color) const;
};

/// Draws the whole client area in one call.
void PaintSkin(Canvas& canvas, const ButtonSkin& skin);

}  // namespace controls
