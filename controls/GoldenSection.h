// GoldenSection: golden-ratio arithmetic and the sizing aid that uses it.
#pragma once

#include "host/Extender.h"

#include <cstdint>

namespace controls {

/// The longer segment to `segmentLength` (`getMaxSegment`), or the shorter one. 0 for a length of 0 or less.
[[nodiscard]] double GetGoldenSection(std::int32_t segmentLength, bool getMaxSegment);

/// Makes the control's width its height (cut to an integer) times the golden ratio, in the container's units.
void ApplyGoldenSection(host::Extender& extender);

}  // namespace controls
