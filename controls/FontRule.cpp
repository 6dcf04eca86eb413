#include "controls/FontRule.h"

#include "base/Handles.h"

#include <algorithm>
#include <cstddef>

namespace controls {

using base::String;

namespace {

/// Runs `callback` for the fonts of a face name, or one of each family when it is empty, on the screen's device context.
void EnumerateFonts(const String& faceName, FONTENUMPROCW callback, void* target)
{
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    faceName.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    const base::ScreenDc screen(GetDC(nullptr));
    EnumFontFamiliesExW(screen.Get(), &wanted, callback, reinterpret_cast<LPARAM>(target), 0);
}

int CALLBACK TakeFirst(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM target)
{
    *reinterpret_cast<FontInfo*>(target) = {true, type == TRUETYPE_FONTTYPE, (font->lfPitchAndFamily & FIXED_PITCH) != 0, font->lfCharSet};
    return 0;
}

int CALLBACK CollectFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM target)
{
    auto& names = *reinterpret_cast<std::vector<String>*>(target);
    if (names.empty() || names.back() != font->lfFaceName)
        names.emplace_back(font->lfFaceName);
    return 1;
}

bool IsTextTrueType(const FontInfo& font)
{
    return font.isFound && font.isTrueType && font.characterSet != SYMBOL_CHARSET;
}

}  // namespace

FontInfo GetFontInfo(const String& faceName)
{
    FontInfo found;
    EnumerateFonts(faceName, &TakeFirst, &found);
    return found;
}

std::vector<String> GetFontFamilies()
{
    std::vector<String> names;
    EnumerateFonts({}, &CollectFamily, &names);
    return names;
}

String GetMessageFontName()
{
    // Without its last member, which Windows Vista added, the record is taken by every Windows.
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = offsetof(NONCLIENTMETRICSW, iPaddedBorderWidth);
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, 0, &metrics, 0))
        return {};
    const String name(metrics.lfMessageFont.lfFaceName, LF_FACESIZE);
    return name.substr(0, name.find(TEXT('\0')));
}

void ApplyForceTrueType(host::Font& font, ForceTrueTypeChoice choice)
{
    const FontInfo current = GetFontInfo(font.Name());
    if (!current.isFound || IsTextTrueType(current))
        return;
    std::vector<String> candidates = GetFontFamilies();
    if (choice == ForceTrueTypeChoice::MessageFontFirst)
        candidates.insert(candidates.begin(), GetMessageFontName());
    const auto fits = [](const String& name) { return !name.empty() && IsTextTrueType(GetFontInfo(name)); };
    const auto found = std::ranges::find_if(candidates, fits);
    if (found != candidates.end())
        font.Name(*found);
}

}  // namespace controls
