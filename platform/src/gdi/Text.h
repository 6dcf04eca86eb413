// Text: characters on a device context, one line or a rectangle full.
#pragma once

#include "platform/src/gdi/DeviceContext.h"
#include "platform/src/gdi/Typeface.h"

#include <string>
#include <string_view>

namespace platform {

/// Text of a given length (negative: up to its zero) for traces.
[[nodiscard]] std::u16string Counted(LPCWSTR text, int length);

/// The face of the font that is selected.
[[nodiscard]] Typeface TypefaceOf(const DeviceContext& dc);

/// One line at a place of the image (its cell's top left corner) in the given colour; `clip`, in pixels of the image, may be null.
/// `advances` replaces the characters' own widths when it is not null. The cell's background is filled in OPAQUE mode.
void PaintLine(DeviceContext& dc, const Typeface& face, POINT at, std::u16string_view text, COLORREF color, const RECT* clip = nullptr,
               const INT* advances = nullptr);

/// DrawTextW with all that the stand-in PC knows of it; `rectangle` is logical and changes with DT_CALCRECT. Returns the height.
int DrawTextIn(DeviceContext& dc, std::u16string_view text, RECT& rectangle, UINT format, COLORREF color);

/// The text without its prefix characters, and where the access key's character stands in it (-1: none).
struct Prefixed {
    std::u16string text;
    int accessKey = -1;
};
[[nodiscard]] Prefixed ResolvePrefixes(std::u16string_view text);

}  // namespace platform
