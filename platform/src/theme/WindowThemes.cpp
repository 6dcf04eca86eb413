#include "platform/src/theme/WindowThemes.h"

#include "platform/sim/Modules.h"
#include "platform/sim/Theme.h"

namespace platform {

const std::u16string* WindowThemes::Of(HWND window) const
{
    const auto found = themes_.find(window);
    return found == themes_.end() ? nullptr : &found->second;
}

bool DrawsThemed(HWND window)
{
    SimPc& pc = SimPc::Current();
    const Theme& theme = pc.Get<Theme>();
    const std::u16string* const own = pc.Get<WindowThemes>().Of(window);
    return theme.Active() && theme.AppThemed() && pc.Get<Modules>().CommonControlsMajor() >= 6 && !(own && own->empty());
}

}  // namespace platform
