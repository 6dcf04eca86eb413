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

HRGN WINAPI CreatePolygonRgn(const POINT* points, int count, int mode)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, points, count, mode);
    SimPc& pc = SimPc::Current();
    if (!points || count < 2)
        return pc.Fail(ERROR_INVALID_PARAMETER, HRGN{});
    if (mode != ALTERNATE)
        pc.Unsupported("CreatePolygonRgn: mode " + std::to_string(mode));
    return OpenRegion(Region::Polygon({points, static_cast<std::size_t>(count)}));
}

int WINAPI CombineRgn(HRGN target, HRGN first, HRGN second, int mode)
{
    SIM_CALL(RGN_ERROR, ERROR_NOT_ENOUGH_MEMORY, target, first, second, mode);
    const auto into = Find(target);
    const auto from = Find(first);
    if (!into || !from)
        return RGN_ERROR;
    if (mode != RGN_COPY) {
        SimPc::Current().Unsupported("CombineRgn: mode " + std::to_string(mode));
        return RGN_ERROR;
    }
    into->region = from->region;
    return into->region.Kind();
}

BOOL WINAPI EqualRgn(HRGN first, HRGN second)
{
    SIM_NOTE(first, second);
    const auto one = Find(first);
    const auto other = Find(second);
    return one && other && one->region == other->region;
}

BOOL WINAPI PtInRegion(HRGN region, int x, int y)
{
    SIM_NOTE(region, x, y);
    const auto found = Find(region);
    return found && found->region.Contains({x, y});
}
