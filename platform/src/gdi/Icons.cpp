// Icons: made of a mask and colours, drawn through the mask.
#include "platform/src/gdi/Icons.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

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

HICON WINAPI CreateIconIndirect(ICONINFO* info)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, info);
    SimPc& pc = SimPc::Current();
    const auto mask = info ? pc.Handles().Find<Bitmap>(info->hbmMask) : nullptr;
    const auto color = info ? pc.Handles().Find<Bitmap>(info->hbmColor) : nullptr;
    if (!mask || !color || mask->image->width != color->image->width || mask->image->height < color->image->height)
        return pc.Fail(ERROR_INVALID_PARAMETER, HICON{});
    auto icon = std::make_shared<Icon>();
    icon->color = color->image->Part(color->image->Bounds());
    icon->isIcon = info->fIcon != FALSE;
    icon->hotSpot = {static_cast<LONG>(info->xHotspot), static_cast<LONG>(info->yHotspot)};
    for (int y = 0; y < icon->color.height; ++y)
        for (int x = 0; x < icon->color.width; ++x)
            icon->opaque.push_back((mask->image->At(x, y) & 0xFFFFFF) == 0);
    return OpenObject<HICON>(std::move(icon));
}

BOOL WINAPI GetIconInfo(HICON icon, ICONINFO* info)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, icon);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<Icon>(icon);
    if (!found || !info)
        return pc.Fail(ERROR_INVALID_HANDLE, FALSE);
    auto color = std::make_shared<Bitmap>();
    color->image = std::make_shared<Image>(found->color);
    auto mask = std::make_shared<Bitmap>();
    mask->image = std::make_shared<Image>(found->color.width, found->color.height);
    mask->image->bitsPerPixel = 1;
    for (std::size_t index = 0; index < found->opaque.size(); ++index)
        mask->image->pixels[index] = found->opaque[index] ? 0 : 0xFFFFFF;
    info->fIcon = found->isIcon;
    info->xHotspot = static_cast<DWORD>(found->hotSpot.x);
    info->yHotspot = static_cast<DWORD>(found->hotSpot.y);
    info->hbmMask = OpenObject<HBITMAP>(std::move(mask));
    info->hbmColor = OpenObject<HBITMAP>(std::move(color));
    return TRUE;
}

BOOL WINAPI DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT step, HBRUSH flickerFree, UINT flags)
{
    SIM_NOTE(dc, x, y, icon, width, height, step, flickerFree, flags);
    SimPc& pc = SimPc::Current();
    const auto context = FindDc(dc);
    const auto found = pc.Handles().Find<Icon>(icon);
    if (!context || !found)
        return pc.Fail(ERROR_INVALID_HANDLE, FALSE);
    if ((flags & DI_NORMAL) != DI_NORMAL || flickerFree) {
        pc.Unsupported("DrawIconEx: flags " + std::to_string(flags));
        return FALSE;
    }
    const int standard = flags & DI_DEFAULTSIZE ? 32 : 0;
    if (width == 0)
        width = standard ? standard : found->color.width;
    if (height == 0)
        height = standard ? standard : found->color.height;
    PaintIcon(*context, *found, {x, y, x + width, y + height});
    return TRUE;
}
