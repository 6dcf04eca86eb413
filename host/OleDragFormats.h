// OleDragFormats: how text and files look in the memory blocks that programs hand each other.
#pragma once

#include "base/String.h"

#include <ole2.h>

#include <cstdint>
#include <vector>

namespace host {

using Bytes = std::vector<std::uint8_t>;

/// CF_UNICODETEXT: UTF-16 with an ending zero. Decoding stops at the first zero or at the end.
[[nodiscard]] Bytes EncodeText(base::StringView text);
[[nodiscard]] base::String DecodeText(const Bytes& bytes);
/// CF_TEXT: the same in the system's code page.
[[nodiscard]] Bytes EncodeNarrowText(base::StringView text);
[[nodiscard]] base::String DecodeNarrowText(const Bytes& bytes);
/// CF_HDROP: a DROPFILES record and the paths behind it. What does not look like one has no files.
/// https://learn.microsoft.com/windows/win32/api/shlobj_core/ns-shlobj_core-dropfiles
[[nodiscard]] Bytes EncodeFiles(const std::vector<base::String>& paths);
[[nodiscard]] std::vector<base::String> DecodeFiles(const Bytes& bytes);

/// The format as content in a memory block, the one medium that this program deals in.
[[nodiscard]] FORMATETC InMemory(CLIPFORMAT format);
/// A new memory block, the caller's; NULL when there is no memory.
[[nodiscard]] HGLOBAL CopyToGlobal(const Bytes& bytes);
/// The block may be a little longer than what was put into it.
[[nodiscard]] Bytes CopyFromGlobal(HGLOBAL memory);

}  // namespace host
