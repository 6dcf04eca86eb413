// CommandButtonPicture: which picture, with which effect, where.
#include "controls/CommandButton/CommandButtonPicture.h"

#include "controls/CommandButton/CommandButtonLayout.h"
#include "controls/PictureEffects.h"
#include "controls/Selection.h"

#include "base/Handles.h"

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

void CopyBitmap(HDC target, HBITMAP bitmap, SIZE size)
{
    const base::MemoryDc source(CreateCompatibleDC(target));
    if (!source)
        return;
    const Selection shown(source.Get(), bitmap);
    BitBlt(target, 0, 0, size.cx, size.cy, source.Get(), 0, 0, SRCCOPY);
}

/// An icon is drawn over a copy of the button, into which its soft edges blend; where its mask is white it is open.
std::optional<CoveredPixels> Render(HDC dc, const host::Picture& picture, POINT place)
{
    const SIZE size = picture.Size();
    std::vector<bool> covered(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy), true);
    if (picture.GetType() == host::PictureType::Bitmap) {
        auto colors = RenderPixels(dc, size, [&](HDC target) { CopyBitmap(target, picture.Bitmap(), size); });
        return colors ? std::optional(CoveredPixels{std::move(*colors), std::move(covered)}) : std::nullopt;
    }
    auto colors = RenderPixels(dc, size, [&](HDC target) {
        BitBlt(target, 0, 0, size.cx, size.cy, dc, place.x, place.y, SRCCOPY);
        DrawIconEx(target, 0, 0, picture.Icon(), size.cx, size.cy, 0, nullptr, DI_NORMAL);
    });
    const auto open =
        RenderPixels(dc, size, [&](HDC target) { DrawIconEx(target, 0, 0, picture.Icon(), size.cx, size.cy, 0, nullptr, DI_MASK); });
    if (!colors || !open)
        return std::nullopt;
    for (std::size_t index = 0; index < covered.size(); ++index)
        covered[index] = (open->values[index] & 0xFFFFFF) == 0;
    return CoveredPixels{std::move(*colors), std::move(covered)};
}

void OpenMaskColor(CoveredPixels& picture, std::uint32_t mask)
{
    for (std::size_t index = 0; index < picture.covered.size(); ++index) {
        if ((picture.colors.values[index] & 0xFFFFFF) == mask)
            picture.covered[index] = false;
    }
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
    std::optional<CoveredPixels> pixels = Render(canvas.Dc(), *chosen, place);
    if (!pixels)
        return;
    if (picture.hasMask)
        OpenMaskColor(*pixels, AsPixel(GetNearestColor(canvas.Dc(), picture.mask)));

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
