// Png: writes an image as a PNG file, without any library.
#pragma once

#include "platform/sim/Image.h"

#include <string>

namespace tests {

/// Writes a file of the machine that the tests run on, 8 bits a channel, without transparency; false when it can't be written.
bool WritePng(const platform::Image& image, const std::string& path);

}  // namespace tests
