// Image: hashing and cutting.
#include "platform/sim/Image.h"

namespace platform {

std::uint64_t Image::Hash() const
{
    std::uint64_t hash = 14695981039346656037ull;
    const auto mix = [&hash](std::uint32_t value) { hash = (hash ^ value) * 1099511628211ull; };
    mix(static_cast<std::uint32_t>(width));
    mix(static_cast<std::uint32_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            mix(At(x, y) & 0xFFFFFF);
    return hash ^ hash >> 32;
}

Image Image::Part(const RECT& part) const
{
    Image result(part.right - part.left, part.bottom - part.top);
    for (int y = 0; y < result.height; ++y)
        for (int x = 0; x < result.width; ++x)
            if (Holds(part.left + x, part.top + y))
                result.At(x, y) = At(part.left + x, part.top + y) & 0xFFFFFF;
    return result;
}

}  // namespace platform
