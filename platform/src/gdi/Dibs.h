// Device-independent bitmaps: pixel rows in memory as BITMAPINFO describes them.
#pragma once

#include "platform/sim/Image.h"

#include <wingdi.h>

#include <optional>

namespace platform {

/// The picture that `bits` hold, its top row first; empty for a form that the PC does not know (packed or palette-indexed colours, 16
/// bits).
[[nodiscard]] std::optional<Image> DecodeDib(const BITMAPINFO& info, const void* bits);

/// Bytes of one row; rows begin at multiples of four.
[[nodiscard]] constexpr std::size_t DibRowBytes(int width, int bitsPerPixel)
{
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 31) / 32 * 4;
}

}  // namespace platform
