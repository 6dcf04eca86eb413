#include "base/String.h"

namespace base {

String Trim(StringView text)
{
    const auto first = text.find_first_not_of(TEXT(' '));
    if (first == StringView::npos)
        return {};
    const auto last = text.find_last_not_of(TEXT(' '));
    return String(text.substr(first, last - first + 1));
}

String UpToZero(StringView buffer)
{
    return String(buffer.substr(0, buffer.find(TEXT('\0'))));
}

String ToDecimal(long long number)
{
    const std::string digits = std::to_string(number);
    return String(digits.begin(), digits.end());
}

String ToUpper(StringView text)
{
    String upper(text);
    CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
    return upper;
}

bool EqualsIgnoringCase(StringView left, StringView right)
{
    return left.size() == right.size() && ToUpper(left) == ToUpper(right);
}

std::size_t FindIgnoringCase(StringView text, StringView wanted)
{
    return ToUpper(text).find(ToUpper(wanted));
}

}  // namespace base
