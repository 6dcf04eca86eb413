// CommandButtonLayout: where the caption of a button stands. Pure geometry in pixels.
#pragma once

#include <windows.h>

#include <cstdint>

namespace controls {

struct CaptionPlace {
    RECT rectangle;
    UINT format;  // for DrawTextW
};

/// The rectangle in which DrawTextW measures the caption of a button of this size.
[[nodiscard]] RECT CaptionStart(int width, int height);

/// Places a caption (`align` is a ContentAlignValue) whose text block DrawTextW has measured as `block` in a copy of `CaptionStart`.
/// `margin` is kept free at the border.
[[nodiscard]] CaptionPlace PlaceCaption(int width, int height, const RECT& block, std::int32_t align, int margin, bool rightToLeft);

/// The top left corner of a picture of this size. It sinks by a pixel with a pressed button.
[[nodiscard]] POINT PlacePicture(int width, int height, SIZE picture, std::int32_t align, int margin, bool isPressed);

}  // namespace controls
