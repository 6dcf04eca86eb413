#include "platform/src/text/Case.h"

#include <algorithm>

namespace platform {

char16_t UpperCase(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    if (unit == 0xFF)
        return 0x178;
    if (unit >= 0xE0 && unit <= 0xFE)
        return unit == 0xF7 ? unit : static_cast<char16_t>(unit - 0x20);
    if ((unit >= 0x100 && unit <= 0x137) || (unit >= 0x14A && unit <= 0x177))  // Pairs: the even one is the capital.
        return unit == 0x131 ? u'I' : static_cast<char16_t>(unit & ~1);
    if ((unit >= 0x139 && unit <= 0x148) || (unit >= 0x179 && unit <= 0x17E))  // Pairs: the odd one is the capital.
        return (unit & 1) == 0 ? static_cast<char16_t>(unit - 1) : unit;
    if (unit >= 0x3B1 && unit <= 0x3C9 && unit != 0x3C2)
        return static_cast<char16_t>(unit - 0x20);
    if (unit >= 0x430 && unit <= 0x44F)
        return static_cast<char16_t>(unit - 0x20);
    if (unit >= 0x450 && unit <= 0x45F)
        return static_cast<char16_t>(unit - 0x50);
    return unit;
}

std::u16string UpperCase(std::u16string_view text)
{
    std::u16string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char16_t unit) { return UpperCase(unit); });
    return upper;
}

char16_t LowerCase(char16_t unit)
{
    if (unit == 0x178)
        return 0xFF;
    for (const int distance : {0x20, 1, 0x50}) {  // How far apart the alphabets keep their capitals and small letters.
        const auto small = static_cast<char16_t>(unit + distance);
        if (UpperCase(small) == unit)
            return small;
    }
    return unit;
}

bool SameName(std::u16string_view left, std::u16string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char16_t one, char16_t other) { return UpperCase(one) == UpperCase(other); });
}

}  // namespace platform
