// OLE colours. https://learn.microsoft.com/windows/win32/api/olectl/nf-olectl-oletranslatecolor
#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"

#include <olectl.h>
#include <windows.h>

using namespace platform;

HRESULT WINAPI OleTranslateColor(OLE_COLOR color, HPALETTE palette, COLORREF* rgb)
{
    SIM_CALL(E_INVALIDARG, ERROR_INVALID_PARAMETER, color, palette);
    SimPc& pc = SimPc::Current();
    if (palette) {
        pc.Unsupported("OleTranslateColor with a palette");
        return E_INVALIDARG;
    }
    constexpr OLE_COLOR kSystemColors = 31;
    COLORREF translated = color;
    switch (color >> 24) {
        case 0x00:  // A colour as it is.
        case 0x01:  // A palette index: without a palette it stays one.
        case 0x02:  // The nearest colour of the palette: likewise.
            break;
        case 0x80:
            if ((color & 0xFFFF) >= kSystemColors)
                return E_INVALIDARG;
            translated = pc.Get<Graphics>().SystemColor(static_cast<int>(color & 0xFFFF));
            break;
        default:
            return E_INVALIDARG;
    }
    if (rgb)
        *rgb = translated;
    return S_OK;
}
