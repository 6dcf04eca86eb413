// CommandButtonValues: the numbers that a button's properties take.
#pragma once

#include "controls/Gradient.h"

#include <cstdint>

namespace controls {

enum ButtonTypeValue : std::int32_t { PushButton, ToggleButton };

enum FontAutoSizeValue : std::int32_t { AutoSizeOff, AutoSizeNarrow, AutoSizeShrink };

enum ContentAlignValue : std::int32_t { AlignCentre, AlignLeft, AlignRight, AlignTop, AlignBottom };

enum PictureDisabledStyleValue : std::int32_t { DisabledPictureUnchanged, DisabledPictureFaded, DisabledPictureGrey };

enum ContourStyleValue : std::int32_t { ContourNone, ContourFlat, Contour3D };

enum CaptionFxValue : std::int32_t { CaptionFxNone, CaptionFxRaised, CaptionFxSunken, CaptionFxShadow };

enum ButtonStyleValue : std::int32_t {
    ClassicStyle,
    SoftStyle,
    HoverStyle,
    GradientStyle,
    RoundedStyle,
    Raised3DStyle,
    FlatStyle,
    ThemeStyle,
    GlossStyle,
    PanelStyle,
    SoftRoundStyle,
    ShapedStyle,
    WarmStyle,
    FlatHotStyle,
    GlowStyle,
    SilverStyle,
    BevelStyle,
    SystemShadeStyle,
    InsetStyle,
};

/// The visual states, numbered as the visual style's push-button states.
enum ButtonState : std::int32_t { StateNormal = 1, StateHot, StatePressed, StateDisabled, StateDefaulted };

}  // namespace controls
