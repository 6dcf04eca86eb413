#include "controls/TextBox/TextBoxFilter.h"

namespace controls {

using base::StringView;

namespace {

constexpr StringView alphabeticExtras = TEXT(" '\u00E0\u00E1\u00E8\u00E9\u00EC\u00ED\u00F2\u00F3\u00F9\u00FA");

bool IsAlphabetic(WCHAR code, const base::String& allowed)
{
    if (InCharacterList(code, TEXT("A-Za-z")) || alphabeticExtras.find(code) != StringView::npos)
        return true;
    // A pattern can't hold these two, so with them every character stands for itself.
    if (allowed.find_first_of(TEXT("*]")) != base::String::npos)
        return allowed.find(code) != base::String::npos;
    return InCharacterList(code, allowed);
}

}  // namespace

bool IsEditingCode(WCHAR code)
{
    constexpr WCHAR codes[] = {1, 3, 8, 13, 22, 24};
    return StringView(codes, std::size(codes)).find(code) != StringView::npos;
}

bool InCharacterList(WCHAR code, StringView list)
{
    for (std::size_t place = 0; place < list.size(); ++place) {
        const bool isRange = place + 2 < list.size() && list[place + 1] == TEXT('-') && list[place] <= list[place + 2];
        if (isRange && code >= list[place] && code <= list[place + 2])
            return true;
        if (list[place] == code)
            return true;
        if (isRange)
            place += 2;
    }
    return false;
}

bool PassesFilter(WCHAR code, const TextBoxRules& rules)
{
    if (IsEditingCode(code))
        return true;
    if (rules.allowOnlyAlphabetics)
        return IsAlphabetic(code, rules.allowOnlyChars);
    if (!rules.allowOnlyChars.empty())
        return base::FindIgnoringCase(rules.allowOnlyChars, {&code, 1}) != base::String::npos;
    return true;
}

}  // namespace controls
