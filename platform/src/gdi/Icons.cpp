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
