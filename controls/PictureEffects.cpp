// PictureEffects: pixel by pixel.
#include "controls/PictureEffects.h"

namespace controls {

namespace {

constexpr std::uint32_t Red(std::uint32_t pixel)
{
    return pixel >> 16 & 0xFF;
}

constexpr std::uint32_t Green(std::uint32_t pixel)
{
    return pixel >> 8 & 0xFF;
}

constexpr std::uint32_t Blue(std::uint32_t pixel)
{
    return pixel & 0xFF;
}

template <class PerChannel>
std::uint32_t EachChannel(std::uint32_t pixel, PerChannel change)
{
    return change(Red(pixel)) << 16 | change(Green(pixel)) << 8 | change(Blue(pixel));
}

std::uint32_t Blend(std::uint32_t over, std::uint32_t under, std::uint32_t opacity)
{
    const auto channel = [=](std::uint32_t one, std::uint32_t other) { return (one * opacity + other * (255 - opacity)) / 256; };
    return channel(Red(over), Red(under)) << 16 | channel(Green(over), Green(under)) << 8 | channel(Blue(over), Blue(under));
}

/// Calls `change(pixel beneath, pixel of the picture)` for all that is covered.
template <class Change>
void EachCovered(Pixels& under, int left, int top, const CoveredPixels& picture, Change change)
{
    std::size_t index = 0;
    for (int row = 0; row < picture.colors.height; ++row) {
        std::uint32_t* beneath = under.Row(top + row) + left;
        for (int column = 0; column < picture.colors.width; ++column, ++index, ++beneath) {
            if (picture.covered[index])
                change(*beneath, picture.colors.values[index]);
        }
    }
}

}  // namespace

std::uint32_t Grey(std::uint32_t pixel)
{
    const std::uint32_t hundredths = 30 * Red(pixel) + 59 * Green(pixel) + 11 * Blue(pixel);
    const std::uint32_t whole = hundredths / 100, rest = hundredths % 100;
    const std::uint32_t grey = whole + (rest > 50 || (rest == 50 && whole % 2 == 1) ? 1 : 0);
    return grey << 16 | grey << 8 | grey;
}

void Composite(Pixels& under, int left, int top, const CoveredPixels& picture, const PictureEffect& effect)
{
    const auto opacity = static_cast<std::uint32_t>(effect.opacity);
    EachCovered(under, left, top, picture, [&](std::uint32_t& beneath, std::uint32_t pixel) {
        if (effect.grey)
            pixel = Grey(pixel);
        if (effect.brightness)
            pixel = EachChannel(pixel, [&](std::uint32_t value) { return std::uint32_t{(*effect.brightness)[value]}; });
        beneath = opacity == 255 ? pixel : Blend(pixel, beneath, opacity);
    });
}

void CastShadow(Pixels& under, int left, int top, const CoveredPixels& picture, std::uint32_t pixel)
{
    EachCovered(under, left, top, picture, [&](std::uint32_t& beneath, std::uint32_t) { beneath = pixel; });
}

}  // namespace controls
