#include "controls/CommandButton/CommandButtonLook.h"

#include "controls/ColorArithmetic.h"
#include "controls/TranslateOleColor.h"

namespace controls {

void ButtonLook::Resolve(const ButtonColors& colors)
{
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const auto custom = [&](host::OleColor color) { return colors.custom ? host::ToRgb(color) : face; };
    useCustomColors = colors.custom;
    isSchemeDark = IsLighter(GetSysColor(COLOR_BTNTEXT), face);
    ground = custom(colors.backDisabled);
    back = TranslateOleColor(IsDisabled() ? colors.backDisabled : colors.back);
    customBack = custom(colors.back);
    customHighlight = custom(colors.highlight);
    highlight = host::ToRgb(colors.highlight);
    contour = host::ToRgb(colors.contour);
}

}  // namespace controls
