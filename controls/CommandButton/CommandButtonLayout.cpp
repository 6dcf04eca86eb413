#include "controls/CommandButton/CommandButtonLayout.h"

#include "controls/CommandButton/CommandButtonValues.h"

#include <algorithm>
#include <cmath>

namespace controls {

namespace {

/// Half of a number of pixels, rounded to nearest.
LONG Half(LONG pixels)
{
    return static_cast<LONG>(std::lrint(pixels / 2.0));
}

}  // namespace

RECT CaptionStart(int width, int height)
{
    return {0, 3, width, height - 3};
}

CaptionPlace PlaceCaption(int width, int height, const RECT& block, std::int32_t align, int margin, bool rightToLeft)
{
    const auto [l, t, r, b] = block;
    const LONG textHeight = b - t;
    // The two ends of a centred caption may be rounded towards each other, and a caption with one pixel less than it needs is wrapped.
    const LONG centredLeft = Half(width - l - r);
    const LONG centredRight = std::max(Half(width - l + r), centredLeft + r - l);
    const LONG middleTop = Half(height - t - b) + 3;
    const LONG middleBottom = std::max(Half(height - t + b), middleTop + textHeight);

    CaptionPlace place{};
    switch (align) {
        case AlignLeft:
            place = {{margin, middleTop, margin + r, middleBottom}, DT_LEFT | DT_VCENTER | DT_WORDBREAK};
            break;
        case AlignRight:
            place = {{width - margin - l - r, middleTop, width - margin - l, middleBottom}, DT_RIGHT | DT_VCENTER | DT_WORDBREAK};
            break;
        case AlignTop:
            place = {{centredLeft, margin, centredRight, margin + textHeight}, DT_CENTER | DT_TOP | DT_WORDBREAK};
            break;
        case AlignBottom:
            place = {{centredLeft, height - margin - textHeight, centredRight, height - margin}, DT_CENTER | DT_BOTTOM | DT_WORDBREAK};
            break;
        case AlignCentre:
        default:
            place = {{centredLeft, middleTop, centredRight, middleBottom}, DT_CENTER | DT_VCENTER | DT_WORDBREAK};
            break;
    }
    if (rightToLeft)
        place.format |= DT_RTLREADING;
    return place;
}

POINT PlacePicture(int width, int height, SIZE picture, std::int32_t align, int margin, bool isPressed)
{
    POINT place{Half(width - picture.cx), Half(height - picture.cy)};
    switch (align) {
        case AlignLeft:
            place.x = margin;
            break;
        case AlignRight:
            place.x = width - picture.cx - margin;
            break;
        case AlignTop:
            place.y = margin;
            break;
        case AlignBottom:
            place.y = height - picture.cy - margin;
            break;
        default:
            break;
    }
    const LONG sunk = isPressed ? 1 : 0;
    return {place.x + sunk, place.y + sunk};
}

}  // namespace controls
