// Pixels: one call for a whole picture.
#include "controls/Pixels.h"

namespace controls {

BITMAPINFO InfoOf(const Pixels& pixels)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = pixels.width;
    info.bmiHeader.biHeight = -pixels.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

void DrawPixels(HDC dc, int left, int top, const Pixels& pixels)
{
    if (pixels.values.empty())
        return;
    const BITMAPINFO info = InfoOf(pixels);
    const auto width = static_cast<DWORD>(pixels.width);
    const auto height = static_cast<DWORD>(pixels.height);
    SetDIBitsToDevice(dc, left, top, width, height, 0, 0, 0, height, pixels.values.data(), &info, DIB_RGB_COLORS);
}

}  // namespace controls
