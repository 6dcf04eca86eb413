// WindowThemes: what single windows have of visual styles.
#pragma once

#include "platform/sim/SimPc.h"

#include <windef.h>

#include <map>
#include <string>

namespace platform {

class WindowThemes : public Area {
public:
    using Area::Area;

    /// The class list that SetWindowTheme gave to a window, e.g. "" to switch styles off for it.
    [[nodiscard]] const std::u16string* Of(HWND window) const;
    void Set(HWND window, std::u16string classList) { themes_[window] = std::move(classList); }
    void Forget(HWND window) { themes_.erase(window); }

private:
    std::map<HWND, std::u16string> themes_;
};

/// Whether the system draws one of its own controls with visual styles: those of the common controls before version 6 never do.
[[nodiscard]] bool DrawsThemed(HWND window);

}  // namespace platform
