// Region: a set of pixels as rectangles in bands. Equal sets have equal rectangles.
#pragma once

#include <windef.h>

#include <span>
#include <vector>

namespace platform {

class Region {
public:
    Region() = default;
    explicit Region(const RECT& rectangle);
    /// The ellipse inside a rectangle (right and bottom excluded).
    static Region Ellipse(const RECT& rectangle);
    /// A rectangle with corners of an ellipse of the given width and height.
    static Region RoundRect(const RECT& rectangle, int ellipseWidth, int ellipseHeight);
    /// The pixels whose centres lie inside a closed polygon, where it overlaps itself every second time.
    static Region Polygon(std::span<const POINT> corners);

    [[nodiscard]] Region Union(const Region& other) const;
    [[nodiscard]] Region Intersect(const Region& other) const;
    [[nodiscard]] Region Subtract(const Region& other) const;
    [[nodiscard]] Region Offset(int dx, int dy) const;

    [[nodiscard]] bool Contains(POINT point) const;
    [[nodiscard]] bool IsEmpty() const { return rectangles_.empty(); }
    /// NULLREGION (1), SIMPLEREGION (2) or COMPLEXREGION (3).
    [[nodiscard]] int Kind() const { return rectangles_.empty() ? 1 : rectangles_.size() == 1 ? 2 : 3; }
    /// The smallest rectangle around it; all zero when it is empty.
    [[nodiscard]] RECT Bounds() const;
    /// Disjoint rectangles, from top to bottom and in a band from left to right.
    [[nodiscard]] const std::vector<RECT>& Rectangles() const { return rectangles_; }
    bool operator==(const Region& other) const;

private:
    template <class Keep>
    [[nodiscard]] static Region Combine(const Region& left, const Region& right, Keep keep);
    /// A rectangle whose corners are quarters of an ellipse.
    [[nodiscard]] static Region WithCorners(const RECT& rectangle, int cornerWidth, int cornerHeight);
    /// Adds spans (left, right pairs) of the rows top..bottom below all that is there.
    void AppendBand(LONG top, LONG bottom, std::span<const LONG> edges);

    std::vector<RECT> rectangles_;
};

}  // namespace platform
