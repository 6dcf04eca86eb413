// TextBoxFilter: which typed characters a text box lets through. Pure text.
#pragma once

#include "base/String.h"

namespace controls {

struct TextBoxRules {
    bool allowOnlyAlphabetics = false;
    base::String allowOnlyChars;
};

/// Select all, copy, backspace, Enter, paste and cut always pass.
[[nodiscard]] bool IsEditingCode(WCHAR code);

/// Whether a typed character may go to the edit. With only alphabetics: ASCII letters, a few accented vowels, blank, apostrophe and
/// `allowOnlyChars` ("a-f" stands for a range). With `allowOnlyChars` alone: those, in upper or lower case.
[[nodiscard]] bool PassesFilter(WCHAR code, const TextBoxRules& rules);

/// Whether `code` is in a list of characters and ranges, as between the brackets of a wildcard pattern. A hyphen at either end, or
/// between characters that are no ascending range, stands for itself.
[[nodiscard]] bool InCharacterList(WCHAR code, base::StringView list);

}  // namespace controls
