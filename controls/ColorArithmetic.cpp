// ColorArithmetic: one pass over the channels for every kind of shade.
#include "controls/ColorArithmetic.h"

#include <algorithm>
#include <cmath>

namespace controls {

namespace {

template <class PerChannel>
COLORREF EachChannel(COLORREF color, PerChannel change)
{
    const auto clamped = [&](int channel) { return std::clamp(static_cast<int>(change(channel)), 0, 255); };
    return RGB(clamped(GetRValue(color)), clamped(GetGValue(color)), clamped(GetBValue(color)));
}

}  // namespace

COLORREF Darken(COLORREF color, int amount)
{
    return Shift(color, -amount);
}

COLORREF Shift(COLORREF color, int amount)
{
    return EachChannel(color, [=](int channel) { return channel + amount; });
}

COLORREF ShiftByFraction(COLORREF color, double fraction)
{
    return EachChannel(color, [=](int channel) { return std::lrint(channel + fraction * 255); });
}

COLORREF Tint(COLORREF color, int amount)
{
    return EachChannel(color, [=](int channel) { return channel * (255 - amount) / 255 + amount; });
}

COLORREF Mix(COLORREF first, COLORREF second)
{
    const auto mean = [](BYTE one, BYTE other) { return std::lrint((one + other) / 2.0); };
    return RGB(mean(GetRValue(first), GetRValue(second)), mean(GetGValue(first), GetGValue(second)),
               mean(GetBValue(first), GetBValue(second)));
}

bool IsLighter(COLORREF color, COLORREF than)
{
    const auto brightness = [](COLORREF of) { return 3 * GetRValue(of) + 6 * GetGValue(of) + GetBValue(of); };
    return brightness(color) > brightness(than);
}

}  // namespace controls
