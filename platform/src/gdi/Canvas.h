// Canvas: drawing past the gate.
#pragma once

#include "platform/sim/Image.h"
#include "platform/src/gdi/Region.h"

#include <wingdi.h>

#include <memory>
#include <string_view>

namespace platform {

class DeviceContext;
struct Icon;

/// Draws what the system itself draws (captions, system controls). Coordinates are those of the device context.
class Canvas {
public:
    /// An open device context, with what is selected into it.
    explicit Canvas(HDC dc);
    /// An image of one's own; `origin` is where (0, 0) lies in it, `visible` what may be touched, in image coordinates.
    Canvas(std::shared_ptr<Image> pixels, POINT origin, const Region& visible);
    ~Canvas();
    /// False when the device context is not open; then nothing is drawn.
    [[nodiscard]] bool IsOpen() const { return dc_ != nullptr; }

    void Fill(const RECT& rectangle, COLORREF color);
    /// Fills with the brush; system colours may be given as (HBRUSH)(COLOR_x + 1).
    void Fill(const RECT& rectangle, HBRUSH brush);
    void Outline(const RECT& rectangle, COLORREF color);
    /// Without the last point, as LineTo.
    void Line(POINT from, POINT to, COLORREF color);
    void Pixel(POINT point, COLORREF color);
    /// DrawEdge; `rectangle` shrinks with BF_ADJUST.
    void Edge(RECT& rectangle, UINT edge, UINT flags);
    void FocusRect(const RECT& rectangle);
    void Icon(const platform::Icon& icon, int x, int y, int width, int height);

    /// Text with the device context's own font, colours and background mode, as DrawTextW (the DT_ flags). Returns its height.
    int Text(std::u16string_view text, RECT& rectangle, UINT format);
    [[nodiscard]] SIZE Measure(std::u16string_view text) const;
    void Font(HFONT font);
    void TextColor(COLORREF color);
    void BackColor(COLORREF color);
    /// OPAQUE or TRANSPARENT.
    void BackMode(int mode);

private:
    std::shared_ptr<DeviceContext> dc_;
};

}  // namespace platform
