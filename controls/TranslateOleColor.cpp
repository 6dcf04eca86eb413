#include "controls/TranslateOleColor.h"

#include <olectl.h>

namespace controls {

COLORREF TranslateOleColor(OleColor color)
{
    COLORREF rgb = 0;
    return SUCCEEDED(OleTranslateColor(color, nullptr, &rgb)) ? rgb : CLR_INVALID;
}

}  // namespace controls
