// TranslateOleColor: OLE colours as RGB.
#pragma once

#include <windows.h>

#include "host/OleColor.h"

namespace controls {

using host::OleColor;

/// The colour as 0x00BBGGRR, or -1 (all bits set) when it cannot be translated.
/// https://learn.microsoft.com/windows/win32/api/olectl/nf-olectl-oletranslatecolor
[[nodiscard]] COLORREF TranslateOleColor(OleColor color);

}  // namespace controls
