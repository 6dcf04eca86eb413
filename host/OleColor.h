// OLE colours: 0x80000000 + n is system colour n, any other value is 0x00BBGGRR.
#pragma once

#include <windows.h>

#include <cstdint>

namespace host {

/// A colour as properties store it.
using OleColor = std::uint32_t;

[[nodiscard]] constexpr OleColor SystemColor(int index)
{
    return 0x80000000U + static_cast<OleColor>(index);
}

/// The colour that is drawn: a system colour as Windows has it now (black for a number that is none), any other value as it is. Where a
/// colour may be refused, OLE is asked instead: see TranslateOleColor.
[[nodiscard]] COLORREF ToRgb(OleColor color);

}  // namespace host
