// TextBoxEditStyle: which edit styles a text box's properties ask for.
#pragma once

#include <windows.h>

#include <cstdint>

namespace controls {

/// Lines, scroll bars and scrolling by itself. A multi-line edit wraps exactly when it does not scroll sideways by itself.
[[nodiscard]] DWORD LineBits(bool multiLine, std::int32_t scrollBars);

/// Whether an edit with these scroll bars scrolls sideways.
[[nodiscard]] bool ScrollsSideways(std::int32_t scrollBars);

[[nodiscard]] DWORD CaseBits(std::uint8_t caseStyle);

}  // namespace controls
