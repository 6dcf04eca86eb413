// ButtonSkin: row by row, from the shape inwards.
#include "controls/CommandButton/styles/ButtonSkin.h"

#include "controls/ColorArithmetic.h"
#include "controls/Pixels.h"

#include <algorithm>

namespace controls {

namespace {

/// How many pixels at either end of each row lie outside an area; from `nothing` on the row holds none of it.
using Insets = std::vector<int>;

/// The area without the pixels that touch its outside at a side.
Insets Shrunk(const Insets& area, int nothing)
{
    Insets inside(area.size(), nothing);
    for (std::size_t row = 1; row + 1 < area.size(); ++row)
        inside[row] = std::min(std::max({area[row] + 1, area[row - 1], area[row + 1]}), nothing);
    return inside;
}

/// The colour of each row of the face, `count` rows high.
std::vector<COLORREF> FaceRows(const std::vector<SkinBand>& bands, int count)
{
    std::vector<COLORREF> rows;
    for (const auto& [end, first, last] : bands) {
        const int height = count * end / 100 - static_cast<int>(rows.size());
        if (height > 0) {
            const std::vector<COLORREF> ramp = ColorRamp(first, last, height - 1);
            rows.insert(rows.end(), ramp.begin(), ramp.end());
        }
    }
    return rows;
}

class SkinDrawing {
public:
    SkinDrawing(int width, int height, const ButtonSkin& skin) : skin_(skin), pixels_(width, height), nothing_((width + 1) / 2)
    {
        Insets area;
        for (int row = 0; row < height; ++row)
            area.push_back(ShapeInset({skin.shape, width, height}, row));
        layers_.push_back(area);
        for (std::size_t rim = 0; rim < skin.rims.size(); ++rim)
            layers_.push_back(Shrunk(layers_.back(), nothing_));
    }

    const Pixels& Draw()
    {
        const int rims = static_cast<int>(skin_.rims.size());
        const std::vector<COLORREF> face = FaceRows(skin_.bands, pixels_.height - 2 * rims);
        for (int row = 0; row < pixels_.height; ++row) {
            const std::size_t inFace = static_cast<std::size_t>(std::max(row - rims, 0));
            Span(row, 0, skin_.outside);
            for (std::size_t layer = 0; layer < skin_.rims.size(); ++layer)
                Rim(row, layer);
            if (inFace < face.size())
                Span(row, Inset(skin_.rims.size(), row), face[inFace]);
        }
        for (const auto& [column, row, color] : skin_.dots)
            Dot(column, row, color);
        return pixels_;
    }

private:
    [[nodiscard]] int Inset(std::size_t layer, int row) const { return layers_[layer][static_cast<std::size_t>(row)]; }

    /// From an inset to the same inset at the other end.
    void Span(int row, int inset, COLORREF color)
    {
        if (pixels_.width > 2 * inset)
            std::fill_n(pixels_.Row(row) + inset, pixels_.width - 2 * inset, AsPixel(color));
    }

    void Rim(int row, std::size_t layer)
    {
        const auto [topLeft, bottomRight] = skin_.rims[layer];
        const int from = Inset(layer, row);
        const int to = Inset(layer + 1, row);
        const bool isUpper = 2 * row < pixels_.height;
        if (from >= nothing_)
            return;
        if (to >= nothing_) {
            Span(row, from, isUpper ? topLeft : bottomRight);
            return;
        }
        const bool isCorner = from > static_cast<int>(layer) || to - from > 1;
        const COLORREF between = isCorner ? Mix(topLeft, bottomRight) : CLR_INVALID;
        const COLORREF left = isUpper || !isCorner ? topLeft : between;
        const COLORREF right = !isUpper || !isCorner ? bottomRight : between;
        std::fill_n(pixels_.Row(row) + from, to - from, AsPixel(left));
        std::fill_n(pixels_.Row(row) + pixels_.width - to, to - from, AsPixel(right));
    }

    void Dot(int column, int row, COLORREF color)
    {
        if (2 * column >= pixels_.width || 2 * row >= pixels_.height || column < Inset(0, row))
            return;
        for (const int y : {row, pixels_.height - 1 - row}) {
            for (const int x : {column, pixels_.width - 1 - column})
                pixels_.Row(y)[x] = AsPixel(color);
        }
    }

    const ButtonSkin& skin_;
    Pixels pixels_;
    const int nothing_;
    std::vector<Insets> layers_;
};

}  // namespace

ButtonSkin ButtonSkin::FadedTo(COLORREF color) const
{
    ButtonSkin faded = *this;
    for (SkinRim& rim : faded.rims)
        rim = {Mix(rim.topLeft, color), Mix(rim.bottomRight, color)};
    for (SkinBand& band : faded.bands)
        band = {band.end, Mix(band.first, color), Mix(band.last, color)};
    for (SkinDot& dot : faded.dots)
        dot.color = Mix(dot.color, color);
    return faded;
}

void PaintSkin(Canvas& canvas, const ButtonSkin& skin)
{
    DrawPixels(canvas.Dc(), 0, 0, SkinDrawing(canvas.Width(), canvas.Height(), skin).Draw());
}

}  // namespace controls
