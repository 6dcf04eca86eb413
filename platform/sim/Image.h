// Image: a rectangle of pixels, 0x00RRGGBB each. Screens, windows and bitmaps of the stand-in PC are made of it.
#pragma once

#include <windef.h>

#include <cstdint>
#include <vector>

namespace platform {

struct Image {
    Image() = default;
    Image(int imageWidth, int imageHeight, std::uint32_t fill = 0)
        : width(imageWidth), height(imageHeight), pixels(static_cast<std::size_t>(imageWidth) * imageHeight, fill)
    {
    }

    [[nodiscard]] std::uint32_t& At(int x, int y) { return pixels[Index(x, y)]; }
    [[nodiscard]] std::uint32_t At(int x, int y) const { return pixels[Index(x, y)]; }
    [[nodiscard]] bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
    [[nodiscard]] RECT Bounds() const { return {0, 0, width, height}; }

    /// A number that is the same for the same picture on every machine: it depends on the size and on every pixel.
    [[nodiscard]] std::uint64_t Hash() const;
    /// A part of the picture; what lies outside is black.
    [[nodiscard]] Image Part(const RECT& part) const;
    bool operator==(const Image& other) const { return width == other.width && height == other.height && Hash() == other.Hash(); }

    int width = 0;
    int height = 0;
    /// 1 or 32. A pixel of a 1-bit picture is 0 or 0xFFFFFF.
    int bitsPerPixel = 32;
    /// DIB sections keep their lowest row first.
    bool bottomUp = false;
    std::vector<std::uint32_t> pixels;

private:
    [[nodiscard]] std::size_t Index(int x, int y) const { return static_cast<std::size_t>(bottomUp ? height - 1 - y : y) * width + x; }
};

/// 0x00BBGGRR (COLORREF) to 0x00RRGGBB (a pixel) and back.
[[nodiscard]] constexpr std::uint32_t SwapRedBlue(std::uint32_t color)
{
    return (color & 0x00FF00) | (color & 0xFF) << 16 | (color >> 16 & 0xFF);
}

}  // namespace platform
