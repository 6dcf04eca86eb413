// Screen: the one monitor of the stand-in PC, whose bottom pixels belong to the taskbar.
#pragma once

#include "platform/sim/SimPc.h"

#include <windef.h>

namespace platform {

class Screen : public Area {
public:
    using Area::Area;

    /// Dots per inch in both directions.
    [[nodiscard]] int Dpi() const { return dpi_; }
    void Dpi(int dotsPerInch) { dpi_ = dotsPerInch; }
    /// Pixels.
    [[nodiscard]] SIZE Size() const { return size_; }
    void Size(SIZE pixels) { size_ = pixels; }
    [[nodiscard]] RECT WorkArea() const { return {0, 0, size_.cx, size_.cy - kTaskbarHeight}; }

private:
    static constexpr int kTaskbarHeight = 40;

    int dpi_ = 96;
    SIZE size_{1280, 800};
};

}  // namespace platform
