#include "platform/src/text/Buffers.h"

#include <algorithm>

namespace platform {

DWORD LengthOrNeeded(std::u16string_view text, LPWSTR buffer, DWORD size)
{
    if (!buffer || size <= text.size())
        return static_cast<DWORD>(text.size() + 1);
    return CopyCut(text, buffer, size);
}

DWORD CopyCut(std::u16string_view text, LPWSTR buffer, DWORD size)
{
    if (size == 0)
        return 0;
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::copy_n(text.data(), length, buffer);
    buffer[length] = 0;
    return static_cast<DWORD>(length);
}

}  // namespace platform
