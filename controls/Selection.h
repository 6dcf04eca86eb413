// Selection: a pen, brush or font in a device context for as long as a block of code lasts.
#pragma once

#include <windows.h>

namespace controls {

/// Selects `object` and brings the former one back at its end. NULL selects nothing.
class Selection {
public:
    Selection(HDC dc, HGDIOBJ object) : dc_(dc), former_(object ? SelectObject(dc, object) : nullptr) {}
    ~Selection()
    {
        if (former_)
            SelectObject(dc_, former_);
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

private:
    const HDC dc_;
    const HGDIOBJ former_;
};

}  // namespace controls
