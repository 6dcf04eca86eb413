// CommandButtonStyles: the looks of a button, one row and one painter each.
#pragma once

#include "host/Surface.h"

#include <cstdint>

namespace controls {

/// The state of a button as its painters need it. Sizes are pixels of the client area.
struct ButtonLook {
    host::Surface& surface;
    HDC dc = nullptr;
    HWND window = nullptr;
    int width = 0;
    int height = 0;
    std::int32_t state = 1;        // a ButtonState
    bool pressedByToggle = false;  // pressed because a toggle button is on
    bool isDefault = false;        // Enter presses this button
    bool useCustomColors = false;
    std::int32_t contourStyle = 0;
    std::int32_t gradientDirection = 1;
    std::int32_t roundedValue = 0;
    host::OleColor backColor = 0;       // the property, whatever the state
    host::OleColor stateBackColor = 0;  // `backColor`, or the property for disabled buttons when the button is disabled
    host::OleColor highlightColor = 0;
    host::OleColor contourColor = 0;

    /// The colour when the button has colours of its own, else the system's button face; as RGB.
    [[nodiscard]] COLORREF Custom(host::OleColor color) const;
};

/// What the window of a button is cut to.
enum class ButtonShape { Rectangle, SoftCorners };

struct ButtonStyle {
    std::int32_t number;
    const char* name;
    void (*painter)(const ButtonLook&);  // null: nothing more than what is there already
    int margin;                          // pixels kept free between border and content
    int focusInset;                      // of the focus rectangle; negative for none
    ButtonShape shape;
};

/// The row of a style; null for a number that has none: only picture and caption are drawn then.
[[nodiscard]] const ButtonStyle* FindButtonStyle(std::int32_t number);

/// Cuts the window to a shape of this size.
void ApplyButtonShape(HWND window, ButtonShape shape, int width, int height);

/// Draws the system's themed push button in a state; false when the theme can't be opened or drawn. With `roundedBorders` the window is
/// cut to the theme's shape.
[[nodiscard]] bool DrawThemeButton(const ButtonLook& look, std::int32_t themeState, bool roundedBorders);

}  // namespace controls
