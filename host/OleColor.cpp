#include "host/OleColor.h"

namespace host {

COLORREF ToRgb(OleColor color)
{
    return (color & 0x80000000U) != 0 ? GetSysColor(static_cast<int>(color & 0x00FFFFFFU)) : color;
}

}  // namespace host
