// CommandButtonPainter: drawing on top of a style.
#include "controls/CommandButton/CommandButtonPainter.h"

#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/CommandButtonValues.h"

namespace controls {

namespace {

void DrawCaption(const ButtonLook& look, const CaptionLook& caption, int offset, COLORREF color)
{
    RECT place = caption.place.rectangle;
    OffsetRect(&place, offset, offset);
    SetTextColor(look.dc, color);
    DrawTextW(look.dc, caption.text.c_str(), static_cast<int>(caption.text.size()), &place, caption.place.format);
}

COLORREF CaptionColor(const ButtonLook& look, const CaptionLook& caption)
{
    const bool isGreyed = look.state == StateDisabled && caption.effect != CaptionFxNone;
    if (isGreyed)
        return GetSysColor(COLOR_GRAYTEXT);
    if (!look.useCustomColors)
        return GetSysColor(COLOR_BTNTEXT);
    const bool isLit = look.state == StateHot || look.state == StateDefaulted;
    return host::ToRgb(isLit ? caption.fontHighlightColor : caption.fontColor);
}

void PaintEffect(const ButtonLook& look, const CaptionLook& caption)
{
    const COLORREF grey = Shift(0xE0E0E0, -40);
    const COLORREF white = Shift(0xE0E0E0, 40);
    if (caption.effect == CaptionFxNone)
        return;
    DrawCaption(look, caption, 1, caption.effect == CaptionFxSunken ? white : grey);
    if (caption.effect == CaptionFxRaised)
        DrawCaption(look, caption, -1, white);
    else if (caption.effect == CaptionFxSunken)
        DrawCaption(look, caption, -1, grey);
}

}  // namespace

void PaintButtonFocus(const ButtonLook& look, int inset)
{
    const int lost = look.pressedByToggle ? 0 : 1;
    const RECT rectangle{inset, inset, look.width - lost - inset, look.height - lost - inset};
    // DrawFocusRect mixes the DC's text and background colours into what is there.
    SetTextColor(look.dc, RGB(0, 0, 0));
    SetBkColor(look.dc, RGB(255, 255, 255));
    DrawFocusRect(look.dc, &rectangle);
}

void PaintButtonCaption(const ButtonLook& look, const CaptionLook& caption)
{
    SetBkMode(look.dc, TRANSPARENT);
    PaintEffect(look, caption);
    if (look.state == StateDisabled && caption.effect == CaptionFxNone) {
        DrawCaption(look, caption, 1, Shift(GetSysColor(COLOR_3DLIGHT), 40));
        DrawCaption(look, caption, 0, GetSysColor(COLOR_BTNSHADOW));
    } else {
        DrawCaption(look, caption, 0, CaptionColor(look, caption));
    }
}

}  // namespace controls
