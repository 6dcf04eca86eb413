// ThemeHandle: the owner of an open theme.
#pragma once

#include "base/Handle.h"

#include <uxtheme.h>

namespace controls {

/// From OpenThemeData. https://learn.microsoft.com/windows/win32/api/uxtheme/nf-uxtheme-openthemedata
struct ThemeTraits {
    using Type = HTHEME;
    static Type None() noexcept { return nullptr; }
    static void Close(Type theme) noexcept { CloseThemeData(theme); }
};
using ThemeHandle = base::Handle<ThemeTraits>;

}  // namespace controls
