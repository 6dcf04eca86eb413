// The gallery: what gallery.sh cannot do by itself to pose a window for a picture.
//
//     gallery themed      the utility's window with the visual styles that Windows would give it, until it is closed
//     gallery hover 9 5   rests the mouse on a point of the running utility's client area and prints where its window stands
//     gallery close       closes the running utility
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "controls/ThemeState.h"
#include "host/MessageLoop.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

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

}  // namespace

int main(int count, char** words)
{
    const std::string_view verb = count > 1 ? words[1] : "";
    if (verb == "themed")
        return ShowThemed();
    const HWND window = FindWindowW(nullptr, TEXT("Velmora Setup Utility"));
    if (window && verb == "hover" && count == 4)
        return Hover(window, std::atoi(words[2]), std::atoi(words[3]));
    if (window && verb == "close")
        return PostMessageW(window, WM_CLOSE, 0, 0) ? 0 : 1;
    return 2;
}
