// AccessibleFacts: what a control tells of itself to those who do not see it.
#pragma once

#include "base/String.h"

namespace host {

/// https://learn.microsoft.com/windows/win32/winauto/iaccessible-interface
struct AccessibleFacts {
    /// A ROLE_SYSTEM value.
    LONG role = 0;
    /// STATE_SYSTEM bits, without what the host finds out itself: focus, visibility, whether input gets through.
    LONG state = 0;
    /// As drawn, with the marks of its access key. A control that is typed into has none and goes by the label before it.
    base::String caption{};
    base::String value{};
    base::String description{};
    /// What Space does, in a word; null where it does nothing.
    const WCHAR* action = nullptr;
};

}  // namespace host
