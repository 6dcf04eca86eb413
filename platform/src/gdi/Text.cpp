// Text: single lines, measuring and metrics.
#include "platform/src/gdi/Text.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

using namespace platform;

namespace platform {

std::u16string Counted(LPCWSTR text, int length)
{
    if (!text)
        return {};
    return length < 0 ? std::u16string(text) : std::u16string(text, static_cast<std::size_t>(length));
}

Typeface TypefaceOf(const DeviceContext& dc)
{
    return Typeface(dc.state.font->description);
}

void PaintLine(DeviceContext& dc, const Typeface& face, POINT at, std::u16string_view text, COLORREF color, const RECT* clip,
               const INT* advances)
{
    int width = 0;
    for (std::size_t index = 0; index < text.size(); ++index)
        width += advances ? advances[index] : face.Advance(text[index]);
    const RECT cell{at.x, at.y, at.x + width, at.y + face.Height()};
    const auto clipped = [clip](const RECT& area) {
        return clip ? RECT{std::max(area.left, clip->left), std::max(area.top, clip->top), std::min(area.right, clip->right),
                           std::min(area.bottom, clip->bottom)}
                    : area;
    };
    if (dc.state.backMode == OPAQUE)
        dc.Fill(clipped(cell), dc.state.backColor);
    const std::uint32_t pixel = dc.PixelOf(color);
    const auto put = [&](int x, int y) {
        if (!clip || (x >= clip->left && x < clip->right && y >= clip->top && y < clip->bottom))
            dc.Put(x, y, pixel, R2_COPYPEN);
    };
    int x = at.x;
    for (std::size_t index = 0; index < text.size(); ++index) {
        face.Draw(text[index], [&](int column, int row) { put(x + column, at.y + row); });
        x += advances ? advances[index] : face.Advance(text[index]);
    }
    if (face.Underlined())
        dc.Fill(clipped({cell.left, at.y + face.Ascent() + 1, cell.right, at.y + face.Ascent() + 2}), color);
    if (face.StruckOut())
        dc.Fill(clipped({cell.left, at.y + face.Ascent() * 2 / 3, cell.right, at.y + face.Ascent() * 2 / 3 + 1}), color);
}

}  // namespace platform

BOOL WINAPI GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size)
{
    SIM_NOTE(dc, Counted(text, length).c_str(), length);
    const auto context = FindDc(dc);
    if (!context || !size || length < 0)
        return FALSE;
    const Typeface face = TypefaceOf(*context);
    *size = {face.Width({text, static_cast<std::size_t>(length)}), length > 0 ? face.Height() : 0};
    return TRUE;
}

/// `widths`, where each character ends, is not asked for here.
BOOL WINAPI GetTextExtentExPointW(HDC dc, LPCWSTR text, int length, int width, LPINT fit, LPINT widths, LPSIZE size)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, dc, Counted(text, length).c_str(), length, width);
    const auto context = FindDc(dc);
    if (!context || !size || !fit || length < 0)
        return FALSE;
    if (widths) {
        SimPc::Current().Unsupported("GetTextExtentExPointW: partial widths");
        return FALSE;
    }
    const Typeface face = TypefaceOf(*context);
    const std::u16string_view all(text, static_cast<std::size_t>(length));
    *size = {face.Width(all), length > 0 ? face.Height() : 0};
    *fit = length;
    while (face.Width(all.substr(0, static_cast<std::size_t>(*fit))) > width)
        --*fit;
    return TRUE;
}

BOOL WINAPI GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics)
{
    SIM_NOTE(dc);
    const auto context = FindDc(dc);
    if (!context || !metrics)
        return FALSE;
    *metrics = TypefaceOf(*context).Metrics();
    return TRUE;
}
