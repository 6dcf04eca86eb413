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

std::uint32_t Blend(std::uint32_t over, std::uint32_t under, std::uint32_t opacity)
{
    const auto channel = [=](std::uint32_t one, std::uint32_t other) { return (one * opacity + other * (255 - opacity)) / 256; };
    return channel(Red(over), Red(under)) << 16 | channel(Green(over), Green(under)) << 8 | channel(Blue(over), Blue(under));
}

/// Replaces each pixel beneath one that is seen by `made(pixel beneath, pixel of the picture)`.
template <class Make>
void EachSeen(Pixels& under, int left, int top, const Pixels& picture, Make made)
{
    for (int row = 0; row < picture.height; ++row) {
        const std::uint32_t* pixel = picture.Row(row);
        const std::uint32_t* const end = pixel + picture.width;
        for (std::uint32_t* beneath = under.Row(top + row) + left; pixel != end; ++pixel, ++beneath) {
            if (*pixel >= covered)
                *beneath = made(*beneath, *pixel);
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

void CoverAllBut(Pixels& picture, std::uint32_t open)
{
    for (std::uint32_t& pixel : picture.values)
        pixel = (pixel & ~covered) == open ? 0 : pixel | covered;
}

void Composite(Pixels& under, int left, int top, const Pixels& picture, const PictureEffect& effect)
{
    const auto opacity = static_cast<std::uint32_t>(effect.opacity);
    if (effect.brightness) {
        const BrightnessTable& table = *effect.brightness;
        EachSeen(under, left, top, picture, [&](std::uint32_t, std::uint32_t pixel) {
            return static_cast<std::uint32_t>(table[Red(pixel)] << 16 | table[Green(pixel)] << 8 | table[Blue(pixel)]);
        });
    } else if (opacity == 255) {
        EachSeen(under, left, top, picture,
                 [&](std::uint32_t, std::uint32_t pixel) { return effect.grey ? Grey(pixel) : pixel & ~covered; });
    } else {
        EachSeen(under, left, top, picture,
                 [&](std::uint32_t beneath, std::uint32_t pixel) { return Blend(effect.grey ? Grey(pixel) : pixel, beneath, opacity); });
    }
}

void CastShadow(Pixels& under, int left, int top, const Pixels& picture, std::uint32_t color)
{
    EachSeen(under, left, top, picture, [=](std::uint32_t, std::uint32_t) { return color; });
}

}  // namespace controls
