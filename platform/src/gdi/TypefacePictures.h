// The built-in face as pictures, a block of glyphs side by side.
#pragma once

#include <span>

namespace platform {

struct FaceBlock {
    const char16_t* characters;
    /// Glyphs are separated by a blank; `#` is ink.
    const char* rows[10];
};

[[nodiscard]] std::span<const FaceBlock> FaceBlocks();

}  // namespace platform
