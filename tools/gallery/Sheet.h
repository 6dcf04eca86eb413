// Sheet: every style in every state on one picture.
#pragma once

#include "platform/sim/Image.h"

#include <span>
#include <string_view>

namespace gallery {

/// A row a style from `first` to `last`, a column a state. `properties` are what every face has; with them goes the backdrop's colour.
[[nodiscard]] platform::Image DrawSheet(int first, int last, std::string_view size, std::span<const std::string_view> properties);

}  // namespace gallery
