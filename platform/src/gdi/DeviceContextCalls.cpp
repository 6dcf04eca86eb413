// Device contexts of memory, and what all device contexts remember: colours, modes, origins.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"
#include "platform/src/gdi/Screen.h"

#include <windows.h>

using namespace platform;

HDC WINAPI CreateCompatibleDC(HDC dc)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, dc);
    if (dc && !FindDc(dc))
        return nullptr;
    return OpenObject<HDC>(std::make_shared<DeviceContext>(SimPc::Current().Get<Graphics>()));
}

BOOL WINAPI DeleteDC(HDC dc)
{
    SIM_NOTE(dc);
    const auto context = FindDc(dc);
    // Device contexts of windows go back by ReleaseDC only.
    return context && (context->IsMemory() || context->device) && CloseDc(dc);
}

int WINAPI GetDeviceCaps(HDC dc, int index)
{
    SIM_NOTE(dc, index);
    const auto context = FindDc(dc);
    if (!context)
        return 0;
    const Screen& screen = SimPc::Current().Get<Screen>();
    const DeviceContext::Device device = context->device.value_or(DeviceContext::Device{screen.Dpi(), screen.Size()});
    const auto millimetres = [&](LONG pixels) { return static_cast<int>(pixels * 254 / device.dpi / 10); };
    switch (index) {
        case TECHNOLOGY:
            return 1;
        case HORZSIZE:
            return millimetres(device.size.cx);
        case VERTSIZE:
            return millimetres(device.size.cy);
        case HORZRES:
            return device.size.cx;
        case VERTRES:
            return device.size.cy;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return device.dpi;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case NUMCOLORS:
            return -1;
        case RASTERCAPS:
            return 0x7E99;
        default:
            SimPc::Current().Unsupported("GetDeviceCaps: index " + std::to_string(index));
            return 0;
    }
}

namespace {

/// Replaces one value of a device context's state and returns the one before, or `failure` for a handle that is none.
template <class T>
T Exchange(HDC dc, T DeviceContext::State::*member, T value, T failure)
{
    const auto context = FindDc(dc);
    return context ? std::exchange(context->state.*member, value) : failure;
}

template <class T>
T Read(HDC dc, T DeviceContext::State::*member, T failure)
{
    const auto context = FindDc(dc);
    return context ? context->state.*member : failure;
}

BOOL SetPoint(HDC dc, POINT DeviceContext::State::*member, POINT value, LPPOINT before)
{
    const auto context = FindDc(dc);
    if (!context)
        return FALSE;
    const POINT old = std::exchange(context->state.*member, value);
    if (before)
        *before = old;
    return TRUE;
}

}  // namespace

COLORREF WINAPI SetBkColor(HDC dc, COLORREF color)
{
    SIM_NOTE(dc, color);
    return Exchange(dc, &DeviceContext::State::backColor, color, CLR_INVALID);
}

COLORREF WINAPI GetBkColor(HDC dc)
{
    SIM_NOTE(dc);
    return Read(dc, &DeviceContext::State::backColor, CLR_INVALID);
}

COLORREF WINAPI SetTextColor(HDC dc, COLORREF color)
{
    SIM_NOTE(dc, color);
    return Exchange(dc, &DeviceContext::State::textColor, color, CLR_INVALID);
}

COLORREF WINAPI GetTextColor(HDC dc)
{
    SIM_NOTE(dc);
    return Read(dc, &DeviceContext::State::textColor, CLR_INVALID);
}

int WINAPI SetBkMode(HDC dc, int mode)
{
    SIM_NOTE(dc, mode);
    return Exchange(dc, &DeviceContext::State::backMode, mode, 0);
}

int WINAPI GetBkMode(HDC dc)
{
    SIM_NOTE(dc);
    return Read(dc, &DeviceContext::State::backMode, 0);
}

BOOL WINAPI SetViewportOrgEx(HDC dc, int x, int y, LPPOINT before)
{
    SIM_NOTE(dc, x, y);
    return SetPoint(dc, &DeviceContext::State::viewport, {x, y}, before);
}
