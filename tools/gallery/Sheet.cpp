// Sheet: faces beside each other.
#include "tools/gallery/Sheet.h"

#include "controls/Pixels.h"
#include "tools/gallery/Face.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace gallery {

namespace {

constexpr int gap = 8;

void Paste(platform::Image& sheet, const platform::Image& face, int left, int top)
{
    for (int y = 0; y < face.height; ++y)
        for (int x = 0; x < face.width; ++x)
            if (sheet.Holds(left + x, top + y))
                sheet.At(left + x, top + y) = face.At(x, y);
}

}  // namespace

platform::Image DrawSheet(int first, int last, std::string_view size, std::span<const std::string_view> properties)
{
    platform::Image sheet;
    for (int style = first; style <= last; ++style) {
        for (int state = 0; state < 5; ++state) {
            const std::string number = std::to_string(style);
            std::vector<std::string_view> words{number, stateNames[state], size};
            std::ranges::copy(properties, std::back_inserter(words));
            std::string mistake;
            const std::optional<Face> face = ReadFace(words, mistake);
            const std::optional<platform::Image> picture = face ? DrawFace(*face) : std::nullopt;
            if (!picture)
                continue;
            if (sheet.pixels.empty())
                sheet = platform::Image(5 * (picture->width + gap) + gap, (last - first + 1) * (picture->height + gap) + gap,
                                        controls::AsPixel(face->backdrop.value_or(GetSysColor(COLOR_BTNFACE))));
            Paste(sheet, *picture, gap + state * (picture->width + gap), gap + (style - first) * (picture->height + gap));
        }
    }
    return sheet;
}

}  // namespace gallery
