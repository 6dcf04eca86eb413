// Theme: visual styles of the stand-in PC. On, unless a test says otherwise.
#pragma once

#include "platform/sim/Graphics.h"
#include "platform/sim/SimPc.h"

#include <map>
#include <string>

namespace platform {

class Theme : public Area {
public:
    using Area::Area;

    /// Whether the user has visual styles switched on (IsThemeActive).
    [[nodiscard]] bool Active() const { return active_; }
    void Active(bool active) { active_ = active; }
    /// Whether this program may use them (IsAppThemed).
    [[nodiscard]] bool AppThemed() const { return appThemed_; }
    void AppThemed(bool themed) { appThemed_ = themed; }
    /// True when the system's own controls draw with visual styles: those of the common controls before version 6 never do.
    [[nodiscard]] bool Works() const;

    /// The class list that SetWindowTheme gave to a window, e.g. "" to switch styles off for it.
    [[nodiscard]] const std::u16string* WindowTheme(HWND window) const;
    void WindowTheme(HWND window, std::u16string classList) { windowThemes_[window] = std::move(classList); }
    void ForgetWindow(HWND window);

    /// Draws one part past the gate; what system controls use. `className` is "BUTTON", "EDIT", "COMBOBOX". False when the part is unknown.
    bool Draw(std::u16string_view className, HDC dc, int part, int state, const RECT& rectangle, const RECT* clip = nullptr);

private:
    bool active_ = true;
    bool appThemed_ = true;
    std::map<HWND, std::u16string> windowThemes_;
};

}  // namespace platform
