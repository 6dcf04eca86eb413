// Units: conversions by MulDiv, which rounds to the nearest pixel.
#include "host/Units.h"

#include "base/Handles.h"

#include <cmath>

namespace host {

namespace {

constexpr int twipsPerInch = 1440;

}  // namespace

ScreenResolution ScreenResolution::Get()
{
    const base::ScreenDc screen(GetDC(nullptr));
    ScreenResolution resolution;
    if (screen) {
        resolution.x = GetDeviceCaps(screen.Get(), LOGPIXELSX);
        resolution.y = GetDeviceCaps(screen.Get(), LOGPIXELSY);
    }
    return resolution;
}

int TwipsToPixelsX(float twips)
{
    return MulDiv(static_cast<int>(std::lround(twips)), ScreenResolution::Get().x, twipsPerInch);
}

int TwipsToPixelsY(float twips)
{
    return MulDiv(static_cast<int>(std::lround(twips)), ScreenResolution::Get().y, twipsPerInch);
}

float TwipsPerPixelX()
{
    return static_cast<float>(twipsPerInch) / static_cast<float>(ScreenResolution::Get().x);
}

float TwipsPerPixelY()
{
    return static_cast<float>(twipsPerInch) / static_cast<float>(ScreenResolution::Get().y);
}

float PixelsToTwipsX(int pixels)
{
    return static_cast<float>(pixels) * TwipsPerPixelX();
}

float PixelsToTwipsY(int pixels)
{
    return static_cast<float>(pixels) * TwipsPerPixelY();
}

int ToPixelsX(float value, ScaleMode mode)
{
    return mode == ScaleMode::Pixels ? static_cast<int>(std::lround(value)) : TwipsToPixelsX(value);
}

int ToPixelsY(float value, ScaleMode mode)
{
    return mode == ScaleMode::Pixels ? static_cast<int>(std::lround(value)) : TwipsToPixelsY(value);
}

}  // namespace host
