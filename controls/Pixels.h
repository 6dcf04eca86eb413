// Pixels: a picture in memory, made of whole numbers, and the way to the screen.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace controls {

/// A pixel of a 32-bit image: its channels stand the other way round than those of a COLORREF.
[[nodiscard]] constexpr std::uint32_t AsPixel(COLORREF color)
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

/// Rows of 0x00RRGGBB, the top row first.
struct Pixels {
    Pixels(int imageWidth, int imageHeight)
        : width(imageWidth), height(imageHeight), values(static_cast<std::size_t>(imageWidth) * static_cast<std::size_t>(imageHeight))
    {
    }
    [[nodiscard]] std::uint32_t* Row(int row) { return values.data() + static_cast<std::ptrdiff_t>(row) * width; }
    [[nodiscard]] const std::uint32_t* Row(int row) const { return values.data() + static_cast<std::ptrdiff_t>(row) * width; }

    int width;
    int height;
    std::vector<std::uint32_t> values;
};

/// Puts the pixels onto a device context.
/// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-setdibitstodevice
void DrawPixels(HDC dc, int left, int top, const Pixels& pixels);

/// What stands on a block of a device context. Empty without memory.
/// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-getdibits
[[nodiscard]] std::optional<Pixels> ReadPixels(HDC dc, const RECT& block);

/// The pixels of a bitmap that is selected nowhere. Empty without memory.
[[nodiscard]] std::optional<Pixels> ReadBitmap(HDC dc, HBITMAP bitmap, SIZE size);

/// What `draw(HDC)` draws on a bitmap of its own that fits to the device context. Empty without memory.
[[nodiscard]] std::optional<Pixels> RenderPixels(HDC dc, SIZE size, const std::function<void(HDC)>& draw);

}  // namespace controls
