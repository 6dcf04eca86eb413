#include "app/helpers/WindowIcons.h"

namespace helpers {

void SetWindowIcons(HWND window)
{
    const auto load = [](int widthMetric, int heightMetric) {
        return LoadImageW(GetModuleHandleW(nullptr), TEXT("AAA"), IMAGE_ICON, GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric),
                          LR_SHARED | LR_VGACOLOR);
    };
    const auto large = reinterpret_cast<LPARAM>(load(SM_CXICON, SM_CYICON));
    const auto small = reinterpret_cast<LPARAM>(load(SM_CXSMICON, SM_CYSMICON));
    const auto give = [&](HWND receiver) {
        SendMessageW(receiver, WM_SETICON, ICON_BIG, large);
        SendMessageW(receiver, WM_SETICON, ICON_SMALL, small);
    };
    give(window);
    HWND last = window;
    while (const HWND owner = GetWindow(last, GW_OWNER))
        last = owner;
    if (last != window)
        give(last);
}

}  // namespace helpers
