// Case: upper-casing and comparison without regard to case, as the system does it for names of every kind.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Upper case of one UTF-16 unit: Latin, Greek, Cyrillic; every other unit is its own.
[[nodiscard]] char16_t UpperCase(char16_t unit);
[[nodiscard]] std::u16string UpperCase(std::u16string_view text);
/// The small letter of a capital; every other unit is its own.
[[nodiscard]] char16_t LowerCase(char16_t unit);
[[nodiscard]] bool SameName(std::u16string_view left, std::u16string_view right);

/// Orders names without regard to case, for maps.
struct NameLess {
    using is_transparent = void;
    bool operator()(std::u16string_view left, std::u16string_view right) const { return UpperCase(left) < UpperCase(right); }
};

}  // namespace platform
