// DrawStateW: text and icons as they look in a state.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Icons.h"
#include "platform/src/gdi/Text.h"

#include <windows.h>

using namespace platform;

namespace {

/// Disabled text is engraved: a light copy one pixel right and below, the dark one on top.
void DrawStateText(DeviceContext& dc, std::u16string_view text, POINT at, UINT flags, COLORREF monochrome)
{
    const Graphics& graphics = SimPc::Current().Get<Graphics>();
    const UINT format =
        DT_SINGLELINE | DT_NOCLIP | ((flags & 0x0F) == DST_TEXT ? DT_NOPREFIX : 0u) | (flags & DSS_HIDEPREFIX ? DT_HIDEPREFIX : 0u);
    const auto draw = [&](int offset, COLORREF color) {
        RECT place{at.x + offset, at.y + offset, at.x + offset, at.y + offset};
        DrawTextIn(dc, text, place, format, color);
    };
    if (flags & DSS_DISABLED) {
        const int mode = std::exchange(dc.state.backMode, TRANSPARENT);
        draw(1, graphics.SystemColor(COLOR_BTNHIGHLIGHT));
        draw(0, graphics.SystemColor(COLOR_BTNSHADOW));
        dc.state.backMode = mode;
    } else {
        draw(0, flags & DSS_MONO ? monochrome : dc.state.textColor);
    }
}

}  // namespace

BOOL WINAPI DrawStateW(HDC dc, HBRUSH brush, DRAWSTATEPROC callback, LPARAM data, WPARAM dataLength, int x, int y, int width, int height,
                       UINT flags)
{
    SIM_NOTE(dc, brush, callback, data, dataLength, x, y, width, height, flags);
    SimPc& pc = SimPc::Current();
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    switch (flags & 0x0F) {
        case DST_TEXT:
        case DST_PREFIXTEXT: {
            const auto* const text = reinterpret_cast<const WCHAR*>(data);
            if (!text)
                return FALSE;
            const auto ink = pc.Handles().Find<Brush>(brush);
            DrawStateText(*context, dataLength ? std::u16string_view(text, dataLength) : std::u16string_view(text), {x, y}, flags,
                          ink ? ink->color : 0);
            return TRUE;
        }
        case DST_ICON: {
            const auto icon = pc.Handles().Find<Icon>(reinterpret_cast<HICON>(data));
            if (!icon || flags & (DSS_DISABLED | DSS_MONO))
                break;
            PaintIcon(*context, *icon, {x, y, x + (width ? width : icon->color.width), y + (height ? height : icon->color.height)});
            return TRUE;
        }
        default:
            break;
    }
    pc.Unsupported("DrawStateW: flags " + std::to_string(flags));
    return FALSE;
}
