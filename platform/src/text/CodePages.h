// CodePages: text as bytes, in the ANSI code page of the PC (1252) and in UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Bytes 0x81, 0x8D, 0x8F, 0x90 and 0x9D, which code page 1252 leaves open, are the control characters of the same number.
[[nodiscard]] char16_t FromCp1252(unsigned char byte);
[[nodiscard]] std::u16string FromCp1252(std::string_view bytes);
/// Empty when code page 1252 lacks the character.
[[nodiscard]] std::optional<char> ToCp1252(char16_t unit);
/// Characters that code page 1252 lacks become `substitute`; `substituted`, when given, tells whether any did.
[[nodiscard]] std::string ToCp1252(std::u16string_view text, char substitute = '?', bool* substituted = nullptr);

/// Bytes that are not UTF-8 become U+FFFD; `clean`, when given, tells whether there were none.
[[nodiscard]] std::u16string FromUtf8(std::string_view bytes, bool* clean = nullptr);
/// Lone surrogates become U+FFFD; `clean`, when given, tells whether there were none.
[[nodiscard]] std::string ToUtf8(std::u16string_view text, bool* clean = nullptr);

}  // namespace platform
