// Base64Bytes: bytes as text and back (RFC 4648, padded, without line breaks).
#pragma once

#include "base/String.h"

#include <cstdint>
#include <vector>

namespace base {

/// `count` -1 stands for all bytes.
String Base64EncodeBytes(const std::vector<std::uint8_t>& bytes, std::int32_t count = -1);

/// Empty when the text is invalid. White space is invalid.
std::vector<std::uint8_t> Base64DecodeBytes(StringView text);

}  // namespace base
