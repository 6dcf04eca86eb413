// CommandButtonPainter: what every style has in common: focus rectangle and caption.
#pragma once

#include "base/String.h"
#include "controls/CommandButton/CommandButtonLayout.h"
#include "controls/CommandButton/CommandButtonStyles.h"

namespace controls {

struct CaptionLook {
    const base::String& text;
    CaptionPlace place;
    std::int32_t effect = 0;  // a CaptionFxValue
    host::OleColor fontColor = 0;
    host::OleColor fontHighlightColor = 0;
};

/// The dotted rectangle, `inset` pixels inside.
void PaintButtonFocus(const ButtonLook& look, int inset);

/// The caption with its effect, engraved on a disabled button that has no effect.
void PaintButtonCaption(const ButtonLook& look, const CaptionLook& caption);

}  // namespace controls
