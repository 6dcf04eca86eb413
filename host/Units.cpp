// Units: conversions by MulDiv, which rounds to the nearest pixel.
#include "host/Units.h"

#include "base/Handles.h"

#include <cmath>
#include <optional>

namespace host {

namespace {

constexpr int twipsPerInch = 1440;

std::optional<ScreenResolution> known;

}  // namespace

ScreenResolution ScreenResolution::Get()
{
    if (known)
        return *known;
    const base::ScreenDc screen(GetDC(nullptr));
    if (!screen)
        return {};
    return known.emplace(ScreenResolution{GetDeviceCaps(screen.Get(), LOGPIXELSX), GetDeviceCaps(screen.Get(), LOGPIXELSY)});
}

void ScreenResolution::Forget()
{
    known.reset();
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
