// The font families that the PC knows, and which of them is selected.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Text.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

/// The record that the enumeration hands to the program for a family.
ENUMLOGFONTEXW DescribeFamily(const Graphics::Family& family, const TEXTMETRICW& metrics)
{
    ENUMLOGFONTEXW record{};
    LOGFONTW& font = record.elfLogFont;
    font.lfHeight = metrics.tmHeight;
    font.lfWidth = metrics.tmAveCharWidth;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = family.charSet;
    font.lfOutPrecision = family.trueType ? 3 : 1;
    font.lfPitchAndFamily = static_cast<BYTE>(family.fixedPitch ? FIXED_PITCH | FF_MODERN : VARIABLE_PITCH | FF_SWISS);
    std::copy(family.name.begin(), family.name.end(), font.lfFaceName);
    std::copy(family.name.begin(), family.name.end(), record.elfFullName);
    return record;
}

}  // namespace

int WINAPI EnumFontFamiliesExW(HDC dc, LOGFONTW* font, FONTENUMPROCW callback, LPARAM parameter, DWORD flags)
{
    SIM_NOTE(dc, font ? font->lfFaceName : nullptr, callback, parameter, flags);
    if (!FindDc(dc) || !font || !callback)
        return 0;
    const Graphics::Family* const wanted = font->lfFaceName[0] ? FindFamily(font->lfFaceName) : nullptr;
    int result = 1;
    // The callback may change the list of families.
    for (const Graphics::Family& family : std::vector<Graphics::Family>(SimPc::Current().Get<Graphics>().Families())) {
        if (font->lfFaceName[0] && (!wanted || wanted->name != family.name))
            continue;
        if (font->lfCharSet != DEFAULT_CHARSET && font->lfCharSet != family.charSet)
            continue;
        LOGFONTW described{};
        described.lfHeight = 16;
        std::copy(family.name.begin(), family.name.end(), described.lfFaceName);
        const TEXTMETRICW metrics = Typeface(described).Metrics();
        const ENUMLOGFONTEXW record = DescribeFamily(family, metrics);
        result = callback(&record.elfLogFont, &metrics, family.trueType ? TRUETYPE_FONTTYPE : RASTER_FONTTYPE, parameter);
        if (result == 0)
            break;
    }
    return result;
}
