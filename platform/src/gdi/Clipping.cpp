// The program's own clip of a device context.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"

#include <windows.h>

using namespace platform;

namespace {

/// The clip in device coordinates: the program's own, or all that may be touched.
Region CurrentClip(DeviceContext& dc)
{
    const POINT origin = dc.ToImage(POINT{-dc.state.viewport.x, -dc.state.viewport.y});
    return dc.state.clip ? *dc.state.clip : dc.Clip().Offset(-origin.x, -origin.y);
}

RECT ToDevice(const DeviceContext& dc, RECT logical)
{
    const POINT move = dc.state.viewport;
    return {logical.left + move.x, logical.top + move.y, logical.right + move.x, logical.bottom + move.y};
}

int SetClip(DeviceContext& dc, std::optional<Region> clip)
{
    dc.state.clip = std::move(clip);
    dc.ClipChanged();
    return dc.Clip().Kind();
}

}  // namespace

int WINAPI SelectClipRgn(HDC dc, HRGN region)
{
    SIM_NOTE(dc, region);
    const auto context = FindDc(dc);
    if (!context)
        return RGN_ERROR;
    if (!region)
        return SetClip(*context, std::nullopt);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<RegionObject>(region);
    return found ? SetClip(*context, found->region) : pc.Fail(ERROR_INVALID_HANDLE, RGN_ERROR);
}

int WINAPI ExcludeClipRect(HDC dc, int left, int top, int right, int bottom)
{
    SIM_NOTE(dc, left, top, right, bottom);
    const auto context = FindDc(dc);
    if (!context)
        return RGN_ERROR;
    return SetClip(*context, CurrentClip(*context).Subtract(Region(ToDevice(*context, Ordered({left, top, right, bottom})))));
}

int WINAPI IntersectClipRect(HDC dc, int left, int top, int right, int bottom)
{
    SIM_NOTE(dc, left, top, right, bottom);
    const auto context = FindDc(dc);
    if (!context)
        return RGN_ERROR;
    return SetClip(*context, CurrentClip(*context).Intersect(Region(ToDevice(*context, Ordered({left, top, right, bottom})))));
}

int WINAPI GetClipBox(HDC dc, LPRECT box)
{
    SIM_NOTE(dc);
    const auto context = FindDc(dc);
    if (!context)
        return RGN_ERROR;
    const Region& clip = context->Clip();
    const RECT bounds = clip.Bounds();
    const POINT origin = context->ToImage(POINT{0, 0});
    *box = clip.IsEmpty() ? RECT{} : RECT{bounds.left - origin.x, bounds.top - origin.y, bounds.right - origin.x, bounds.bottom - origin.y};
    return clip.Kind();
}
