// Region: polygons, ellipses and rounded rectangles as rows of pixels.
#include "platform/sim/Region.h"

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

Region Region::Polygon(std::span<const POINT> points, bool winding)
{
    if (points.size() < 2)
        return {};
    const auto [low, high] = std::minmax_element(points.begin(), points.end(), [](const POINT& a, const POINT& b) { return a.y < b.y; });
    Region result;
    for (LONG y = low->y; y < high->y; ++y) {
        struct Crossing {
            LONG x;
            int direction;
        };
        std::vector<Crossing> crossings;
        for (std::size_t index = 0; index < points.size(); ++index) {
            POINT from = points[index];
            POINT to = points[(index + 1) % points.size()];
            const int direction = from.y < to.y ? 1 : -1;
            if (direction < 0)
                std::swap(from, to);
            if (y < from.y || y >= to.y)
                continue;
            const double x = from.x + static_cast<double>(y - from.y) * (to.x - from.x) / (to.y - from.y);
            crossings.push_back({static_cast<LONG>(std::ceil(x)), direction});
        }
        std::sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        std::vector<LONG> edges;
        int turns = 0;
        for (const Crossing& crossing : crossings) {
            const bool before = turns != 0;
            turns = winding ? turns + crossing.direction : 1 - turns;
            if (const bool now = turns != 0; now == before)
                continue;
            // Spans that touch or are empty melt together.
            if (!edges.empty() && edges.back() == crossing.x)
                edges.pop_back();
            else
                edges.push_back(crossing.x);
        }
        result.AppendBand(y, y + 1, edges);
    }
    return result;
}

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

}  // namespace platform
