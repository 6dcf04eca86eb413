// Theme: what windows have of visual styles.
#include "platform/sim/Theme.h"

#include "platform/sim/Modules.h"
#include "platform/src/theme/ThemeParts.h"

namespace platform {

bool Theme::Works() const
{
    return active_ && appThemed_ && pc_.Get<Modules>().CommonControlsMajor() >= 6;
}

const std::u16string* Theme::WindowTheme(HWND window) const
{
    const auto found = windowThemes_.find(window);
    return found == windowThemes_.end() ? nullptr : &found->second;
}

void Theme::ForgetWindow(HWND window)
{
    windowThemes_.erase(window);
}

bool Theme::Draw(std::u16string_view className, HDC dc, int part, int state, const RECT& rectangle, const RECT* clip)
{
    const auto context = pc_.Handles().Find<DeviceContext>(dc);
    if (!context)
        return false;
    if (!clip)
        return PaintThemePart(*context, className, part, state, rectangle);
    // The clip narrows the device context's own for this one drawing.
    const std::optional<Region> before = context->state.clip;
    const Region device = Region(*clip).Offset(context->state.viewport.x, context->state.viewport.y);
    context->state.clip = before ? before->Intersect(device) : device;
    context->ClipChanged();
    const bool drawn = PaintThemePart(*context, className, part, state, rectangle);
    context->state.clip = before;
    context->ClipChanged();
    return drawn;
}

}  // namespace platform
