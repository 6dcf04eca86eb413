// Base64: the encoding in which the agent's settings file keeps the password (RFC 4648, padded, without line breaks).
#pragma once

#include "base/Base64Bytes.h"
#include "base/String.h"

#include <cstdint>

namespace app {

/// How text becomes bytes. Every other number is `Base64Prefixed`: a leading "A" stands for one byte a character, "W" for UTF-16LE.
enum Base64Mode : std::int32_t {
    Base64Prefixed = -1,
    Base64Narrow = 0,  // one byte a character; characters above 255 become "?"
    Base64Wide = 1,    // UTF-16LE
};

/// Empty for an empty text.
base::String Base64Encode(base::StringView text, std::int32_t mode);

/// Empty for an empty or invalid text. White space is invalid.
base::String Base64Decode(base::StringView text, std::int32_t mode);

using base::Base64DecodeBytes;
using base::Base64EncodeBytes;

/// True when a character's code is above 255.
bool NeedsWideChars(base::StringView text);

}  // namespace app
