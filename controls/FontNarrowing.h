// FontNarrowing: making characters narrower until a caption fits.
#pragma once

#include "base/Handles.h"
#include "base/String.h"

#include <functional>

namespace controls {

/// Selects into `dc` fonts like `start`, whose character width must not be 0, each one unit narrower than the one before, until `text`
/// is narrower than `available` pixels or the width has come down to 1: a width of 0 would be the font's natural one. `tell` hears of
/// each font while the one before still lives. Gives the font that is selected at the end, or none when the font that was selected at
/// first did fit; the caller keeps it for as long as it is selected.
[[nodiscard]] base::FontHandle NarrowToFit(HDC dc, LOGFONTW start, const base::String& text, int available,
                                           const std::function<void(HFONT)>& tell = {});

}  // namespace controls
