// ThemeButton: the push button that the system's visual style draws.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonShape.h"

#include <cstdint>

namespace controls {

/// Draws the themed push button in a state; false when the theme can't be opened or drawn. With a `shape` the window is cut to what the
/// theme covers.
/// https://learn.microsoft.com/windows/win32/api/uxtheme/nf-uxtheme-getthemebackgroundregion
[[nodiscard]] bool PaintThemeButton(Canvas& canvas, HWND window, std::int32_t themeState, WindowShape* shape);

}  // namespace controls
