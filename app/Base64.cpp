#include "app/Base64.h"

#include <algorithm>

namespace app {

using base::String;
using base::StringView;

namespace {

using Bytes = std::vector<std::uint8_t>;

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
