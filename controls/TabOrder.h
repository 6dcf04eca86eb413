// TabOrder: the search for the control that the keyboard focus goes to next.
#pragma once

#include "host/Control.h"
#include "host/Form.h"

#include <cstdint>

namespace controls {

enum class FocusDirection { Forward, Backward };
enum class FocusScope { AllContainers, OwnContainer };

struct TabOrderSearch {
    std::int32_t tabIndex = 0;       // of the control that the search starts from
    HWND ownWindow = nullptr;        // passed over
    HWND containerWindow = nullptr;  // of the control that the search starts from
    bool skipContainer = false;      // also passes over the control that is the container itself
    FocusDirection direction = FocusDirection::Forward;
    FocusScope scope = FocusScope::AllContainers;
};

/// The next control in tab order among those of the form that take the focus: with a window of their own, a tab stop, visible and
/// enabled. Wraps around at either end. Null when there is none.
[[nodiscard]] host::Control* FindTabStop(host::Form& form, const TabOrderSearch& search);

}  // namespace controls
