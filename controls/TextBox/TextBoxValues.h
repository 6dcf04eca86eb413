// TextBoxValues: the numbers that a text box's properties take.
#pragma once

#include <cstdint>

namespace controls {

enum ScrollBarsValue : std::int32_t { NoScrollBars, HorizontalScrollBar, VerticalScrollBar, BothScrollBars };

enum WordWrapValue : std::int32_t { WordWrapByScrollBars, WordWrapOff, WordWrapOn };

enum CaseStyleValue : std::uint8_t { CaseAsTyped, CaseUpper, CaseLower };

}  // namespace controls
