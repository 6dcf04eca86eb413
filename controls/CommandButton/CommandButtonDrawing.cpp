// CommandButtonDrawing: from the properties to the pixels.
#include "controls/CommandButton/CommandButton.h"

#include "controls/CommandButton/CommandButtonCaption.h"
#include "controls/CommandButton/CommandButtonStyles.h"
#include "controls/CommandButton/ThemeButton.h"
#include "controls/Selection.h"
#include "controls/ThemeState.h"

namespace controls {

/// The state as it is drawn: a designer shows buttons hot, a toggle button that is on is pressed, a disabled button is disabled. A new
/// button that nothing has happened to is drawn as normal.
ButtonLook CommandButton::Look()
{
    ButtonLook look;
    look.state = state_ == 0 ? StateNormal : state_;
    if (!Ambient().UserMode() && !ButtonStyleOf(style_).Has(NormalInDesigner))
        look.state = StateHot;
    look.pressedByToggle = buttonType_ == ToggleButton && value_ == 1;
    if (look.pressedByToggle)
        look.state = StatePressed;
    if (!Enabled()) {
        look.state = StateDisabled;
        look.pressedByToggle = false;
    }
    look.isDefault = GetExtender().Default();
    look.hasFocus = hasFocus_;
    look.Resolve({useCustomColors_, backColor_, backColorDisabled_, highLightColor_, contourColor_});
    look.contourStyle = contourStyle_;
    look.gradientDirection = gradientDirection_;
    look.roundedValue = roundedValue_;
    return look;
}

int CommandButton::ContentMargin() const
{
    constexpr int ofNewButton = 4;
    return drawnStyle_ ? drawnStyle_->margin : ofNewButton;
}

void CommandButton::Relayout()
{
    FitFont();
    host::Surface& surface = GetSurface();
    const int width = surface.ScaleWidth();
    const int height = surface.ScaleHeight();
    RECT block = CaptionStart(width, height);
    {
        const HDC dc = surface.Dc();
        const Selection font(dc, narrowedFont_.Get());
        DrawTextW(dc, caption_.c_str(), static_cast<int>(caption_.size()), &block,
                  DT_CALCRECT | DT_WORDBREAK | (rightToLeft_ ? DT_RTLREADING : 0));
    }
    captionPlace_ = PlaceCaption(width, height, block, captionAlign_, ContentMargin(), rightToLeft_);
    if (shown_)
        DrawControl();
    else
        CutWindow(ButtonStyleOf(style_), Look());
}

void CommandButton::CutWindow(const ButtonStyle& drawn, const ButtonLook& look)
{
    const SIZE size{GetSurface().ScaleWidth(), GetSurface().ScaleHeight()};
    windowShape_.Cut(hWnd(), ShapeRegion(OutlineOf(ButtonStyleOf(style_), drawn, look, size)));
}

/// False when there is no theme to draw with.
bool CommandButton::PaintThemed(Canvas& canvas, const ButtonLook& look)
{
    const std::int32_t state = look.hasFocus && look.state == StateNormal ? StateDefaulted : look.state;
    if (!PaintThemeButton(canvas, hWnd(), state, roundedBordersByTheme_ ? &windowShape_ : nullptr))
        return false;
    if (!roundedBordersByTheme_)
        CutWindow(ButtonStyleOf(style_), look);
    return true;
}

void CommandButton::DrawControl()
{
    AnnounceState();
    if (!shown_)
        return;
    const ButtonLook look = Look();
    const bool mayBeThemed = style_ == ThemeStyle && IsThemeAvailable();
    host::Surface& surface = GetSurface();
    if (mayBeThemed)
        surface.BackColor(host::SystemColor(COLOR_BTNFACE));
    else if (look.IsDisabled())
        surface.BackColor(look.ground);
    surface.Clear();

    Canvas canvas(surface.Dc(), surface.ScaleWidth(), surface.ScaleHeight());
    drawnStyle_ = &ButtonStyleOf(style_);
    if (!mayBeThemed || !PaintThemed(canvas, look)) {
        if (style_ == ThemeStyle)
            drawnStyle_ = &ButtonStyleOf(nonThemeStyle_);
        CutWindow(*drawnStyle_, look);
        drawnStyle_->painter(canvas, look);
        if (canvas.Ground() != CLR_INVALID)
            surface.BackColor(canvas.Ground());
    }
    if (look.hasFocus && showFocus_)
        PaintButtonFocus(canvas, *drawnStyle_, look);
    PaintButtonPicture(canvas, *drawnStyle_, look,
                       {pictures_, pictureAlign_, pictureDisabledStyle_, maskColorEnabled_, host::ToRgb(maskColor_)});
    if (captionHide_)
        return;
    const Selection font(canvas.Dc(), narrowedFont_.Get());
    PaintButtonCaption(canvas, look, {caption_, captionPlace_, captionFx_, host::ToRgb(fontColor_), host::ToRgb(fontHighlightColor_)});
}

}  // namespace controls
