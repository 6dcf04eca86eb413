// Theme: visual styles of the stand-in PC. On, unless a test says otherwise.
#pragma once

#include "platform/sim/SimPc.h"

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

private:
    bool active_ = true;
    bool appThemed_ = true;
};

}  // namespace platform
