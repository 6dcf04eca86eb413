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

/// The RGB value that is drawn.
[[nodiscard]] COLORREF ToRgb(OleColor color);

}  // namespace host
