// Region: set algebra on bands of rectangles.
#include "platform/src/gdi/Region.h"

#include <algorithm>

namespace platform {

namespace {

/// Left and right ends, in turn, of what a region covers between two neighbouring band borders.
std::vector<LONG> EdgesAt(const std::vector<RECT>& rectangles, std::size_t& next, LONG top)
{
    std::vector<LONG> edges;
    while (next < rectangles.size() && rectangles[next].bottom <= top)
        ++next;
    if (next < rectangles.size() && rectangles[next].top <= top)
        for (std::size_t index = next; index < rectangles.size() && rectangles[index].top == rectangles[next].top; ++index)
            edges.insert(edges.end(), {rectangles[index].left, rectangles[index].right});
    return edges;
}

/// Walks two lists of ends together and keeps where `keep(inLeft, inRight)` holds.
template <class Keep>
std::vector<LONG> MergeEdges(const std::vector<LONG>& left, const std::vector<LONG>& right, Keep keep)
{
    std::vector<LONG> result;
    std::size_t i = 0;
    std::size_t j = 0;
    bool inside = false;
    while (i < left.size() || j < right.size()) {
        const LONG x = j == right.size() || (i < left.size() && left[i] <= right[j]) ? left[i] : right[j];
        while (i < left.size() && left[i] == x)
            ++i;
        while (j < right.size() && right[j] == x)
            ++j;
        if (const bool now = keep(i % 2 == 1, j % 2 == 1); now != inside) {
            result.push_back(x);
            inside = now;
        }
    }
    return result;
}

}  // namespace

Region::Region(const RECT& rectangle)
{
    if (rectangle.left < rectangle.right && rectangle.top < rectangle.bottom)
        rectangles_.push_back(rectangle);
}

void Region::AppendBand(LONG top, LONG bottom, std::span<const LONG> edges)
{
    if (edges.empty() || top >= bottom)
        return;
    // A band that continues the one above with the same spans becomes part of it, so that equal sets have equal lists.
    const std::size_t count = edges.size() / 2;
    if (rectangles_.size() >= count && rectangles_.back().bottom == top) {
        const std::size_t first = rectangles_.size() - count;
        bool same = first == 0 || rectangles_[first - 1].top != rectangles_.back().top;
        for (std::size_t index = 0; index < count && same; ++index) {
            const RECT& above = rectangles_[first + index];
            same = above.top == rectangles_.back().top && above.left == edges[2 * index] && above.right == edges[2 * index + 1];
        }
        if (same) {
            for (std::size_t index = first; index < rectangles_.size(); ++index)
                rectangles_[index].bottom = bottom;
            return;
        }
    }
    for (std::size_t index = 0; index < count; ++index)
        rectangles_.push_back({edges[2 * index], top, edges[2 * index + 1], bottom});
}

template <class Keep>
Region Region::Combine(const Region& left, const Region& right, Keep keep)
{
    std::vector<LONG> borders;
    for (const Region* region : {&left, &right})
        for (const RECT& rectangle : region->rectangles_)
            borders.insert(borders.end(), {rectangle.top, rectangle.bottom});
    std::sort(borders.begin(), borders.end());
    borders.erase(std::unique(borders.begin(), borders.end()), borders.end());

    Region result;
    std::size_t nextLeft = 0;
    std::size_t nextRight = 0;
    for (std::size_t index = 0; index + 1 < borders.size(); ++index) {
        const std::vector<LONG> leftEdges = EdgesAt(left.rectangles_, nextLeft, borders[index]);
        const std::vector<LONG> rightEdges = EdgesAt(right.rectangles_, nextRight, borders[index]);
        result.AppendBand(borders[index], borders[index + 1], MergeEdges(leftEdges, rightEdges, keep));
    }
    return result;
}

Region Region::Union(const Region& other) const
{
    return Combine(*this, other, [](bool first, bool second) { return first || second; });
}

Region Region::Intersect(const Region& other) const
{
    return Combine(*this, other, [](bool first, bool second) { return first && second; });
}

Region Region::Subtract(const Region& other) const
{
    return Combine(*this, other, [](bool first, bool second) { return first && !second; });
}

Region Region::Offset(int dx, int dy) const
{
    Region result = *this;
    for (RECT& rectangle : result.rectangles_)
        rectangle = {rectangle.left + dx, rectangle.top + dy, rectangle.right + dx, rectangle.bottom + dy};
    return result;
}

bool Region::Contains(POINT point) const
{
    return std::any_of(rectangles_.begin(), rectangles_.end(), [point](const RECT& rectangle) {
        return point.x >= rectangle.left && point.x < rectangle.right && point.y >= rectangle.top && point.y < rectangle.bottom;
    });
}

RECT Region::Bounds() const
{
    if (rectangles_.empty())
        return {0, 0, 0, 0};
    RECT bounds{rectangles_.front().left, rectangles_.front().top, rectangles_.front().right, rectangles_.back().bottom};
    for (const RECT& rectangle : rectangles_) {
        bounds.left = std::min(bounds.left, rectangle.left);
        bounds.right = std::max(bounds.right, rectangle.right);
    }
    return bounds;
}

bool Region::operator==(const Region& other) const
{
    return std::equal(
        rectangles_.begin(), rectangles_.end(), other.rectangles_.begin(), other.rectangles_.end(),
        [](const RECT& a, const RECT& b) { return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom; });
}

}  // namespace platform
