// TextBoxEditStyle: https://learn.microsoft.com/windows/win32/controls/edit-control-styles
#include "controls/TextBox/TextBoxEditStyle.h"

#include "controls/TextBox/TextBoxValues.h"

namespace controls {

bool ScrollsSideways(std::int32_t scrollBars)
{
    return scrollBars == HorizontalScrollBar || scrollBars == BothScrollBars;
}

DWORD LineBits(bool multiLine, std::int32_t scrollBars)
{
    if (!multiLine)
        return ES_AUTOHSCROLL;
    DWORD bits = ES_MULTILINE | ES_AUTOVSCROLL;
    if (ScrollsSideways(scrollBars))
        bits |= WS_HSCROLL | ES_AUTOHSCROLL;
    if (scrollBars == VerticalScrollBar || scrollBars == BothScrollBars)
        bits |= WS_VSCROLL;
    return bits;
}

DWORD CaseBits(std::uint8_t caseStyle)
{
    return caseStyle == CaseUpper ? ES_UPPERCASE : caseStyle == CaseLower ? ES_LOWERCASE : 0;
}

}  // namespace controls
