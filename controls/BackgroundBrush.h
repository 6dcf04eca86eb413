// BackgroundBrush: the solid brush that a window's background is filled with.
#pragma once

#include "base/Handles.h"
#include "controls/TranslateOleColor.h"

namespace controls {

/// Knows its colour and is made where Windows asks for it. Windows asks at every paint, so the brush of a former colour may go then.
/// https://learn.microsoft.com/windows/win32/controls/wm-ctlcoloredit
class BackgroundBrush {
public:
    /// Belongs to this object. NULL when the system has no brush left to give.
    [[nodiscard]] HBRUSH In(OleColor color)
    {
        const COLORREF rgb = TranslateOleColor(color);
        if (!brush_ || rgb != rgb_)
            brush_.Reset(CreateSolidBrush(rgb));
        rgb_ = rgb;
        return brush_.Get();
    }

private:
    base::BrushHandle brush_;
    COLORREF rgb_ = 0;
};

}  // namespace controls
