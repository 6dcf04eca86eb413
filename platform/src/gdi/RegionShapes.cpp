// Region: ellipses and rounded rectangles as rows of pixels.
#include "platform/src/gdi/Region.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace platform {

namespace {

/// Pixels at each end of row `row` that an ellipse of `width` x `height` pixels leaves free.
LONG EllipseInset(int width, int height, int row)
{
    const double radiusX = width / 2.0;
    const double radiusY = height / 2.0;
    const double distance = (row + 0.5 - radiusY) / radiusY;
    const double half = radiusX * std::sqrt(std::max(0.0, 1.0 - distance * distance));
    return static_cast<LONG>(std::floor(radiusX - half + 0.5));
}

}  // namespace

Region Region::WithCorners(const RECT& rectangle, int cornerWidth, int cornerHeight)
{
    Region result;
    const int height = rectangle.bottom - rectangle.top;
    for (int row = 0; row < height; ++row) {
        const int fromEnd = std::min(row, height - 1 - row);
        const LONG inset = fromEnd < cornerHeight / 2 ? EllipseInset(cornerWidth, cornerHeight, fromEnd) : 0;
        const LONG edges[]{rectangle.left + inset, rectangle.right - inset};
        if (edges[0] < edges[1])
            result.AppendBand(rectangle.top + row, rectangle.top + row + 1, edges);
    }
    return result;
}

Region Region::Ellipse(const RECT& rectangle)
{
    const int width = rectangle.right - rectangle.left;
    const int height = rectangle.bottom - rectangle.top;
    return width <= 0 || height <= 0 ? Region() : WithCorners(rectangle, width, height);
}

Region Region::RoundRect(const RECT& rectangle, int ellipseWidth, int ellipseHeight)
{
    const int width = rectangle.right - rectangle.left;
    const int height = rectangle.bottom - rectangle.top;
    if (width <= 0 || height <= 0)
        return {};
    ellipseWidth = std::min(std::abs(ellipseWidth), width);
    ellipseHeight = std::min(std::abs(ellipseHeight), height);
    // The corners are cut from an ellipse that is one pixel larger than asked for.
    return ellipseWidth <= 1 || ellipseHeight <= 1 ? Region(rectangle) : WithCorners(rectangle, ellipseWidth + 1, ellipseHeight + 1);
}

Region Region::Polygon(std::span<const POINT> corners)
{
    Region result;
    if (corners.empty())
        return result;
    const auto [first, last] = std::ranges::minmax_element(corners, {}, &POINT::y);
    for (LONG row = first->y; row < last->y; ++row) {
        std::vector<LONG> edges;
        for (std::size_t index = 0; index < corners.size(); ++index) {
            const POINT from = corners[index];
            const POINT to = corners[(index + 1) % corners.size()];
            if ((from.y <= row) == (to.y <= row))
                continue;
            const double crossing = from.x + (row + 0.5 - from.y) * (to.x - from.x) / (to.y - from.y);
            edges.push_back(static_cast<LONG>(std::ceil(crossing - 0.5)));
        }
        std::ranges::sort(edges);
        result.AppendBand(row, row + 1, edges);
    }
    return result;
}

}  // namespace platform
