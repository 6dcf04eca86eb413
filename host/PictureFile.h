// PictureFile: the bytes of .bmp and .ico files.
#pragma once

#include "host/Picture.h"

namespace host {

/// A bitmap of 32 bits a pixel; none when the bytes are no bitmap that `Picture::Of` knows.
/// https://learn.microsoft.com/windows/win32/gdi/bitmap-storage
[[nodiscard]] base::BitmapHandle BitmapFromFile(const std::vector<std::uint8_t>& bytes);
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-createiconfromresourceex
[[nodiscard]] IconHandle IconFromFile(const std::vector<std::uint8_t>& bytes);

/// Empty without memory.
[[nodiscard]] std::vector<std::uint8_t> FileOfBitmap(HBITMAP bitmap, SIZE size);
[[nodiscard]] std::vector<std::uint8_t> FileOfIcon(HICON icon, SIZE size);

}  // namespace host
