#include "app/Base64.h"

#include <algorithm>
#include <array>

namespace app {

using base::String;
using base::StringView;

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<std::uint8_t, 128> decoding = [] {
    std::array<std::uint8_t, 128> table = {};
    table.fill(255);
    for (std::uint8_t i = 0; i < 64; ++i)
        table[static_cast<std::size_t>(alphabet[i])] = i;
    return table;
}();

Bytes Narrow(StringView text)
{
    Bytes bytes;
    for (const WCHAR character : text)
        bytes.push_back(character <= 255 ? static_cast<std::uint8_t>(character) : '?');
    return bytes;
}

Bytes WideBytes(StringView text)
{
    Bytes bytes;
    for (const WCHAR character : text) {
        bytes.push_back(static_cast<std::uint8_t>(character & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(character >> 8));
    }
    return bytes;
}

String FromWideBytes(const Bytes& bytes)
{
    String text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += static_cast<WCHAR>(bytes[i] | bytes[i + 1] << 8);
    return text;
}

}  // namespace

String Base64EncodeBytes(const Bytes& bytes, std::int32_t count)
{
    const std::size_t size = count == -1 ? bytes.size() : std::min(bytes.size(), static_cast<std::size_t>(std::max(count, 0)));
    const auto at = [&](std::size_t i) { return i < size ? bytes[i] : 0; };
    const std::size_t significant = (4 * size + 2) / 3;
    String text;
    for (std::size_t i = 0; i < size; i += 3) {
        const int group = at(i) << 16 | at(i + 1) << 8 | at(i + 2);
        for (int shift = 18; shift >= 0; shift -= 6)
            text += text.size() < significant ? static_cast<WCHAR>(alphabet[group >> shift & 63]) : TEXT('=');
    }
    return text;
}

Bytes Base64DecodeBytes(StringView text)
{
    Bytes input = Narrow(text);
    if (input.size() % 4 != 0)
        return {};
    while (!input.empty() && input.back() == '=')
        input.pop_back();
    const std::size_t size = input.size() * 3 / 4;
    for (std::uint8_t& byte : input) {
        if (byte > 127 || decoding[byte] > 63)
            return {};
        byte = decoding[byte];
    }
    const auto at = [&](std::size_t i) { return i < input.size() ? input[i] : 0; };
    Bytes output;
    for (std::size_t i = 0; i < input.size(); i += 4) {
        const int group = at(i) << 18 | at(i + 1) << 12 | at(i + 2) << 6 | at(i + 3);
        for (int shift = 16; shift >= 0 && output.size() < size; shift -= 8)
            output.push_back(static_cast<std::uint8_t>(group >> shift));
    }
    return output;
}

String Base64Encode(StringView text, std::int32_t mode)
{
    if (text.empty())
        return {};
    switch (mode) {
        case Base64Wide:
            return Base64EncodeBytes(WideBytes(text));
        case Base64Narrow:
            return Base64EncodeBytes(Narrow(text));
        default:
            return NeedsWideChars(text) ? TEXT('W') + Base64Encode(text, Base64Wide) : TEXT('A') + Base64Encode(text, Base64Narrow);
    }
}

String Base64Decode(StringView text, std::int32_t mode)
{
    if (mode == Base64Wide)
        return FromWideBytes(Base64DecodeBytes(text));
    if (mode == Base64Narrow) {
        const Bytes bytes = Base64DecodeBytes(text);
        return String(bytes.begin(), bytes.end());
    }
    if (text.size() >= 2 && text.front() == TEXT('W'))
        return Base64Decode(text.substr(1), Base64Wide);
    if (text.size() >= 2 && text.front() == TEXT('A'))
        return Base64Decode(text.substr(1), Base64Narrow);
    return {};
}

bool NeedsWideChars(StringView text)
{
    return std::any_of(text.begin(), text.end(), [](WCHAR character) { return character > 255; });
}

}  // namespace app
