// GoldenSection: the ratio is (sqrt 5 + 1) / 2.
#include "controls/GoldenSection.h"

#include <numbers>

namespace controls {

double GetGoldenSection(std::int32_t segmentLength, bool getMaxSegment)
{
    if (segmentLength <= 0)
        return 0;
    return getMaxSegment ? segmentLength * std::numbers::phi : segmentLength / std::numbers::phi;
}

}  // namespace controls
