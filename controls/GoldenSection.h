// GoldenSection: golden-ratio arithmetic.
#pragma once

#include <cstdint>

namespace controls {

/// The longer segment to `segmentLength` (`getMaxSegment`), or the shorter one. 0 for a length of 0 or less.
[[nodiscard]] double GetGoldenSection(std::int32_t segmentLength, bool getMaxSegment);

}  // namespace controls
