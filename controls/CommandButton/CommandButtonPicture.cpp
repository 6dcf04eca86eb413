#include "controls/CommandButton/CommandButtonPicture.h"

#include "controls/CommandButton/CommandButtonLayout.h"
#include "controls/PictureEffects.h"

namespace controls {

namespace {

constexpr std::uint32_t shadowGrey = 0x808080;

bool Has(const std::shared_ptr<host::Picture>& picture)
{
    return picture && picture->GetType() != host::PictureType::None;
}

ButtonPicture PictureOf(std::int32_t state)
{
    switch (state) {
        case StateHot:
            return OverPicture;
        case StatePressed:
            return DownPicture;
        case StateDisabled:
            return DisabledPicture;
        default:
            return NormalPicture;
    }
}

PictureEffect EffectOf(const ButtonLook& look, bool standsIn, std::int32_t disabledStyle)
{
    if (look.IsHot())
        return {.brightness = &lighter};
    if (look.IsPressed())
        return {.brightness = &darker};
    if (look.IsDisabled() && standsIn && disabledStyle == DisabledPictureFaded)
        return {.opacity = 52};
    if (look.IsDisabled() && standsIn && disabledStyle == DisabledPictureGrey)
        return {.grey = true, .opacity = 191};
    return {};
}

/// An icon is drawn over a copy of the button, into which its soft edges blend; where its mask is white it is open.
std::optional<Pixels> RenderIcon(HDC dc, const host::Picture& picture, POINT place, std::uint32_t open)
{
    const SIZE size = picture.Size();
    const auto draw = [&](HDC target, UINT part) { DrawIconEx(target, 0, 0, picture.Icon(), size.cx, size.cy, 0, nullptr, part); };
    auto pixels = RenderPixels(dc, size, [&](HDC target) {
        BitBlt(target, 0, 0, size.cx, size.cy, dc, place.x, place.y, SRCCOPY);
        draw(target, DI_NORMAL);
    });
    const auto mask = RenderPixels(dc, size, [&](HDC target) { draw(target, DI_MASK); });
    if (!pixels || !mask)
        return std::nullopt;
    CoverAllBut(*pixels, open);
    for (std::size_t index = 0; index < mask->values.size(); ++index) {
        if ((mask->values[index] & ~covered) != 0)
            pixels->values[index] = 0;
    }
    return pixels;
}

/// The pixels of a picture, with those marked that are seen.
std::optional<Pixels> Render(HDC dc, const host::Picture& picture, POINT place, const PictureLook& look)
{
    const std::uint32_t open = look.hasMask ? AsPixel(GetNearestColor(dc, look.mask)) : noColor;
    if (picture.GetType() == host::PictureType::Icon)
        return RenderIcon(dc, picture, place, open);
    std::optional<Pixels> pixels = ReadBitmap(dc, picture.Bitmap(), picture.Size());
    if (pixels)
        CoverAllBut(*pixels, open);
    return pixels;
}

}  // namespace

void PaintButtonPicture(Canvas& canvas, const ButtonStyle& style, const ButtonLook& look, const PictureLook& picture)
{
    const ButtonPicture wanted = PictureOf(look.state);
    const bool standsIn = !Has(picture.pictures[wanted]);
    const std::shared_ptr<host::Picture> chosen = picture.pictures[standsIn ? NormalPicture : wanted];
    if (!Has(chosen))
        return;
    const SIZE size = chosen->Size();
    if (size.cx <= 0 || size.cy <= 0)
        return;
    const POINT place = PlacePicture(canvas.Width(), canvas.Height(), size, picture.align, style.margin, look.IsPressed());
    std::optional<Pixels> pixels = Render(canvas.Dc(), *chosen, place, picture);
    if (!pixels)
        return;

    const bool lifted = look.IsHot() && style.Has(LiftsHotPicture);
    const LONG lift = lifted ? 1 : 0;
    const RECT block{place.x - lift, place.y - lift, place.x + size.cx, place.y + size.cy};
    std::optional<Pixels> under = ReadPixels(canvas.Dc(), block);
    if (!under)
        return;
    if (lifted)
        CastShadow(*under, 1, 1, *pixels, shadowGrey);
    Composite(*under, 0, 0, *pixels, EffectOf(look, standsIn, picture.disabledStyle));
    DrawPixels(canvas.Dc(), block.left, block.top, *under);
}

}  // namespace controls
