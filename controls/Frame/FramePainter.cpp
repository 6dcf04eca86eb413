#include "controls/Frame/FramePainter.h"

#include "controls/Canvas.h"
#include "controls/Frame/FrameValues.h"
#include "controls/ThemeHandle.h"

#include <uxtheme.h>
#include <vsstyle.h>

namespace controls {

namespace {

void RoundBorder(Canvas& canvas, const FrameLook& look, const RECT& border)
{
    const LONG width = border.right;
    const LONG height = border.bottom + 1;
    const COLORREF offset = look.appearance == AppearanceRaised ? look.dark : look.light;
    const COLORREF top = look.appearance == AppearanceRaised ? look.light : look.dark;
    if (look.appearance != AppearanceFlat)
        canvas.RoundOutline({1, border.top + 1, width, height - 1}, look.borderRound, offset);
    canvas.RoundOutline({0, border.top, width - 1, height - 2}, look.borderRound, top);
}

void ClassicBorder(Canvas& canvas, const FrameLook& look, const RECT& border)
{
    const LONG width = border.right;
    const LONG height = border.bottom + 1;
    if (look.borderRound > 0) {
        RoundBorder(canvas, look, border);
    } else if (look.appearance == AppearanceFlat) {
        canvas.Outline({0, border.top, width, height - 1}, look.dark);
    } else if (look.systemBorderColors) {
        canvas.Edge(border, EDGE_ETCHED, BF_RECT);
    } else {
        // A light line two pixels wide under a dark one of one pixel.
        canvas.Outline({0, border.top, width, height - 1}, look.light);
        canvas.Outline({1, border.top + 1, width - 1, height - 2}, look.light);
        canvas.Outline({0, border.top, width - 1, height - 2}, look.dark);
    }
}

void PaintThemed(Canvas& canvas, const FrameLook& look, const FrameGeometry& geometry)
{
    const HDC dc = canvas.Dc();
    const ThemeHandle theme(OpenThemeData(look.window, TEXT("BUTTON")));
    const int state = look.enabled ? GBS_NORMAL : GBS_DISABLED;
    if (theme && look.hasBorder)
        DrawThemeBackground(theme.Get(), dc, BP_GROUPBOX, state, &geometry.border, nullptr);
    if (look.caption.empty())
        return;
    canvas.Fill(geometry.captionBack, look.back);
    BOOL showsCues = TRUE;
    SystemParametersInfoA(SPI_GETKEYBOARDCUES, 0, &showsCues, 0);
    if (theme) {
        DrawThemeText(theme.Get(), dc, BP_GROUPBOX, state, look.caption.c_str(), static_cast<int>(look.caption.size()),
                      showsCues ? 0 : DT_HIDEPREFIX, look.enabled ? 0 : DSS_DISABLED, &geometry.caption);
    }
}

void PaintClassic(Canvas& canvas, const FrameLook& look, const FrameGeometry& geometry)
{
    if (look.hasBorder)
        ClassicBorder(canvas, look, geometry.border);
    if (look.caption.empty())
        return;
    canvas.Fill(geometry.captionBack, look.back);
    const RECT& place = geometry.caption;
    DrawStateW(canvas.Dc(), nullptr, nullptr, reinterpret_cast<LPARAM>(look.caption.c_str()), look.caption.size(), place.left, place.top,
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
    Canvas canvas(dc, geometry.border.right, geometry.border.bottom);
    if (look.themed)
        PaintThemed(canvas, look, geometry);
    else
        PaintClassic(canvas, look, geometry);
}

}  // namespace controls
