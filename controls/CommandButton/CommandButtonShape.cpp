#include "controls/CommandButton/CommandButtonShape.h"

#include <algorithm>
#include <array>
#include <vector>

namespace controls {

namespace {

/// Corners of a button that is too low for them end at its middle.
int RowFromEdge(const ButtonOutline& outline, int row)
{
    return std::min(row, outline.height - 1 - row);
}

template <std::size_t Count>
int At(const std::array<int, Count>& insets, int row)
{
    return row >= 0 && row < static_cast<int>(Count) ? insets[static_cast<std::size_t>(row)] : 0;
}

/// A staircase down the right side and up the left one. A polygon region leaves out the pixels on its right and lower edges, so that
/// whole numbers give exactly the rows.
base::RegionHandle PolygonRegion(const ButtonOutline& outline)
{
    std::vector<POINT> points;
    const auto step = [&](int row, int y) {
        const LONG inset = ShapeInset(outline, row);
        points.push_back({outline.width - inset, y});
    };
    for (int row = 0; row < outline.height; ++row) {
        if (row == 0 || ShapeInset(outline, row) != ShapeInset(outline, row - 1))
            step(row, row);
        if (row == outline.height - 1 || ShapeInset(outline, row) != ShapeInset(outline, row + 1))
            step(row, row + 1);
    }
    for (std::size_t index = points.size(); index-- > 0;)
        points.push_back({outline.width - points[index].x, points[index].y});
    return base::RegionHandle(CreatePolygonRgn(points.data(), static_cast<int>(points.size()), ALTERNATE));
}

base::RegionHandle RoundRegion(const ButtonOutline& outline, int diameter)
{
    return base::RegionHandle(CreateRoundRectRgn(0, 0, outline.width + 1, outline.height + 1, diameter, diameter));
}

constexpr int softDiameter = 4;

}  // namespace

int ShapeInset(const ButtonOutline& outline, int row)
{
    const int fromEdge = RowFromEdge(outline, row);
    int inset = 0;
    switch (outline.shape) {
        case ButtonShape::SoftCorners:
            inset = At(std::array{1}, fromEdge);
            break;
        case ButtonShape::Gloss:
            inset = At(std::array{4, 2, 1, 1}, fromEdge);
            break;
        case ButtonShape::CutCorners:
            inset = std::max(std::clamp(outline.height / 8, 3, 6) - fromEdge, 0);
            break;
        case ButtonShape::ClippedCorners:
            inset = At(std::array{2, 1}, fromEdge);
            break;
        case ButtonShape::Rectangle:
        case ButtonShape::ByDiameter:
            break;
    }
    return std::clamp(inset, 0, std::max(outline.width - 1, 0) / 2);
}

base::RegionHandle ShapeRegion(const ButtonOutline& outline)
{
    switch (outline.shape) {
        case ButtonShape::SoftCorners:
            return RoundRegion(outline, softDiameter);
        case ButtonShape::ByDiameter:
            return RoundRegion(outline, outline.diameter);
        case ButtonShape::Rectangle:
            return base::RegionHandle(CreateRectRgn(0, 0, outline.width, outline.height));
        default:
            return PolygonRegion(outline);
    }
}

void WindowShape::Cut(HWND window, base::RegionHandle region)
{
    const bool isCutSo = window == window_ && inForce_ && region && EqualRgn(region.Get(), inForce_.Get());
    if (!window || !region || isCutSo)
        return;
    base::RegionHandle copy(CreateRectRgn(0, 0, 0, 0));
    if (!copy || CombineRgn(copy.Get(), region.Get(), nullptr, RGN_COPY) == ERROR)
        return;
    // Windows owns a region that a window has accepted. The messages that it sends meanwhile may draw, so what is in force is told first.
    window_ = window;
    base::RegionHandle former = std::move(inForce_);
    inForce_ = std::move(copy);
    if (SetWindowRgn(window, region.Get(), TRUE))
        static_cast<void>(region.Release());
    else
        inForce_ = std::move(former);
}

}  // namespace controls
