// Png: a PNG file with its pixels as they are. It is for looking at; who keeps one packs it with a tool.
#include "tests/support/Png.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

namespace tests {

namespace {

using Bytes = std::vector<std::uint8_t>;

void AddBigEndian(Bytes& bytes, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

std::uint32_t Crc32(const Bytes& bytes, std::size_t from)
{
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::size_t index = from; index < bytes.size(); ++index) {
        crc ^= bytes[index];
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
    }
    return ~crc;
}

std::uint32_t Adler32(const Bytes& bytes)
{
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const std::uint8_t byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

/// Deflate's blocks for data that isn't packed: at most 65535 bytes each, their count and its complement, low byte first.
void AddStoredBlocks(Bytes& target, const Bytes& data)
{
    for (std::size_t from = 0; from < data.size(); from += 65535) {
        const std::size_t count = std::min<std::size_t>(data.size() - from, 65535);
        target.push_back(from + count == data.size());
        for (const std::size_t word : {count, ~count}) {
            target.push_back(static_cast<std::uint8_t>(word));
            target.push_back(static_cast<std::uint8_t>(word >> 8));
        }
        target.insert(target.end(), data.begin() + static_cast<std::ptrdiff_t>(from),
                      data.begin() + static_cast<std::ptrdiff_t>(from + count));
    }
}

void AddChunk(Bytes& file, std::string_view type, const Bytes& content)
{
    AddBigEndian(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = file.size();
    file.insert(file.end(), type.begin(), type.end());
    file.insert(file.end(), content.begin(), content.end());
    AddBigEndian(file, Crc32(file, start));
}

Bytes EncodePng(const platform::Image& image)
{
    Bytes raw;
    for (int y = 0; y < image.height; ++y) {
        raw.push_back(0);
        for (int x = 0; x < image.width; ++x) {
            const std::uint32_t pixel = image.At(x, y);
            for (int shift = 16; shift >= 0; shift -= 8)
                raw.push_back(static_cast<std::uint8_t>(pixel >> shift));
        }
    }
    Bytes header;
    AddBigEndian(header, static_cast<std::uint32_t>(image.width));
    AddBigEndian(header, static_cast<std::uint32_t>(image.height));
    for (const std::uint8_t value : {8, 2, 0, 0, 0})
        header.push_back(value);
    Bytes stored{0x78, 0x01};
    AddStoredBlocks(stored, raw);
    AddBigEndian(stored, Adler32(raw));

    Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AddChunk(file, "IHDR", header);
    AddChunk(file, "IDAT", stored);
    AddChunk(file, "IEND", {});
    return file;
}

}  // namespace

bool WritePng(const platform::Image& image, const std::string& path)
{
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (!file)
        return false;
    const Bytes bytes = EncodePng(image);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && written;
}

}  // namespace tests
