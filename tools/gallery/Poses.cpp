// Poses: the window with visual styles, and a hand that rests.
#include "tools/gallery/Poses.h"

#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "controls/ThemeState.h"
#include "host/MessageLoop.h"

#include <cstdio>

namespace gallery {

/// Wine has visual styles and draws with them, but the version of its common controls says 5.81, where Windows says 6 to a program with
/// this manifest. The program believes what it is told; so it is told 6 here.
int ShowThemed()
{
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{6}; });
    host::ControlFactory factory;
    controls::RegisterControls(factory);
    app::Form1 form;
    if (!form.Load(app::Form1Text(), factory))
        return 1;
    form.Show();
    return host::MessageLoop::Run();
}

int Hover(HWND window, int x, int y)
{
    POINT point{x, y};
    ClientToScreen(window, &point);
    const LONG width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    // A hand does not rest at once, and a tip hears of the mouse from its second move on.
    for (const LONG step : {3, 2, 1, 0}) {
        INPUT move{};
        move.type = INPUT_MOUSE;
        move.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        move.mi.dx = ((point.x + step) * 65536 + 32768) / width;
        move.mi.dy = (point.y * 65536 + 32768) / height;
        SendInput(1, &move, sizeof move);
        Sleep(50);
    }
    RECT place{};
    GetWindowRect(window, &place);
    std::printf("%ldx%ld+%ld+%ld\n", place.right - place.left, place.bottom - place.top, place.left, place.top);
    return 0;
}

}  // namespace gallery
