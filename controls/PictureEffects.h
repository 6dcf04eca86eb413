// PictureEffects: how a picture looks in the states of its button. Whole numbers on pixels, nothing of Windows.
#pragma once

#include "controls/Pixels.h"

#include <array>
#include <cstdint>

namespace controls {

/// What each of the 256 values of a channel becomes.
using BrightnessTable = std::array<std::uint8_t, 256>;

/// Each value multiplied by `percent` of 100, at most 255, rounded to nearest and ties to even.
[[nodiscard]] constexpr BrightnessTable Brightness(unsigned percent)
{
    BrightnessTable table{};
    for (unsigned value = 0; value < table.size(); ++value) {
        const unsigned product = value * percent;
        const unsigned whole = product / 100, rest = product % 100;
        const unsigned rounded = whole + (rest > 50 || (rest == 50 && whole % 2 == 1) ? 1 : 0);
        table[value] = static_cast<std::uint8_t>(rounded < 255 ? rounded : 255);
    }
    return table;
}

/// Made once, by the compiler.
inline constexpr BrightnessTable lighter = Brightness(115);
inline constexpr BrightnessTable darker = Brightness(85);

struct PictureEffect {
    const BrightnessTable* brightness = nullptr;  // of an opaque picture in its colours
    bool grey = false;
    int opacity = 255;  // 255 replaces what lies beneath, less is blended
};

/// In a picture that is laid over something else the highest byte of a pixel tells whether it is seen: 0 is open.
constexpr std::uint32_t covered = 0xFF000000;

/// No pixel's colour.
constexpr std::uint32_t noColor = 0x01000000;

/// Marks all pixels as seen but those of the colour (0x00RRGGBB, or `noColor`).
void CoverAllBut(Pixels& picture, std::uint32_t open);

/// The brightness of a pixel in all three channels: 30 % red, 59 % green, 11 % blue, rounded to nearest and ties to even.
[[nodiscard]] std::uint32_t Grey(std::uint32_t pixel);

/// Puts what is seen of a picture over the pixels, at a place that lies inside them.
void Composite(Pixels& under, int left, int top, const Pixels& picture, const PictureEffect& effect);

/// Fills what the picture would cover with one colour.
void CastShadow(Pixels& under, int left, int top, const Pixels& picture, std::uint32_t color);

}  // namespace controls
