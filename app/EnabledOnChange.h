// EnabledOnChange: enables or disables a control only when that changes something.
#pragma once

#include "host/Control.h"

namespace app {

/// A button that is enabled anew forgets that the mouse is on it, so the timers must not write what already holds.
inline void SetEnabled(host::Control& control, bool enabled)
{
    if (control.Enabled() != enabled)
        control.Enabled(enabled);
}

}  // namespace app
