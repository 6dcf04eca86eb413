// What is kept with a window: text, styles, identifier.
#include "platform/src/core/Gate.h"
#include "platform/src/window/Inner.h"

namespace platform {

namespace inner {

std::u16string GetText(HWND handle)
{
    const WindowPtr window = WindowOf(handle);
    return window ? window->text : std::u16string();
}

void SetText(HWND handle, std::u16string_view text)
{
    if (const WindowPtr window = WindowOf(handle))
        window->text = text;
}

DWORD GetStyle(HWND handle)
{
    const WindowPtr window = WindowOf(handle);
    return window ? window->style : 0;
}

void SetStyle(HWND handle, DWORD clear, DWORD set)
{
    if (const WindowPtr window = WindowOf(handle))
        window->style = (window->style & ~clear) | set;
}

int GetId(HWND handle)
{
    const WindowPtr window = WindowOf(handle);
    return window ? static_cast<int>(window->id) : 0;
}

BOOL IsWindowEnabled(HWND handle)
{
    const WindowPtr window = RequireWindow(handle);
    return window && !(window->style & WS_DISABLED);
}

BOOL IsWindowVisible(HWND handle)
{
    const WindowPtr window = RequireWindow(handle);
    return window && window->IsShown();
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI IsWindowEnabled(HWND window)
{
    SIM_NOTE(window);
    return inner::IsWindowEnabled(window);
}

BOOL WINAPI IsWindowVisible(HWND window)
{
    SIM_NOTE(window);
    return inner::IsWindowVisible(window);
}
