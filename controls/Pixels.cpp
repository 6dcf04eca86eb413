// Pixels: one call for a whole picture.
#include "controls/Pixels.h"

#include "base/Handles.h"
#include "controls/Selection.h"
#include "host/DibInfo.h"

namespace controls {

void DrawPixels(HDC dc, int left, int top, const Pixels& pixels)
{
    if (pixels.values.empty())
        return;
    const BITMAPINFO info = host::DibInfo(pixels.width, -pixels.height);
    const auto width = static_cast<DWORD>(pixels.width);
    const auto height = static_cast<DWORD>(pixels.height);
    SetDIBitsToDevice(dc, left, top, width, height, 0, 0, 0, height, pixels.values.data(), &info, DIB_RGB_COLORS);
}

std::optional<Pixels> ReadPixels(HDC dc, const RECT& block)
{
    const SIZE size{block.right - block.left, block.bottom - block.top};
    return RenderPixels(dc, size, [&](HDC copy) { BitBlt(copy, 0, 0, size.cx, size.cy, dc, block.left, block.top, SRCCOPY); });
}

std::optional<Pixels> RenderPixels(HDC dc, SIZE size, const std::function<void(HDC)>& draw)
{
    const base::MemoryDc memory(CreateCompatibleDC(dc));
    const base::BitmapHandle bitmap(CreateCompatibleBitmap(dc, size.cx, size.cy));
    if (!memory || !bitmap)
        return std::nullopt;
    {
        const Selection paper(memory.Get(), bitmap.Get());
        draw(memory.Get());
    }
    return ReadBitmap(dc, bitmap.Get(), size);
}

std::optional<Pixels> ReadBitmap(HDC dc, HBITMAP bitmap, SIZE size)
{
    Pixels pixels(size.cx, size.cy);
    BITMAPINFO info = host::DibInfo(size.cx, -size.cy);
    if (!GetDIBits(dc, bitmap, 0, static_cast<UINT>(size.cy), pixels.values.data(), &info, DIB_RGB_COLORS))
        return std::nullopt;
    return pixels;
}

}  // namespace controls
