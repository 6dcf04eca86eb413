#include "controls/CommandButton/CommandButtonCaption.h"

#include "controls/ColorArithmetic.h"

namespace controls {

namespace {

void DrawCaption(Canvas& canvas, const CaptionLook& caption, int offset, COLORREF color)
{
    RECT place = caption.place.rectangle;
    OffsetRect(&place, offset, offset);
    SetTextColor(canvas.Dc(), color);
    DrawTextW(canvas.Dc(), caption.text.c_str(), static_cast<int>(caption.text.size()), &place, caption.place.format);
}

COLORREF CaptionColor(const ButtonLook& look, const CaptionLook& caption)
{
    if (look.IsDisabled())
        return GetSysColor(COLOR_GRAYTEXT);
    if (!look.useCustomColors)
        return GetSysColor(COLOR_BTNTEXT);
    const bool isLit = look.IsHot() || look.state == StateDefaulted;
    return isLit ? caption.fontHighlightColor : caption.fontColor;
}

void PaintEffect(Canvas& canvas, const CaptionLook& caption)
{
    const COLORREF grey = Shift(0xE0E0E0, -40);
    const COLORREF white = Shift(0xE0E0E0, 40);
    if (caption.effect == CaptionFxNone)
        return;
    DrawCaption(canvas, caption, 1, caption.effect == CaptionFxSunken ? white : grey);
    if (caption.effect == CaptionFxRaised)
        DrawCaption(canvas, caption, -1, white);
    else if (caption.effect == CaptionFxSunken)
        DrawCaption(canvas, caption, -1, grey);
}

}  // namespace

void PaintButtonCaption(Canvas& canvas, const ButtonLook& look, const CaptionLook& caption)
{
    SetBkMode(canvas.Dc(), TRANSPARENT);
    PaintEffect(canvas, caption);
    // Light and shadow of an engraving need a face that is neither: in a dark scheme both would be light, as text that is not greyed.
    if (look.IsDisabled() && caption.effect == CaptionFxNone && !look.isSchemeDark) {
        DrawCaption(canvas, caption, 1, Shift(GetSysColor(COLOR_3DLIGHT), 40));
        DrawCaption(canvas, caption, 0, GetSysColor(COLOR_BTNSHADOW));
    } else {
        DrawCaption(canvas, caption, 0, CaptionColor(look, caption));
    }
}

}  // namespace controls
