// FontNarrowing: one unit of width at a time.
#include "controls/FontNarrowing.h"

namespace controls {

base::FontHandle NarrowToFit(HDC dc, LOGFONTW start, const base::String& text, int available, const std::function<void(HFONT)>& tell)
{
    base::FontHandle font;
    while (start.lfWidth > 1) {
        SIZE size{};
        if (!GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size) || size.cx < available)
            break;
        --start.lfWidth;
        base::FontHandle narrower(CreateFontIndirectW(&start));
        if (!narrower)
            break;
        SelectObject(dc, narrower.Get());
        if (tell)
            tell(narrower.Get());
        font = std::move(narrower);
    }
    return font;
}

}  // namespace controls
