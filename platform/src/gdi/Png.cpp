// Png: a PNG file whose pixels are run-length packed in one deflate block with the fixed code.
#include "platform/sim/Png.h"

#include <cstdio>
#include <string_view>

namespace platform {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Writes bits from the lowest on, as deflate wants them.
class BitWriter {
public:
    explicit BitWriter(Bytes& bytes) : bytes_(bytes) {}
    void Add(std::uint32_t bits, int count)
    {
        for (int bit = 0; bit < count; ++bit) {
            if (used_ == 0)
                bytes_.push_back(0);
            bytes_.back() |= static_cast<std::uint8_t>((bits >> bit & 1) << used_);
            used_ = (used_ + 1) % 8;
        }
    }
    /// Huffman codes go highest bit first.
    void AddCode(std::uint32_t code, int count)
    {
        while (count-- > 0)
            Add(code >> count & 1, 1);
    }
    void AddSymbol(int symbol)
    {
        if (symbol < 144)
            AddCode(0x30 + symbol, 8);
        else if (symbol < 256)
            AddCode(0x190 + symbol - 144, 9);
        else if (symbol < 280)
            AddCode(symbol - 256, 7);
        else
            AddCode(0xC0 + symbol - 280, 8);
    }

private:
    Bytes& bytes_;
    int used_ = 0;
};

/// The symbol of a match of 3 to 258 bytes, with its extra bits. Each group of four symbols covers twice the lengths of the group before.
void AddLength(BitWriter& bits, std::size_t length)
{
    if (length == 258)
        return bits.AddSymbol(285);
    const auto offset = static_cast<std::uint32_t>(length - 3);
    int extraBits = 0;
    while (offset >> extraBits >= 8)
        ++extraBits;
    bits.AddSymbol(static_cast<int>(257 + static_cast<std::uint32_t>(4 * extraBits) + (offset >> extraBits)));
    bits.Add(offset & ((1u << extraBits) - 1), extraBits);
}

/// One deflate block. Matches are looked for at the two distances at which pictures repeat: a pixel and a row.
void Deflate(const Bytes& data, std::size_t row, Bytes& target)
{
    constexpr std::size_t longest = 258;
    struct Distance {
        std::size_t bytes;
        int code, extraBits, extra;
    };
    std::vector<Distance> distances{{3, 2, 0, 0}};
    for (int code = 4, first = 5; code < 30; ++code) {
        const int extraBits = code / 2 - 1;
        if (row >= static_cast<std::size_t>(first) && row < static_cast<std::size_t>(first + (1 << extraBits)))
            distances.push_back({row, code, extraBits, static_cast<int>(row) - first});
        first += 1 << extraBits;
    }
    BitWriter bits(target);
    bits.Add(1, 1);
    bits.Add(1, 2);
    for (std::size_t at = 0; at < data.size();) {
        const Distance* found = nullptr;
        std::size_t length = 2;
        for (const Distance& distance : distances) {
            std::size_t matched = 0;
            while (at >= distance.bytes && at + matched < data.size() && matched < longest &&
                   data[at + matched] == data[at + matched - distance.bytes])
                ++matched;
            if (matched > length) {
                found = &distance;
                length = matched;
            }
        }
        if (!found) {
            bits.AddSymbol(data[at++]);
            continue;
        }
        AddLength(bits, length);
        bits.AddCode(static_cast<std::uint32_t>(found->code), 5);
        bits.Add(static_cast<std::uint32_t>(found->extra), found->extraBits);
        at += length;
    }
    bits.AddSymbol(256);
}

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

void AddChunk(Bytes& file, std::string_view type, const Bytes& content)
{
    AddBigEndian(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = file.size();
    file.insert(file.end(), type.begin(), type.end());
    file.insert(file.end(), content.begin(), content.end());
    AddBigEndian(file, Crc32(file, start));
}

}  // namespace

std::vector<std::uint8_t> EncodePng(const Image& image)
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
    Bytes packed{0x78, 0x01};
    Deflate(raw, static_cast<std::size_t>(image.width) * 3 + 1, packed);
    AddBigEndian(packed, Adler32(raw));

    Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AddChunk(file, "IHDR", header);
    AddChunk(file, "IDAT", packed);
    AddChunk(file, "IEND", {});
    return file;
}

bool WritePng(const Image& image, const std::string& path)
{
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (!file)
        return false;
    const Bytes bytes = EncodePng(image);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && written;
}

}  // namespace platform
