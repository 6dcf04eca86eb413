// ThemeButton: the one look that needs the window.
#include "controls/CommandButton/ThemeButton.h"

#include "controls/ThemeHandle.h"

#include <vsstyle.h>

namespace controls {

bool PaintThemeButton(Canvas& canvas, HWND window, std::int32_t themeState, WindowShape* shape)
{
    const ThemeHandle theme(OpenThemeData(window, TEXT("Button")));
    if (!theme)
        return false;
    if (shape) {
        const RECT grown = canvas.Inside(-1);
        base::RegionHandle region;
        if (SUCCEEDED(GetThemeBackgroundRegion(theme.Get(), canvas.Dc(), BP_PUSHBUTTON, themeState, &grown, region.Receive())))
            shape->Cut(window, std::move(region));
    }
    const RECT& client = canvas.Client();
    return SUCCEEDED(DrawThemeBackground(theme.Get(), canvas.Dc(), BP_PUSHBUTTON, themeState, &client, &client));
}

}  // namespace controls
