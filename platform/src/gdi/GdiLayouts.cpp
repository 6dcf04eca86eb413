// Sizes and offsets of the drawing records as 64-bit Windows has them.
#include <windows.h>

#include <cstddef>

static_assert(sizeof(LOGFONTW) == 92 && offsetof(LOGFONTW, lfCharSet) == 23 && offsetof(LOGFONTW, lfFaceName) == 28);
static_assert(sizeof(ENUMLOGFONTEXW) == 348 && offsetof(ENUMLOGFONTEXW, elfStyle) == 220);
static_assert(sizeof(TEXTMETRICW) == 60 && offsetof(TEXTMETRICW, tmFirstChar) == 44 && offsetof(TEXTMETRICW, tmPitchAndFamily) == 55);
static_assert(sizeof(LOGPEN) == 16 && offsetof(LOGPEN, lopnColor) == 12);
static_assert(sizeof(LOGBRUSH) == 16 && offsetof(LOGBRUSH, lbHatch) == 8);
static_assert(sizeof(BITMAP) == 32 && offsetof(BITMAP, bmBitsPixel) == 18 && offsetof(BITMAP, bmBits) == 24);
static_assert(sizeof(BITMAPINFOHEADER) == 40 && sizeof(RGBQUAD) == 4 && sizeof(BITMAPINFO) == 44);
static_assert(sizeof(DIBSECTION) == 104 && offsetof(DIBSECTION, dsBmih) == 32 && offsetof(DIBSECTION, dshSection) == 88);
static_assert(sizeof(BITMAPFILEHEADER) == 14 && offsetof(BITMAPFILEHEADER, bfOffBits) == 10);
static_assert(sizeof(ICONINFO) == 32 && offsetof(ICONINFO, hbmMask) == 16);
