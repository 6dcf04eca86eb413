// CommandButtonCaption: the text on a button.
#pragma once

#include "base/String.h"
#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLayout.h"
#include "controls/CommandButton/CommandButtonLook.h"

namespace controls {

struct CaptionLook {
    const base::String& text;
    CaptionPlace place;
    std::int32_t effect = CaptionFxNone;  // a CaptionFxValue
    COLORREF fontColor = 0;
    COLORREF fontHighlightColor = 0;
};

/// The caption with its effect, engraved on a disabled button that has no effect, in the font that is selected.
void PaintButtonCaption(Canvas& canvas, const ButtonLook& look, const CaptionLook& caption);

}  // namespace controls
