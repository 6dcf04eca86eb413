// Icons: made of a mask and colours, drawn through the mask.
#include "platform/src/gdi/Icons.h"

#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Dibs.h"
#include "platform/src/gdi/Objects.h"
#include "platform/src/gdi/Stretch.h"

#include <windows.h>

#include <cstring>

using namespace platform;

namespace platform {

void PaintIcon(DeviceContext& dc, const Icon& icon, const RECT& rectangle)
{
    const RECT area = dc.ToImage(rectangle);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    dc.ForEach(area, [&](int x, int y, std::uint32_t& pixel) {
        const int column = (2 * (x - area.left) + 1) * icon.color.width / (2 * width);
        const int row = (2 * (y - area.top) + 1) * icon.color.height / (2 * height);
        const std::uint32_t color = icon.color.At(column, row) & 0xFFFFFF;
        if (icon.opaque[static_cast<std::size_t>(row) * static_cast<std::size_t>(icon.color.width) + static_cast<std::size_t>(column)])
            pixel = color;
        else
            pixel = (pixel ^ color) & 0xFFFFFF;  // What the mask leaves open is combined, which for black changes nothing.
    });
}

}  // namespace platform

BOOL WINAPI DrawIconEx(HDC dc, int left, int top, HICON icon, int width, int height, UINT step, HBRUSH flickerFree, UINT flags)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, dc, left, top, icon, width, height, step, flickerFree, flags);
    SimPc& pc = SimPc::Current();
    const auto context = FindDc(dc);
    const auto found = pc.Handles().Find<Icon>(icon);
    if (!context || !found)
        return pc.Fail(ERROR_INVALID_HANDLE, FALSE);
    const RECT place{left, top, left + (width ? width : found->color.width), top + (height ? height : found->color.height)};
    if (flags == DI_NORMAL) {
        PaintIcon(*context, *found, place);
        return TRUE;
    }
    if (flags != DI_MASK) {
        pc.Unsupported("DrawIconEx: flags " + std::to_string(flags));
        return FALSE;
    }
    Image mask(found->color.width, found->color.height);
    for (std::size_t index = 0; index < found->opaque.size(); ++index)
        mask.pixels[index] = found->opaque[index] ? 0 : 0xFFFFFF;
    StretchPixels(*context, context->ToImage(place), mask, mask.Bounds(), SRCCOPY);
    return TRUE;
}

/// The bytes of an icon resource, which are also those of a picture in an .ico file: colours and a mask one above the other.
HICON WINAPI CreateIconFromResourceEx(BYTE* bits, DWORD size, BOOL isIcon, DWORD version, int width, int height, UINT flags)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, bits, size, isIcon, version, width, height, flags);
    SimPc& pc = SimPc::Current();
    if (!bits || size < sizeof(BITMAPINFOHEADER))
        return pc.Fail(ERROR_INVALID_PARAMETER, HICON{});
    BITMAPINFOHEADER header;
    std::memcpy(&header, bits, sizeof header);
    header.biHeight /= 2;
    const bool isSound = header.biSize == sizeof header && header.biWidth > 0 && header.biWidth <= 0x4000 && header.biHeight > 0 &&
                         header.biHeight <= 0x4000 && (header.biBitCount <= 8 || header.biBitCount == 24 || header.biBitCount == 32);
    if (!isSound || version != 0x00030000 || !isIcon)
        return pc.Fail(ERROR_INVALID_PARAMETER, HICON{});
    const std::size_t colors = header.biBitCount <= 8 ? std::size_t{1} << header.biBitCount : 0;
    const std::size_t start = sizeof header + colors * sizeof(RGBQUAD);
    const std::size_t mask = start + DibRowBytes(header.biWidth, header.biBitCount) * static_cast<std::size_t>(header.biHeight);
    if (size < mask + DibRowBytes(header.biWidth, 1) * static_cast<std::size_t>(header.biHeight))
        return pc.Fail(ERROR_INVALID_PARAMETER, HICON{});
    std::vector<BYTE> copy(bits, bits + size);
    std::memcpy(copy.data(), &header, sizeof header);
    const auto* const info = reinterpret_cast<const BITMAPINFO*>(copy.data());
    const std::optional<Image> color = DecodeDib(*info, copy.data() + start);
    if (!color)
        return pc.Fail(ERROR_INVALID_PARAMETER, HICON{});
    auto icon = std::make_shared<Icon>();
    icon->color = *color;
    icon->isBlackAndWhite = header.biBitCount == 1;
    for (int y = 0; y < color->height; ++y) {
        const BYTE* const row = copy.data() + mask + DibRowBytes(color->width, 1) * static_cast<std::size_t>(color->height - 1 - y);
        for (int x = 0; x < color->width; ++x)
            icon->opaque.push_back((row[x / 8] >> (7 - x % 8) & 1) == 0);
    }
    return OpenObject<HICON>(std::move(icon));
}

BOOL WINAPI GetIconInfo(HICON icon, ICONINFO* info)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, icon);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<Icon>(icon);
    if (!found || !info)
        return pc.Fail(ERROR_INVALID_HANDLE, FALSE);
    const bool isBlackAndWhite = found->isBlackAndWhite;
    auto mask = std::make_shared<Bitmap>();
    mask->image = std::make_shared<Image>(found->color.width, found->color.height * (isBlackAndWhite ? 2 : 1));
    mask->image->bitsPerPixel = 1;
    for (std::size_t index = 0; index < found->opaque.size(); ++index)
        mask->image->pixels[index] = found->opaque[index] ? 0 : 0xFFFFFF;
    info->fIcon = found->isIcon;
    info->xHotspot = static_cast<DWORD>(found->hotSpot.x);
    info->yHotspot = static_cast<DWORD>(found->hotSpot.y);
    info->hbmColor = nullptr;
    if (isBlackAndWhite) {
        // There is no bitmap of colours then: the picture stands in the lower half of the mask.
        std::ranges::copy(found->color.pixels, mask->image->pixels.begin() + static_cast<std::ptrdiff_t>(found->opaque.size()));
    } else {
        auto color = std::make_shared<Bitmap>();
        color->image = std::make_shared<Image>(found->color);
        info->hbmColor = OpenObject<HBITMAP>(std::move(color));
    }
    info->hbmMask = OpenObject<HBITMAP>(std::move(mask));
    return TRUE;
}
