// Buffers: texts handed to the caller's buffers in the ways that Windows functions have.
#pragma once

#include <windef.h>

#include <string_view>

namespace platform {

/// For functions that return the length written without its zero, or, when the buffer is too small, the size needed with it.
DWORD LengthOrNeeded(std::u16string_view text, LPWSTR buffer, DWORD size);

/// Copies what fits into `size` characters, zero included, and ends it with a zero. The length copied, without the zero.
DWORD CopyCut(std::u16string_view text, LPWSTR buffer, DWORD size);

/// A text that may be NULL.
[[nodiscard]] inline std::u16string_view OrEmpty(LPCWSTR text)
{
    return text ? std::u16string_view(text) : std::u16string_view();
}

}  // namespace platform
