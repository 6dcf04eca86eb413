// Parts of visual styles: what each looks like.
#pragma once

#include "platform/src/gdi/DeviceContext.h"

#include <wingdi.h>

#include <string_view>

namespace platform {

/// Whether the PC's visual style has the class ("BUTTON", "EDIT", "COMBOBOX"; upper case).
[[nodiscard]] bool HasThemeClass(std::u16string_view className);
/// Draws a part into a logical rectangle; false when the PC does not know the part or the state.
bool PaintThemePart(DeviceContext& dc, std::u16string_view className, int part, int state, const RECT& rectangle);
/// The same on an open device context, past the gate; what system controls use. `clip` narrows the device context's own for this drawing.
bool DrawThemePart(std::u16string_view className, HDC dc, int part, int state, const RECT& rectangle, const RECT* clip = nullptr);
/// Colour of a part's text.
[[nodiscard]] COLORREF ThemeTextColor(std::u16string_view className, int part, int state);
/// What the part covers, in the rectangle's own coordinates.
[[nodiscard]] Region ThemePartRegion(std::u16string_view className, int part, const RECT& rectangle);

}  // namespace platform
