// Faces made of layers: each style is one recipe a state.
#include "controls/ColorArithmetic.h"
#include "controls/CommandButton/styles/ButtonPainters.h"
#include "controls/CommandButton/styles/ButtonSkin.h"

namespace controls {

namespace {

constexpr COLORREF white = 0xFFFFFF;

constexpr SkinRim Plain(COLORREF color)
{
    return {color, color};
}

/// One ramp from the top to the bottom.
std::vector<SkinBand> Ramp(COLORREF first, COLORREF last)
{
    return {{100, first, last}};
}

/// Two ramps that meet in the middle.
std::vector<SkinBand> Halves(COLORREF first, COLORREF middle, COLORREF lower, COLORREF last)
{
    return {{50, first, middle}, {100, lower, last}};
}

void PaintFaded(Canvas& canvas, const ButtonLook& look, const ButtonSkin& skin)
{
    PaintSkin(canvas, look.IsDisabled() ? skin.FadedTo(look.back) : skin);
}

ButtonSkin GlossSkin(const ButtonLook& look)
{
    ButtonSkin skin{.shape = ButtonShape::Gloss, .outside = look.back};
    const bool isLit = look.IsHot() || look.state == StateDefaulted || (look.hasFocus && look.state == StateNormal);
    if (look.IsPressed()) {
        skin.rims = {Plain(0xCC9B6A), Plain(0xD0A175)};
        skin.bands = Halves(0xE0E0E0, 0xE8E8E8, 0xF0F0F0, 0xFAFAFA);
    } else {
        skin.rims = isLit ? std::vector{Plain(0xE2A66A), Plain(0xE6AC76)} : std::vector{Plain(0xA0A0A0), Plain(0xFEFEFE)};
        skin.bands = Halves(0xFEFEFE, 0xF4F4F4, 0xEAEAEA, 0xE0E0E0);
    }
    // The curve of the corner, softened on both its sides.
    const COLORREF rim = skin.rims.front().topLeft;
    skin.dots = {{2, 2, Mix(rim, skin.rims.back().topLeft)}, {4, 1, Mix(rim, skin.rims.back().topLeft)}};
    return skin;
}

ButtonSkin PanelSkin(const ButtonLook& look)
{
    ButtonSkin skin{.shape = ButtonShape::SoftCorners, .outside = look.back};
    if (look.useCustomColors) {
        const COLORREF shade = look.IsHot() || look.IsPressed() ? look.highlight : Darken(look.back, 20);
        skin.rims = {Plain(Mix(look.back, white)), {shade, Darken(shade, 10)}};
        skin.bands = Ramp(look.back, Darken(look.back, 8));
    } else {
        skin.rims = {Plain(0xFBFBFB), {0xE9E2C5, Darken(0xE9E2C5, 32)}};
        if (look.IsHot())
            skin.rims.back() = {0xE6AC76, 0xE2A66A};
        if (look.IsPressed())
            skin.rims.back() = Plain(0xE2A66A);
        skin.bands = Halves(0xEBE8EA, 0xEAE7E8, 0xEAE7E8, 0xE8EBE9);
    }
    if (look.IsPressed())
        skin.bands = Ramp(Darken(skin.bands.front().first, 24), skin.bands.back().last);
    return skin;
}

ButtonSkin WarmSkin(const ButtonLook& look)
{
    COLORREF upper = 0xF6E4C2;
    COLORREF lower = 0xF0D29A;
    if (look.IsHot()) {
        upper = 0xFFEECD;
        lower = 0xFAD68F;
    } else if (look.IsPressed()) {
        upper = 0xFDE1AC;
        lower = ShiftByFraction(upper, -0.08);
    }
    ButtonSkin skin{.outside = look.back};
    const COLORREF edge = ShiftByFraction(lower, -0.25);
    skin.rims = {Plain(edge), Plain(Mix(upper, white))};
    if (look.IsPressed())
        skin.rims.back() = Plain(ShiftByFraction(lower, -0.06));
    skin.bands = Ramp(upper, lower);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    skin.dots = {{0, 0, face}, {1, 0, Mix(edge, face)}, {0, 1, Mix(edge, face)}};
    return skin;
}

ButtonSkin GlowSkin(const ButtonLook& look)
{
    ButtonSkin skin{.outside = look.back};
    if (look.IsPressed()) {
        skin.rims = {Plain(ShiftByFraction(0x51AFFF, -0.34))};
        skin.bands = Halves(0x51AFFF, 0x5FD3FF, 0x468FFF, 0x52B1FF);
    } else if (look.IsHot()) {
        skin.rims = {Plain(ShiftByFraction(0x6FC0FF, -0.34))};
        skin.bands = Halves(0x6FC0FF, 0xA9D9FF, 0x3FABFF, 0x74C2FF);
    } else {
        skin.rims = {Plain(ShiftByFraction(look.back, -0.17))};
        skin.bands = Halves(ShiftByFraction(look.back, 0.07), look.back, look.back, look.back);
    }
    return skin;
}

/// The shades of silver, or of the button's own colour.
struct Silver {
    COLORREF rim, light, middle, dark, hotLight, hotDark;
};

Silver SilverOf(const ButtonLook& look)
{
    if (!look.useCustomColors)
        return {0xA28B6A, 0xDBE2E3, 0xC7D5D8, 0xCAC7BF, 0xF6D4BC, 0xE4AD89};
    return {Darken(look.back, 90), Shift(look.back, 20), look.back, Darken(look.back, 20), Tint(look.highlight, 96), look.highlight};
}

ButtonSkin SilverSkin(const ButtonLook& look)
{
    const auto [rim, light, middle, dark, hotLight, hotDark] = SilverOf(look);
    ButtonSkin skin{.shape = ButtonShape::ClippedCorners, .outside = look.back};
    if (look.IsPressed()) {
        skin.rims = {Plain(rim), {dark, light}};
        skin.bands = Ramp(dark, light);
    } else {
        skin.rims = {Plain(rim), look.IsHot() ? SkinRim{hotLight, hotDark} : SkinRim{Mix(light, white), middle}};
        skin.bands = Halves(light, Mix(light, dark), dark, light);
    }
    return skin;
}

ButtonSkin SystemShadeSkin(const ButtonLook& look)
{
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    ButtonSkin skin{.shape = ButtonShape::ClippedCorners, .outside = look.back};
    if (look.IsPressed()) {
        skin.rims = {Plain(Darken(highlight, 40))};
        skin.bands = Ramp(Tint(highlight, 160), Tint(highlight, 208));
    } else if (look.IsHot()) {
        skin.rims = {Plain(highlight)};
        skin.bands = Ramp(Tint(highlight, 208), Tint(highlight, 160));
    } else {
        skin.rims = {Plain(GetSysColor(COLOR_BTNSHADOW))};
        skin.bands = Ramp(Tint(face, 96), face);
    }
    return skin;
}

}  // namespace

void PaintGlossStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintFaded(canvas, look, GlossSkin(look));
}

void PaintPanelStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintFaded(canvas, look, PanelSkin(look));
}

void PaintWarmStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintFaded(canvas, look, WarmSkin(look));
}

void PaintGlowStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintSkin(canvas, GlowSkin(look));
}

void PaintSilverStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintFaded(canvas, look, SilverSkin(look));
}

void PaintSystemShadeStyle(Canvas& canvas, const ButtonLook& look)
{
    PaintFaded(canvas, look, SystemShadeSkin(look));
}

}  // namespace controls
