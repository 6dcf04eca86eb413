// Bitmaps: making them, and carrying pixels between them and the program's memory.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Dibs.h"
#include "platform/src/gdi/Stretch.h"

#include <windows.h>

#include <cstdlib>

using namespace platform;

namespace {

HBITMAP OpenBitmap(Image image, bool isDibSection = false)
{
    auto bitmap = std::make_shared<Bitmap>();
    bitmap->image = std::make_shared<Image>(std::move(image));
    bitmap->isDibSection = isDibSection;
    return OpenObject<HBITMAP>(std::move(bitmap));
}

}  // namespace

HBITMAP WINAPI CreateCompatibleBitmap(HDC dc, int width, int height)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, dc, width, height);
    const auto context = FindDc(dc);
    if (!context || width < 0 || height < 0)
        return nullptr;
    if (width == 0 || height == 0)
        return static_cast<HBITMAP>(SimPc::Current().Get<Graphics>().StockObject(Graphics::kDefaultBitmap));
    Image image(width, height);
    image.bitsPerPixel = context->Pixels()->bitsPerPixel;
    return OpenBitmap(std::move(image));
}

HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, VOID** bits, HANDLE section, DWORD offset)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, dc, info, usage, section, offset);
    SimPc& pc = SimPc::Current();
    const BITMAPINFOHEADER& header = info->bmiHeader;
    if (header.biWidth <= 0 || header.biHeight == 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, HBITMAP{});
    if (header.biPlanes != 1 || header.biBitCount != 32 || header.biCompression != BI_RGB || section) {
        pc.Unsupported("CreateDIBSection: bits per pixel " + std::to_string(header.biBitCount));
        return nullptr;
    }
    Image image(header.biWidth, std::abs(header.biHeight));
    image.bottomUp = header.biHeight > 0;
    const HBITMAP bitmap = OpenBitmap(std::move(image), true);
    if (bits)
        *bits = pc.Get<Graphics>().PixelsOf(bitmap)->pixels.data();
    return bitmap;
}

int WINAPI StretchDIBits(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int widthSource, int heightSource,
                         const VOID* bits, const BITMAPINFO* info, UINT usage, DWORD rop)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, dc, x, y, width, height, xSource, ySource, widthSource, heightSource, bits, info, usage, rop);
    const auto context = FindDc(dc);
    if (!context || !bits || !info)
        return 0;
    const std::optional<Image> image = DecodeDib(*info, bits);
    if (!image) {
        SimPc::Current().Unsupported("StretchDIBits: bits per pixel " + std::to_string(info->bmiHeader.biBitCount));
        return 0;
    }
    const int row = info->bmiHeader.biHeight > 0 ? image->height - ySource - heightSource : ySource;
    StretchPixels(*context, context->ToImage(Block(x, y, width, height)), *image, Block(xSource, row, widthSource, heightSource), rop);
    return image->height;
}

int WINAPI SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int xSource, int ySource, UINT firstRow, UINT rowCount,
                             const VOID* bits, const BITMAPINFO* info, UINT usage)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, dc, x, y, width, height, xSource, ySource, firstRow, rowCount, bits, info, usage);
    const auto context = FindDc(dc);
    if (!context || !bits || !info)
        return 0;
    const std::optional<Image> image = DecodeDib(*info, bits);
    const bool isWhole = xSource == 0 && ySource == 0 && firstRow == 0 && image && static_cast<int>(rowCount) == image->height;
    if (!isWhole) {
        SimPc::Current().Unsupported("SetDIBitsToDevice: a part of an image, or bits per pixel " +
                                     std::to_string(info->bmiHeader.biBitCount));
        return 0;
    }
    const int columns = static_cast<int>(width), rows = static_cast<int>(height);
    StretchPixels(*context, context->ToImage(Block(x, y, columns, rows)), *image, Block(0, image->height - rows, columns, rows), SRCCOPY);
    return image->height;
}

int WINAPI GetDIBits(HDC dc, HBITMAP bitmap, UINT firstRow, UINT rowCount, LPVOID bits, BITMAPINFO* info, UINT usage)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, dc, bitmap, firstRow, rowCount, bits, info, usage);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<Bitmap>(bitmap);
    // A bitmap that is selected somewhere is not read.
    if (!FindDc(dc) || !found || !info || found->selections > 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    const BITMAPINFOHEADER& header = info->bmiHeader;
    const Image& image = *found->image;
    const bool isWhole = firstRow == 0 && header.biWidth == image.width && static_cast<int>(rowCount) == image.height &&
                         std::abs(header.biHeight) == image.height;
    if (header.biPlanes != 1 || header.biBitCount != 32 || header.biCompression != BI_RGB || !bits || !isWhole) {
        pc.Unsupported("GetDIBits: a part of a bitmap, or bits per pixel " + std::to_string(header.biBitCount));
        return 0;
    }
    auto* next = static_cast<std::uint32_t*>(bits);
    for (int row = 0; row < image.height; ++row)
        for (int column = 0; column < image.width; ++column)
            *next++ = image.At(column, header.biHeight > 0 ? image.height - 1 - row : row);
    return image.height;
}

COLORREF WINAPI GetNearestColor(HDC dc, COLORREF color)
{
    SIM_NOTE(dc, color);
    const auto context = FindDc(dc);
    return context ? SwapRedBlue(context->PixelOf(color)) : CLR_INVALID;
}
