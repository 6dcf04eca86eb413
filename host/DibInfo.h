// DibInfo: how Windows is told of pixels that lie in memory.
#pragma once

#include <windows.h>

#include <cstdlib>

namespace host {

/// Rows of 32 bits a pixel, without compression. The lowest row comes first, with a negative height the highest.
/// https://learn.microsoft.com/windows/win32/api/wingdi/ns-wingdi-bitmapinfoheader
inline BITMAPINFO DibInfo(LONG width, LONG height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(width * std::abs(height) * 4);
    return info;
}

}  // namespace host
