// FontRule: what is installed, and the rule that keeps a control's font a TrueType text font.
#pragma once

#include "base/String.h"
#include "host/Font.h"

#include <cstdint>
#include <vector>

namespace controls {

struct FontInfo {
    bool isFound = false;
    bool isTrueType = false;
    bool isFixedPitch = false;
    std::int32_t characterSet = 0;  // a ..._CHARSET value
};

/// What the system says about the first font of this face name.
/// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-enumfontfamiliesexw
[[nodiscard]] FontInfo GetFontInfo(const base::String& faceName);

/// The face names of all families in the system's order; a name equal to the one before it is left out.
[[nodiscard]] std::vector<base::String> GetFontFamilies();

/// Face name of the font of message boxes, empty when the system does not tell.
[[nodiscard]] base::String GetMessageFontName();

/// What replaces a font that is not TrueType: the message font when it will do, then the first family that does; or only the latter.
enum class ForceTrueTypeChoice { MessageFontFirst, FirstFamily };

/// Gives an installed font that is not TrueType, or has only symbols, another face name; the other attributes stay. A font that is not
/// installed stays, and so does any font when nothing suitable is found.
void ApplyForceTrueType(host::Font& font, ForceTrueTypeChoice choice);

}  // namespace controls
