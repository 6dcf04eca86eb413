// Canvas: what painters draw with. Fills, lines and edges on the client area of a control.
#pragma once

#include "controls/Gradient.h"

#include <windows.h>

#include <cstdint>
#include <vector>

namespace controls {

/// Pixels of a device context. Rectangles leave out their right column and their bottom row, as everywhere in GDI. Without memory for a
/// pen or a brush a call draws nothing.
class Canvas {
public:
    Canvas(HDC dc, int width, int height) : dc_(dc), client_{0, 0, width, height} {}

    [[nodiscard]] HDC Dc() const { return dc_; }
    [[nodiscard]] int Width() const { return client_.right; }
    [[nodiscard]] int Height() const { return client_.bottom; }
    [[nodiscard]] const RECT& Client() const { return client_; }
    /// The client area without `pixels` on every side.
    [[nodiscard]] RECT Inside(int pixels) const { return {pixels, pixels, Width() - pixels, Height() - pixels}; }

    /// Fills the client area. The colour is what the surface is cleared with from now on.
    void Ground(COLORREF color);
    /// The colour of the last `Ground`, or CLR_INVALID.
    [[nodiscard]] COLORREF Ground() const { return ground_; }

    void Fill(const RECT& area, COLORREF color);
    /// One pixel wide, just inside `box`.
    void Outline(const RECT& box, COLORREF color);
    /// The same in two colours; the corners at the top right and the bottom left belong to the second.
    void Bevel(const RECT& box, COLORREF topLeft, COLORREF bottomRight);
    /// A line round `box` with rounded corners of this diameter and nothing inside.
    void RoundOutline(const RECT& box, int diameter, COLORREF color);
    /// DrawEdge just inside `box`.
    void Edge(const RECT& box, UINT edge, UINT flags);
    void Gradient(const RECT& area, COLORREF first, COLORREF last, std::int32_t direction);
    /// Whole rows, one colour each, from `first` down.
    void Rows(int first, const std::vector<COLORREF>& colors);
    void Pixel(int x, int y, COLORREF color) { SetPixelV(dc_, x, y, color); }
    /// The four pixels that lie `inset` columns and rows inside the corners.
    void Corners(int inset, COLORREF color);
    /// Every second pixel of the client area, beginning with the first; each row starts one pixel off the row above.
    /// https://learn.microsoft.com/windows/win32/api/wingdi/nf-wingdi-extcreatepen
    void Checker(COLORREF color);
    /// The dotted rectangle that shows the focus.
    void Focus(const RECT& box);

private:
    const HDC dc_;
    const RECT client_;
    COLORREF ground_ = CLR_INVALID;
};

}  // namespace controls
