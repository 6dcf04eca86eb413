// LineInput: reads a file line by line, as bytes.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace helpers {

struct LineInputOptions {
    bool separatorAtEnd = false;        // at the end of the file the separator itself is returned
    std::size_t bytesPerCharacter = 1;  // a separator counts only at a multiple of this from the line's start
};

/// The bytes from the file's position up to the separator, or up to the end of the file; the position is then behind the separator.
/// A failed read counts as the end of the file, and what had been read of the line is dropped. `file` stays the caller's.
std::string LineInputEx(HANDLE file, std::string_view separator, const LineInputOptions& options);

}  // namespace helpers
