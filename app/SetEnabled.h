// SetEnabled: enables or disables a control only when that changes something and when what it stands in is enabled.
#pragma once

#include "host/Control.h"

namespace app {

/// Whether the control stands on the window itself or in a frame that is enabled.
inline bool IsContainerEnabled(const host::Control& control)
{
    const auto* const container = dynamic_cast<const host::Control*>(&control.GetExtender().Container());
    return !container || container->Enabled();
}

/// A button that is enabled anew forgets that the mouse is on it, so the timers must not write what already holds. What stands in a
/// disabled frame stays off: it could not be used and would look as if it could.
inline void SetEnabled(host::Control& control, bool enabled)
{
    const bool shown = enabled && IsContainerEnabled(control);
    if (control.Enabled() != shown)
        control.Enabled(shown);
}

}  // namespace app
