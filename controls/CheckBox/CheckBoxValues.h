// CheckBoxValues: the numbers that a check box's properties take.
#pragma once

#include <cstdint>

namespace controls {

enum CheckBoxAlignment : std::int32_t { TextLeft, TextRight, TextCenter };

enum CheckBoxStyleValue : std::int32_t { StandardCheckBox, PushLikeCheckBox };

enum CheckBoxValue : std::uint8_t { Unchecked, Checked, Grayed };

}  // namespace controls
