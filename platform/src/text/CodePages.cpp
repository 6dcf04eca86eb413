#include "platform/src/text/CodePages.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr std::array<char16_t, 32> kUpperHalf = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                                 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                                 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf16(std::u16string& text, char32_t point)
{
    if (point < 0x10000) {
        text += static_cast<char16_t>(point);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
}

void AppendUtf8(std::string& bytes, char32_t point)
{
    const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        bytes += static_cast<char>(point);
    } else if (point < 0x800) {
        bytes += static_cast<char>(0xC0 | (point >> 6));
        tail(0);
    } else if (point < 0x10000) {
        bytes += static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | (point >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// Takes one character off the front; the replacement character and one byte when it is malformed.
char32_t TakeUtf8(std::string_view& bytes, bool& clean)
{
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const int extra = lead < 0x80                   ? 0
                      : lead >= 0xC2 && lead < 0xE0 ? 1
                      : lead >= 0xE0 && lead < 0xF0 ? 2
                      : lead >= 0xF0 && lead < 0xF5 ? 3
                                                    : -1;
    if (extra >= 0 && bytes.size() > static_cast<std::size_t>(extra)) {
        static constexpr std::array<char32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
        char32_t point = extra == 0 ? lead : lead & (0x3F >> extra);
        bool whole = true;
        for (int index = 1; index <= extra; ++index) {
            const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(index)]);
            whole = whole && (byte & 0xC0) == 0x80;
            point = (point << 6) | (byte & 0x3F);
        }
        if (whole && point >= kLeast[static_cast<std::size_t>(extra)] && point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF)) {
            bytes.remove_prefix(static_cast<std::size_t>(extra) + 1);
            return point;
        }
    }
    clean = false;
    bytes.remove_prefix(1);
    return kReplacement;
}

}  // namespace

char16_t FromCp1252(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? kUpperHalf[byte - 0x80u] : byte;
}

std::u16string FromCp1252(std::string_view bytes)
{
    std::u16string text;
    for (const char byte : bytes)
        text += FromCp1252(static_cast<unsigned char>(byte));
    return text;
}

std::optional<char> ToCp1252(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto found = std::find(kUpperHalf.begin(), kUpperHalf.end(), unit);
    if (found == kUpperHalf.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - kUpperHalf.begin()));
}

std::string ToCp1252(std::u16string_view text, char substitute, bool* substituted)
{
    std::string bytes;
    if (substituted)
        *substituted = false;
    for (const char16_t unit : text) {
        const std::optional<char> byte = ToCp1252(unit);
        bytes += byte.value_or(substitute);
        if (!byte && substituted)
            *substituted = true;
    }
    return bytes;
}

std::u16string FromUtf8(std::string_view bytes, bool* clean)
{
    std::u16string text;
    bool valid = true;
    while (!bytes.empty())
        AppendUtf16(text, TakeUtf8(bytes, valid));
    if (clean)
        *clean = valid;
    return text;
}

std::string ToUtf8(std::u16string_view text, bool* clean)
{
    std::string bytes;
    bool valid = true;
    for (std::size_t index = 0; index < text.size(); ++index) {
        char32_t point = text[index];
        const bool high = point >= 0xD800 && point < 0xDC00;
        if (high && index + 1 < text.size() && text[index + 1] >= 0xDC00 && text[index + 1] < 0xE000) {
            point = 0x10000 + ((point - 0xD800) << 10) + (text[++index] - 0xDC00u);
        } else if (point >= 0xD800 && point < 0xE000) {
            point = kReplacement;
            valid = false;
        }
        AppendUtf8(bytes, point);
    }
    if (clean)
        *clean = valid;
    return bytes;
}

}  // namespace platform
