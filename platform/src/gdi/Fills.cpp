// Rectangles and regions filled, framed and inverted.
#include "platform/src/gdi/Fills.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

using namespace platform;

namespace platform {

std::shared_ptr<Brush> FindBrush(HBRUSH brush)
{
    SimPc& pc = SimPc::Current();
    // Wherever a window's background is meant, a system colour plus one stands for its brush.
    const auto value = reinterpret_cast<std::uintptr_t>(brush);
    if (value > 0 && value <= COLOR_MENUBAR + 1)
        brush = pc.Get<Graphics>().SystemBrush(static_cast<int>(value) - 1);
    auto found = pc.Handles().Find<Brush>(brush);
    if (!found)
        pc.LastError(ERROR_INVALID_HANDLE);
    return found;
}

void PaintFrame(DeviceContext& dc, const RECT& rectangle, const Brush& brush)
{
    const RECT r = dc.ToImage(rectangle);
    if (r.left < r.right && r.top < r.bottom)
        dc.Fill(Region(r).Subtract(Region(RECT{r.left + 1, r.top + 1, r.right - 1, r.bottom - 1})), brush, R2_COPYPEN);
}

}  // namespace platform

int WINAPI FillRect(HDC dc, const RECT* rectangle, HBRUSH brush)
{
    SIM_NOTE(dc, rectangle, brush);
    const auto context = FindDc(dc);
    const auto found = FindBrush(brush);
    if (!context || !rectangle || !found)
        return 0;
    context->Fill(Region(Ordered(context->ToImage(*rectangle))), *found, R2_COPYPEN);
    return 1;
}

int WINAPI FrameRect(HDC dc, const RECT* rectangle, HBRUSH brush)
{
    SIM_NOTE(dc, rectangle, brush);
    const auto context = FindDc(dc);
    const auto found = FindBrush(brush);
    if (!context || !rectangle || !found)
        return 0;
    PaintFrame(*context, *rectangle, *found);
    return 1;
}
