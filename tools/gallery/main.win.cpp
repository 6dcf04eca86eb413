// The gallery on Windows.
//
//     gallery             every control, live, with its properties to play with
//     gallery themed      the utility's window with visual styles, until it is closed
//     gallery hover 9 5   rests the mouse on a point of the running utility's window
//     gallery scroll      scrolls the running utility's window to its lower end
//     gallery close       closes the running utility
//
// and what Gallery.h lists.
#include "tools/gallery/Gallery.h"
#include "tools/gallery/Live.h"
#include "tools/gallery/Poses.h"

#include <cstdlib>
#include <vector>

int main(int count, char** words)
{
    if (const std::optional<int> result = gallery::Draw(std::vector<std::string_view>(words + 1, words + count)))
        return *result;
    const std::string_view verb = count > 1 ? words[1] : "";
    if (verb.empty())
        return gallery::ShowLive();
    if (verb == "themed")
        return gallery::ShowThemed();
    const HWND window = FindWindowW(nullptr, TEXT("Velmora Setup Utility"));
    if (window && verb == "hover" && count == 4)
        return gallery::Hover(window, std::atoi(words[2]), std::atoi(words[3]));
    if (window && verb == "scroll")
        return PostMessageW(window, WM_VSCROLL, SB_BOTTOM, 0) ? 0 : 1;
    if (window && verb == "close")
        return PostMessageW(window, WM_CLOSE, 0, 0) ? 0 : 1;
    return 2;
}
