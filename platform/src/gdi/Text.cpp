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

namespace {

/// Draws at the reference point as the text alignment says, and moves the current position when it is to be updated.
void PlaceLine(DeviceContext& dc, POINT at, std::u16string_view text)
{
    const Typeface face = TypefaceOf(dc);
    const UINT align = dc.state.textAlign;
    if (align & TA_UPDATECP)
        at = dc.state.position;
    const int width = face.Width(text);
    POINT place = dc.ToImage(at);
    if ((align & TA_CENTER) == TA_CENTER)
        place.x -= width / 2;
    else if (align & TA_RIGHT)
        place.x -= width;
    if ((align & TA_BASELINE) == TA_BASELINE)
        place.y -= face.Ascent();
    else if (align & TA_BOTTOM)
        place.y -= face.Height();
    if (align & TA_UPDATECP)
        dc.state.position.x += align & TA_RIGHT && (align & TA_CENTER) != TA_CENTER ? -width : width;
    SimPc::Current().Get<Graphics>().AddText(
        {std::u16string(text), {place.x, place.y, place.x + width, place.y + face.Height()}, dc.state.textColor, dc.Window()});
    PaintLine(dc, face, place, text, dc.state.textColor);
}

}  // namespace

}  // namespace platform

BOOL WINAPI TextOutW(HDC dc, int x, int y, LPCWSTR text, int length)
{
    SIM_NOTE(dc, x, y, Counted(text, length).c_str(), length);
    const auto context = FindDc(dc);
    if (!context || (!text && length > 0) || length < 0)
        return FALSE;
    PlaceLine(*context, {x, y}, {text, static_cast<std::size_t>(length)});
    return TRUE;
}

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

BOOL WINAPI GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics)
{
    SIM_NOTE(dc);
    const auto context = FindDc(dc);
    if (!context || !metrics)
        return FALSE;
    *metrics = TypefaceOf(*context).Metrics();
    return TRUE;
}
