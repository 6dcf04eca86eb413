// Metrics: the sizes of the parts of windows and of the screen.
#pragma once

namespace platform {

/// What GetSystemMetrics gives, past the gate: pixels at the screen's resolution. 0 for an unknown index.
[[nodiscard]] int Metric(int index);
[[nodiscard]] bool KnowsMetric(int index);

}  // namespace platform
