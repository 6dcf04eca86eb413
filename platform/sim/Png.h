// Png: writes an image as a PNG file, without any library.
#pragma once

#include "platform/sim/Image.h"

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

/// The bytes of a PNG file, 8 bits a channel, without transparency.
[[nodiscard]] std::vector<std::uint8_t> EncodePng(const Image& image);
/// Writes a file of the machine that the tests run on; false when it can't be written.
bool WritePng(const Image& image, const std::string& path);

}  // namespace platform
