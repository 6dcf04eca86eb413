// Regions as objects.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Objects.h"

#include <windows.h>

using namespace platform;

namespace {

HRGN OpenRegion(Region region)
{
    auto object = std::make_shared<RegionObject>();
    object->region = std::move(region);
    return OpenObject<HRGN>(std::move(object));
}

std::shared_ptr<RegionObject> Find(HRGN region)
{
    SimPc& pc = SimPc::Current();
    auto found = pc.Handles().Find<RegionObject>(region);
    if (!found)
        pc.LastError(ERROR_INVALID_HANDLE);
    return found;
}

RECT Sorted(int left, int top, int right, int bottom)
{
    return {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
}

}  // namespace

HRGN WINAPI CreateRectRgn(int left, int top, int right, int bottom)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, left, top, right, bottom);
    return OpenRegion(Region(Sorted(left, top, right, bottom)));
}

HRGN WINAPI CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, left, top, right, bottom, width, height);
    // Unlike the shape that RoundRect draws, the region ends one pixel before the right and bottom edges that it is given.
    RECT area = Sorted(left, top, right, bottom);
    --area.right;
    --area.bottom;
    return OpenRegion(Region::RoundRect(area, width, height));
}

BOOL WINAPI PtInRegion(HRGN region, int x, int y)
{
    SIM_NOTE(region, x, y);
    const auto found = Find(region);
    return found && found->region.Contains({x, y});
}
