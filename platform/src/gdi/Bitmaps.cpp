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

/// CreateBitmap's own bits: rows begin at multiples of two bytes, the top row first.
void ReadDeviceBits(Image& image, const void* bits)
{
    const std::size_t rowBytes = (static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.bitsPerPixel) + 15) / 16 * 2;
    for (int y = 0; y < image.height; ++y) {
        const BYTE* const row = static_cast<const BYTE*>(bits) + static_cast<std::size_t>(y) * rowBytes;
        for (int x = 0; x < image.width; ++x) {
            const BYTE* const at = row + x * 4;
            if (image.bitsPerPixel == 1)
                image.At(x, y) = row[x / 8] & 0x80 >> x % 8 ? 0xFFFFFF : 0;
            else
                image.At(x, y) = static_cast<std::uint32_t>(at[0] | at[1] << 8 | at[2] << 16) | static_cast<std::uint32_t>(at[3]) << 24;
        }
    }
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

HBITMAP WINAPI CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const VOID* bits)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, width, height, planes, bitsPerPixel);
    SimPc& pc = SimPc::Current();
    if (width < 0 || height < 0 || planes != 1)
        return pc.Fail(ERROR_INVALID_PARAMETER, HBITMAP{});
    if (width == 0 || height == 0)
        return static_cast<HBITMAP>(pc.Get<Graphics>().StockObject(Graphics::kDefaultBitmap));
    if (bitsPerPixel != 1 && bitsPerPixel != 32) {
        pc.Unsupported("CreateBitmap: bits per pixel " + std::to_string(bitsPerPixel));
        return nullptr;
    }
    Image image(width, height);
    image.bitsPerPixel = static_cast<int>(bitsPerPixel);
    if (bits)
        ReadDeviceBits(image, bits);
    return OpenBitmap(std::move(image));
}

HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, VOID** bits, HANDLE section, DWORD offset)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, dc, info, usage, section, offset);
    SimPc& pc = SimPc::Current();
    const BITMAPINFOHEADER& header = info->bmiHeader;
    if (header.biWidth <= 0 || header.biHeight == 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, HBITMAP{});
    if (header.biBitCount != 32 || header.biCompression != BI_RGB || section) {
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

int WINAPI GetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT lines, LPVOID bits, LPBITMAPINFO info, UINT usage)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, dc, bitmap, start, lines, bits, info, usage);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<Bitmap>(bitmap);
    if (!FindDc(dc) || !found || !info)
        return pc.Fail(ERROR_INVALID_PARAMETER, 0);
    const Image& image = *found->image;
    BITMAPINFOHEADER& header = info->bmiHeader;
    if (!bits) {
        if (header.biBitCount == 0) {
            header.biWidth = image.width;
            header.biHeight = image.height;
            header.biPlanes = 1;
            header.biBitCount = static_cast<WORD>(image.bitsPerPixel);
            header.biCompression = image.bitsPerPixel == 32 ? BI_BITFIELDS : BI_RGB;
        }
        header.biSizeImage =
            static_cast<DWORD>(DibRowBytes(header.biWidth, header.biBitCount) * static_cast<std::size_t>(std::abs(header.biHeight)));
        return image.height;
    }
    const int copied = EncodeDib(image, *info, start, lines, bits);
    if (copied > 0 && header.biBitCount == 1) {
        auto* const colors = reinterpret_cast<RGBQUAD*>(reinterpret_cast<BYTE*>(info) + header.biSize);
        colors[0] = {0, 0, 0, 0};
        colors[1] = {255, 255, 255, 0};
    }
    if (copied == 0)
        pc.Unsupported("GetDIBits: bits per pixel " + std::to_string(header.biBitCount));
    return copied;
}

int WINAPI SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int xSource, int ySource, UINT startScan, UINT lines,
                             const VOID* bits, const BITMAPINFO* info, UINT usage)
{
    SIM_CALL(0, ERROR_INVALID_PARAMETER, dc, x, y, width, height, xSource, ySource, startScan, lines, bits, info, usage);
    const auto context = FindDc(dc);
    if (!context || !bits || !info)
        return 0;
    const std::optional<Image> image = DecodeDib(*info, bits);
    if (!image || startScan != 0 || lines != static_cast<UINT>(image->height)) {
        SimPc::Current().Unsupported("SetDIBitsToDevice: a part of the rows, or bits per pixel " +
                                     std::to_string(info->bmiHeader.biBitCount));
        return 0;
    }
    // Whatever order the rows are kept in, the source's corner is counted from the lowest row.
    const int columns = static_cast<int>(width);
    const int rows = static_cast<int>(height);
    StretchPixels(*context, context->ToImage(RECT{x, y, x + columns, y + rows}), *image,
                  Block(xSource, image->height - ySource - rows, columns, rows), SRCCOPY);
    return static_cast<int>(lines);
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
