// String: the program's one text type, UTF-16 in both builds.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace base {

/// UTF-16 text. `TEXT("...")` gives a literal of its unit; `WCHAR` is `wchar_t` on Windows and `char16_t` in the native build.
using String = std::basic_string<WCHAR>;
using StringView = std::basic_string_view<WCHAR>;

/// The text without leading and trailing blanks (U+0020 only).
[[nodiscard]] String Trim(StringView text);

/// What stands before the first zero: the text that a Windows function has left in a buffer.
[[nodiscard]] String UpToZero(StringView buffer);

/// Decimal form of a signed 64-bit number.
[[nodiscard]] String ToDecimal(long long number);

/// True when both texts are equal once ASCII and Windows' own upper-casing (CharUpperBuffW) have been applied to each.
/// https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-charupperbuffw
[[nodiscard]] bool EqualsIgnoringCase(StringView left, StringView right);

/// Position of `wanted` in `text` without regard to case, or `String::npos`. An empty `wanted` is found at 0.
[[nodiscard]] std::size_t FindIgnoringCase(StringView text, StringView wanted);

/// Upper-cased copy (CharUpperBuffW).
[[nodiscard]] String ToUpper(StringView text);

}  // namespace base
