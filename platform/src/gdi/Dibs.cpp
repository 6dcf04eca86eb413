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

void WritePixel(int bitCount, BYTE* row, int x, std::uint32_t pixel)
{
    if (bitCount == 1) {
        const BYTE mask = static_cast<BYTE>(0x80 >> x % 8);
        row[x / 8] = static_cast<BYTE>(pixel & 0xFFFFFF ? row[x / 8] | mask : row[x / 8] & ~mask);
        return;
    }
    BYTE* const at = row + x * (bitCount / 8);
    for (int byte = 0; byte < bitCount / 8; ++byte)
        at[byte] = static_cast<BYTE>(pixel >> 8 * byte);
}

}  // namespace

std::optional<Image> DecodeDib(const BITMAPINFO& info, const void* bits)
{
    const BITMAPINFOHEADER& header = info.bmiHeader;
    const int bitCount = header.biBitCount;
    if (header.biCompression != BI_RGB || (bitCount != 1 && bitCount != 4 && bitCount != 8 && bitCount != 24 && bitCount != 32))
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

int EncodeDib(const Image& image, const BITMAPINFO& info, unsigned start, unsigned lines, void* bits)
{
    const BITMAPINFOHEADER& header = info.bmiHeader;
    const int bitCount = header.biBitCount;
    if (header.biCompression != BI_RGB || (bitCount != 1 && bitCount != 24 && bitCount != 32))
        return 0;
    const int height = std::abs(header.biHeight);
    const int count = std::min(static_cast<int>(lines), height - static_cast<int>(start));
    for (int line = 0; line < count; ++line) {
        const int row = static_cast<int>(start) + line;
        const int y = header.biHeight > 0 ? height - 1 - row : row;
        BYTE* const target = static_cast<BYTE*>(bits) + static_cast<std::size_t>(line) * DibRowBytes(header.biWidth, bitCount);
        for (int x = 0; x < header.biWidth; ++x)
            if (image.Holds(x, y))
                WritePixel(bitCount, target, x, image.At(x, y));
    }
    return std::max(count, 0);
}

}  // namespace platform
