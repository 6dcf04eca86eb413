// FrameValues: the numbers that a frame's properties take.
#pragma once

#include <cstdint>

namespace controls {

enum FrameBorderValue : std::int32_t { FrameWithoutBorder, FrameWithBorder };

/// The classic look.
enum AppearanceValue : std::uint8_t { AppearanceFlat, AppearanceEtched, AppearanceRaised };

}  // namespace controls
