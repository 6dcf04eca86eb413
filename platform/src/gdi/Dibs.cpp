// Device-independent bitmaps: reading and writing rows.
#include "platform/src/gdi/Dibs.h"

#include <algorithm>
#include <cstdlib>

namespace platform {

namespace {

std::uint32_t PixelOf(const RGBQUAD& color)
{
    return static_cast<std::uint32_t>(color.rgbRed << 16 | color.rgbGreen << 8 | color.rgbBlue);
}

/// The colours behind the header. They may lie unaligned in a file's bytes.
const RGBQUAD* PaletteOf(const BITMAPINFO& info)
{
    return reinterpret_cast<const RGBQUAD*>(reinterpret_cast<const BYTE*>(&info) + info.bmiHeader.biSize);
}

std::uint32_t ReadPixel(const BITMAPINFO& info, const BYTE* row, int x)
{
    const int bitCount = info.bmiHeader.biBitCount;
    if (bitCount >= 24) {
        const BYTE* const at = row + x * (bitCount / 8);
        // The fourth byte is kept: it may carry the opacity of a picture.
        return static_cast<std::uint32_t>(at[0] | at[1] << 8 | at[2] << 16) |
               (bitCount == 32 ? static_cast<std::uint32_t>(at[3]) << 24 : 0);
    }
    const int perByte = 8 / bitCount;
    const int index = row[x / perByte] >> (8 - bitCount * (x % perByte + 1)) & ((1 << bitCount) - 1);
    return PixelOf(PaletteOf(info)[index]);
}

}  // namespace

std::optional<Image> DecodeDib(const BITMAPINFO& info, const void* bits)
{
    const BITMAPINFOHEADER& header = info.bmiHeader;
    const int bitCount = header.biBitCount;
    if (header.biPlanes != 1 || header.biCompression != BI_RGB ||
        (bitCount != 1 && bitCount != 4 && bitCount != 8 && bitCount != 24 && bitCount != 32))
        return std::nullopt;
    Image image(header.biWidth, std::abs(header.biHeight));
    const auto* const bytes = static_cast<const BYTE*>(bits);
    for (int y = 0; y < image.height; ++y) {
        const int row = header.biHeight > 0 ? image.height - 1 - y : y;
        const BYTE* const start = bytes + static_cast<std::size_t>(row) * DibRowBytes(image.width, bitCount);
        for (int x = 0; x < image.width; ++x)
            image.At(x, y) = ReadPixel(info, start, x);
    }
    return image;
}

}  // namespace platform
