// FramePainter: the themed path and the classic path.
#include "controls/Frame/FramePainter.h"

#include "base/Handles.h"
#include "controls/ThemeHandle.h"

#include <uxtheme.h>
#include <vsstyle.h>

namespace controls {

namespace {

void Fill(HDC dc, const RECT& area, COLORREF color)
{
    const base::BrushHandle brush(CreateSolidBrush(color));
    FillRect(dc, &area, brush.Get());
}

/// A rectangle of lines whose corner pixels are (left, top) and (right, bottom).
void Outline(HDC dc, LONG left, LONG top, LONG right, LONG bottom, COLORREF color)
{
    const base::BrushHandle brush(CreateSolidBrush(color));
    const RECT box{left, top, right + 1, bottom + 1};
    FrameRect(dc, &box, brush.Get());
}

/// Rounded lines with nothing inside.
void RoundOutline(HDC dc, LONG left, LONG top, LONG right, LONG bottom, std::int32_t corner, COLORREF color)
{
    const base::PenHandle pen(CreatePen(PS_SOLID, 1, color));
    if (!pen)
        return;
    const HGDIOBJ formerPen = SelectObject(dc, pen.Get());
    const HGDIOBJ formerBrush = SelectObject(dc, GetStockObject(NULL_BRUSH));
    RoundRect(dc, left, top, right, bottom, corner, corner);
    SelectObject(dc, formerBrush);
    SelectObject(dc, formerPen);
}

void RoundBorder(HDC dc, const FrameLook& look, const RECT& border)
{
    const LONG width = border.right;
    const LONG height = border.bottom + 1;
    const COLORREF offset = look.appearance == 2 ? look.dark : look.light;
    const COLORREF top = look.appearance == 2 ? look.light : look.dark;
    if (look.appearance != 0)
        RoundOutline(dc, 1, border.top + 1, width, height - 1, look.borderRound, offset);
    RoundOutline(dc, 0, border.top, width - 1, height - 2, look.borderRound, top);
}

void ClassicBorder(HDC dc, const FrameLook& look, const RECT& border)
{
    const LONG width = border.right;
    const LONG height = border.bottom + 1;
    if (look.borderRound > 0) {
        RoundBorder(dc, look, border);
    } else if (look.appearance == 0) {
        Outline(dc, 0, border.top, width - 1, height - 2, look.dark);
    } else if (look.systemBorderColors) {
        RECT edge = border;
        DrawEdge(dc, &edge, EDGE_ETCHED, BF_RECT);
    } else {
        // A light line two pixels wide under a dark one of one pixel.
        Outline(dc, 0, border.top, width - 1, height - 2, look.light);
        Outline(dc, 1, border.top + 1, width - 2, height - 3, look.light);
        Outline(dc, 0, border.top, width - 2, height - 3, look.dark);
    }
}

void PaintThemed(HDC dc, const FrameLook& look, const FrameGeometry& geometry)
{
    const ThemeHandle theme(OpenThemeData(look.window, TEXT("BUTTON")));
    const int state = look.enabled ? GBS_NORMAL : GBS_DISABLED;
    if (theme && look.hasBorder)
        DrawThemeBackground(theme.Get(), dc, BP_GROUPBOX, state, &geometry.border, nullptr);
    if (look.caption.empty())
        return;
    Fill(dc, geometry.captionBack, look.back);
    BOOL showsCues = TRUE;
    SystemParametersInfoA(SPI_GETKEYBOARDCUES, 0, &showsCues, 0);
    if (theme) {
        DrawThemeText(theme.Get(), dc, BP_GROUPBOX, state, look.caption.c_str(), static_cast<int>(look.caption.size()),
                      showsCues ? 0 : DT_HIDEPREFIX, look.enabled ? 0 : DSS_DISABLED, &geometry.caption);
    }
}

void PaintClassic(HDC dc, const FrameLook& look, const FrameGeometry& geometry)
{
    if (look.hasBorder)
        ClassicBorder(dc, look, geometry.border);
    if (look.caption.empty())
        return;
    Fill(dc, geometry.captionBack, look.back);
    const RECT& place = geometry.caption;
    DrawStateW(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(look.caption.c_str()), look.caption.size(), place.left, place.top,
               place.right - place.left, place.bottom - place.top, DST_PREFIXTEXT | (look.enabled ? 0 : DSS_DISABLED));
}

}  // namespace

SIZE MeasureFrameCaption(HDC dc, const base::String& measured)
{
    SIZE size{};
    GetTextExtentPoint32W(dc, measured.c_str(), static_cast<int>(measured.size()), &size);
    return size;
}

void PaintFrame(HDC dc, const FrameLook& look, const FrameGeometry& geometry)
{
    if (look.themed)
        PaintThemed(dc, look, geometry);
    else
        PaintClassic(dc, look, geometry);
}

}  // namespace controls
