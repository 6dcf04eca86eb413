// CommandButtonLook: what a painter needs to know of a button.
#pragma once

#include "controls/CommandButton/CommandButtonValues.h"
#include "host/OleColor.h"

#include <windows.h>

#include <cstdint>

namespace controls {

/// The colours as the properties store them.
struct ButtonColors {
    bool custom = false;  // colours of one's own
    host::OleColor back = host::SystemColor(COLOR_BTNFACE);
    host::OleColor backDisabled = host::SystemColor(COLOR_BTNFACE);
    host::OleColor highlight = 0xF5F6F7;
    host::OleColor contour = 0x800000;
};

/// Plain values; colours are RGB.
struct ButtonLook {
    std::int32_t state = StateNormal;  // a ButtonState
    bool pressedByToggle = false;      // pressed because a toggle button is on
    bool isDefault = false;            // Enter presses this button
    bool hasFocus = false;
    bool useCustomColors = false;
    bool isSchemeDark = false;     // light text on dark faces: nothing can be told by what is darker still
    COLORREF ground = 0;           // what the surface is cleared with when the button is disabled
    COLORREF back = 0;             // of the state: a disabled button has a property of its own for it
    COLORREF customBack = 0;       // the back colour, whatever the state, or the button face without colours of one's own
    COLORREF customHighlight = 0;  // the same for the highlight colour
    COLORREF highlight = 0;
    COLORREF contour = 0;
    std::int32_t contourStyle = Contour3D;
    std::int32_t gradientDirection = GradientDiagonal;
    std::int32_t roundedValue = 5;

    /// Resolves the colours for the state that the look has.
    void Resolve(const ButtonColors& colors);
    /// The back colour of the state, or the button face without colours of one's own.
    [[nodiscard]] COLORREF Face() const { return useCustomColors ? back : GetSysColor(COLOR_BTNFACE); }
    /// The highlight colour, or what a style puts in its place without colours of one's own.
    [[nodiscard]] COLORREF HighlightOr(COLORREF otherwise) const { return useCustomColors ? highlight : otherwise; }
    [[nodiscard]] bool IsDisabled() const { return state == StateDisabled; }
    [[nodiscard]] bool IsPressed() const { return state == StatePressed; }
    [[nodiscard]] bool IsHot() const { return state == StateHot; }
};

}  // namespace controls
