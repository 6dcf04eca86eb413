#include "base/Base64Bytes.h"

#include <algorithm>
#include <array>

namespace base {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<std::uint8_t, 128> decoding = [] {
    std::array<std::uint8_t, 128> table{};
    table.fill(255);
    for (std::uint8_t i = 0; i < 64; ++i)
        table[static_cast<std::uint8_t>(alphabet[i])] = i;
    return table;
}();

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
    Bytes input;
    for (const WCHAR character : text) {
        if (character > 127)
            return {};
        input.push_back(static_cast<std::uint8_t>(character));
    }
    if (input.size() % 4 != 0)
        return {};
    while (!input.empty() && input.back() == '=')
        input.pop_back();
    const std::size_t size = input.size() * 3 / 4;
    for (std::uint8_t& byte : input) {
        if (decoding[byte] > 63)
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

}  // namespace base
