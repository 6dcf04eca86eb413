// Units: twips and pixels. A twip is 1/1440 inch; the screen's LOGPIXELSX and LOGPIXELSY say how many pixels an inch has.
#pragma once

#include <windows.h>

namespace host {

/// How a container counts positions and sizes.
enum class ScaleMode : int { Twips = 1, Pixels = 3 };

/// The screen's resolution in pixels per inch; 96 when no screen DC can be had. Windows keeps it the same as long as a program runs that
/// does not follow each monitor's own.
struct ScreenResolution {
    int x = 96;
    int y = 96;
    /// Asked for once; every form that loads asks again.
    [[nodiscard]] static ScreenResolution Get();
    static void Forget();
};

[[nodiscard]] int TwipsToPixelsX(float twips);
[[nodiscard]] int TwipsToPixelsY(float twips);
[[nodiscard]] float PixelsToTwipsX(int pixels);
[[nodiscard]] float PixelsToTwipsY(int pixels);
/// 15 at 96 dpi.
[[nodiscard]] float TwipsPerPixelX();
[[nodiscard]] float TwipsPerPixelY();

/// From a container's units to pixels.
[[nodiscard]] int ToPixelsX(float value, ScaleMode mode);
[[nodiscard]] int ToPixelsY(float value, ScaleMode mode);

}  // namespace host
