// Sizes and offsets of the drawing records as Windows has them.
#include "platform/src/core/Widths.h"

#include <windows.h>

#include <cstddef>

using platform::Wide;

static_assert(sizeof(LOGFONTW) == 92 && offsetof(LOGFONTW, lfCharSet) == 23 && offsetof(LOGFONTW, lfFaceName) == 28);
static_assert(sizeof(ENUMLOGFONTEXW) == 348 && offsetof(ENUMLOGFONTEXW, elfStyle) == 220);
static_assert(sizeof(TEXTMETRICW) == 60 && offsetof(TEXTMETRICW, tmFirstChar) == 44 && offsetof(TEXTMETRICW, tmPitchAndFamily) == 55);
static_assert(sizeof(LOGPEN) == 16 && offsetof(LOGPEN, lopnColor) == 12);
static_assert(sizeof(LOGBRUSH) == Wide(16, 12) && offsetof(LOGBRUSH, lbHatch) == 8);
static_assert(sizeof(BITMAP) == Wide(32, 24) && offsetof(BITMAP, bmBitsPixel) == 18 && offsetof(BITMAP, bmBits) == Wide(24, 20));
static_assert(sizeof(BITMAPINFOHEADER) == 40 && sizeof(RGBQUAD) == 4 && sizeof(BITMAPINFO) == 44);
static_assert(sizeof(DIBSECTION) == Wide(104, 84) && offsetof(DIBSECTION, dsBmih) == Wide(32, 24) &&
              offsetof(DIBSECTION, dshSection) == Wide(88, 76));
static_assert(sizeof(BITMAPFILEHEADER) == 14 && offsetof(BITMAPFILEHEADER, bfOffBits) == 10);
static_assert(sizeof(ICONINFO) == Wide(32, 20) && offsetof(ICONINFO, hbmMask) == Wide(16, 12));
