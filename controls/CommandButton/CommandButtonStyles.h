// CommandButtonStyles: the looks of a button, one row and one painter each.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLook.h"
#include "controls/CommandButton/CommandButtonShape.h"

#include <cstdint>

namespace controls {

/// Draws a face. It may ask the system for its colours, and for nothing else.
using ButtonPainter = void(Canvas&, const ButtonLook&);

/// When a style cuts the window while it draws, even as the style that stands in for the themed one.
enum class Recut : std::uint8_t { Never, WhenDrawn, WithContour };

enum Trait : std::uint8_t {
    NoTrait = 0,
    NormalInDesigner = 1,  // all others are shown hot there
    LiftsHotPicture = 2,   // a picture under the mouse rises and leaves a shadow
};

struct ButtonStyle {
    std::int32_t number;
    const char* name;
    ButtonPainter& painter;  // a row without one does not compile
    std::int8_t margin;      // pixels kept free between border and content
    std::int8_t focusInset;  // of the focus rectangle; negative for none
    ButtonShape shape;
    Recut recut;
    std::uint8_t traits;

    [[nodiscard]] bool Has(Trait trait) const { return (traits & trait) != 0; }
};

/// The row of a style. A number that has none gets a row that draws nothing, so that only picture and caption are seen.
[[nodiscard]] const ButtonStyle& ButtonStyleOf(std::int32_t number);

/// What the window is cut to when its style is `own` and `drawn` has drawn it; they differ where themes are missing.
[[nodiscard]] ButtonOutline OutlineOf(const ButtonStyle& own, const ButtonStyle& drawn, const ButtonLook& look, SIZE size);

/// The dotted rectangle of the focus, unless the style or the state goes without it.
void PaintButtonFocus(Canvas& canvas, const ButtonStyle& style, const ButtonLook& look);

}  // namespace controls
