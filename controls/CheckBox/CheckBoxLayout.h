// CheckBoxLayout: sizes and style bits of a check box. Pure geometry.
#pragma once

#include "base/String.h"

#include <windows.h>

#include <cstdint>

namespace controls {

enum CheckBoxAlignment : std::int32_t { TextLeft, TextRight, TextCenter };

enum CheckBoxValue : std::uint8_t { Unchecked, Checked, Grayed };

/// The button style for an alignment; what is no alignment counts as left.
[[nodiscard]] DWORD AlignmentBits(std::int32_t alignment);

/// Width in pixels that a check box takes for a caption `textWidth` pixels wide.
[[nodiscard]] int AutoSizeWidth(int textWidth);

/// Pixels that a check box `width` pixels wide leaves for its caption.
[[nodiscard]] int RoomForCaption(int width);

}  // namespace controls
