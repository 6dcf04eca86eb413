// What a window paints when its own procedure leaves that alone.
#include "platform/sim/Graphics.h"
#include "platform/src/behaviour/DefaultProcedure.h"
#include "platform/src/behaviour/Inner.h"
#include "platform/src/gdi/Canvas.h"
#include "platform/src/window/Frame.h"

namespace platform {

namespace {

LRESULT EraseBackground(const Window& window, HDC dc)
{
    const HBRUSH brush = window.windowClass->background;
    if (!brush)
        return FALSE;
    Canvas canvas(dc);
    if (canvas.IsOpen())
        canvas.Fill(inner::GetClientRect(window.handle), brush);
    return TRUE;
}

/// The colours that the system's controls have when their parent has no wish of its own.
LRESULT ControlColors(UINT message, HDC dc)
{
    Graphics& graphics = SimPc::Current().Get<Graphics>();
    const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const int background = field ? COLOR_WINDOW : COLOR_BTNFACE;
    Canvas canvas(dc);
    if (canvas.IsOpen()) {
        canvas.TextColor(graphics.SystemColor(COLOR_WINDOWTEXT));
        canvas.BackColor(graphics.SystemColor(background));
    }
    return reinterpret_cast<LRESULT>(graphics.SystemBrush(background));
}

}  // namespace

std::optional<LRESULT> DefaultPainting(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            if (inner::BeginPaint(window.handle, paint))
                inner::EndPaint(window.handle, paint);
            return 0;
        }
        case WM_ERASEBKGND:
            return EraseBackground(window, reinterpret_cast<HDC>(wParam));
        case WM_NCPAINT:
            PaintFrame(window);
            return 0;
        case WM_NCACTIVATE:
            window.frameActive = wParam != 0;
            if (lParam != -1 && window.IsShown())
                PaintFrame(window);
            return TRUE;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            return ControlColors(message, reinterpret_cast<HDC>(wParam));
        default:
            return {};
    }
}

}  // namespace platform
