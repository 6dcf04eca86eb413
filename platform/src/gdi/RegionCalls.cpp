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

HRGN WINAPI CreatePolygonRgn(const POINT* points, int count, int fillMode)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, points, count, fillMode);
    if (!points || count < 1 || (fillMode != ALTERNATE && fillMode != WINDING))
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, HRGN{});
    return OpenRegion(Region::Polygon({points, static_cast<std::size_t>(count)}, fillMode == WINDING));
}

int WINAPI CombineRgn(HRGN target, HRGN first, HRGN second, int mode)
{
    SIM_CALL(RGN_ERROR, ERROR_NOT_ENOUGH_MEMORY, target, first, second, mode);
    const auto result = Find(target);
    const auto left = Find(first);
    const auto right = mode == RGN_COPY ? left : Find(second);
    if (!result || !left || !right)
        return RGN_ERROR;
    switch (mode) {
        case RGN_AND:
            result->region = left->region.Intersect(right->region);
            break;
        case RGN_OR:
            result->region = left->region.Union(right->region);
            break;
        case RGN_XOR:
            result->region = left->region.Xor(right->region);
            break;
        case RGN_DIFF:
            result->region = left->region.Subtract(right->region);
            break;
        case RGN_COPY:
            result->region = left->region;
            break;
        default:
            return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, RGN_ERROR);
    }
    return result->region.Kind();
}

int WINAPI OffsetRgn(HRGN region, int x, int y)
{
    SIM_NOTE(region, x, y);
    const auto found = Find(region);
    if (!found)
        return RGN_ERROR;
    found->region = found->region.Offset(x, y);
    return found->region.Kind();
}

int WINAPI GetRgnBox(HRGN region, LPRECT box)
{
    SIM_NOTE(region);
    const auto found = Find(region);
    if (!found)
        return RGN_ERROR;
    *box = found->region.Bounds();
    return found->region.Kind();
}

BOOL WINAPI PtInRegion(HRGN region, int x, int y)
{
    SIM_NOTE(region, x, y);
    const auto found = Find(region);
    return found && found->region.Contains({x, y});
}

BOOL WINAPI EqualRgn(HRGN first, HRGN second)
{
    SIM_NOTE(first, second);
    const auto left = Find(first);
    const auto right = Find(second);
    return left && right && left->region == right->region;
}
