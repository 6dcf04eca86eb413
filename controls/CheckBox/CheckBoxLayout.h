// CheckBoxLayout: the sizes of a check box.
#pragma once

namespace controls {

/// Width in pixels that a check box takes for a caption `textWidth` pixels wide.
[[nodiscard]] int AutoSizeWidth(int textWidth);

/// Pixels that a check box `width` pixels wide leaves for its caption.
[[nodiscard]] int RoomForCaption(int width);

}  // namespace controls
