// DeviceContext: coordinates, clipping, raster operations and filling.
#include "platform/src/gdi/DeviceContext.h"

#include <winerror.h>

namespace platform {

DeviceContext::DeviceContext(Graphics& graphics) : memory_(true)
{
    SelectDefaults(graphics);
    const auto handle = static_cast<HBITMAP>(graphics.StockObject(Graphics::kDefaultBitmap));
    SelectBitmap(handle, SimPc::Current().Handles().Find<Bitmap>(handle));
}

DeviceContext::DeviceContext(Graphics& graphics, std::shared_ptr<Image> pixels, POINT origin, Region visible, HWND window)
    : window_(window), pixels_(std::move(pixels)), origin_(origin), visible_(std::move(visible))
{
    SelectDefaults(graphics);
}

void DeviceContext::SelectDefaults(Graphics& graphics)
{
    const HandleTable& handles = SimPc::Current().Handles();
    const auto stock = [&]<class T>(Selected<T>& place, int index) {
        const HGDIOBJ handle = graphics.StockObject(index);
        place = Selected<T>(handle, handles.Find<T>(handle));
    };
    stock(state.pen, BLACK_PEN);
    stock(state.brush, WHITE_BRUSH);
    stock(state.font, SYSTEM_FONT);
}

void DeviceContext::Move(std::shared_ptr<Image> pixels, POINT origin, Region visible)
{
    pixels_ = std::move(pixels);
    origin_ = origin;
    visible_ = std::move(visible);
    ClipChanged();
}

void DeviceContext::SelectBitmap(HBITMAP handle, std::shared_ptr<Bitmap> bitmap)
{
    Move(bitmap->image, {0, 0}, Region(bitmap->image->Bounds()));
    state.bitmap = Selected<Bitmap>(handle, std::move(bitmap));
}

POINT DeviceContext::ToImage(POINT logical) const
{
    return {logical.x + state.viewport.x + origin_.x, logical.y + state.viewport.y + origin_.y};
}

RECT DeviceContext::ToImage(const RECT& logical) const
{
    const POINT first = ToImage(POINT{logical.left, logical.top});
    const POINT last = ToImage(POINT{logical.right, logical.bottom});
    return {first.x, first.y, last.x, last.y};
}

const Region& DeviceContext::Clip()
{
    // The owner of the pixels may have given them another size in the meantime.
    if (!clip_ || clippedFor_.right != pixels_->width || clippedFor_.bottom != pixels_->height) {
        clippedFor_ = pixels_->Bounds();
        clip_ = visible_.Intersect(Region(clippedFor_));
        if (state.clip)
            clip_ = clip_->Intersect(state.clip->Offset(origin_.x, origin_.y));
    }
    return *clip_;
}

std::uint32_t DeviceContext::PixelOf(COLORREF color) const
{
    const std::uint32_t pixel = SwapRedBlue(color);
    if (!IsMonochrome())
        return pixel;
    const std::uint32_t brightness = (pixel >> 16) * 30 + (pixel >> 8 & 0xFF) * 59 + (pixel & 0xFF) * 11;
    return brightness >= 128 * 100 ? 0xFFFFFF : 0;
}

std::uint32_t DeviceContext::BrushPixel(const Brush& brush, int x, int y) const
{
    if (brush.style != BS_PATTERN)
        return PixelOf(brush.color);
    const Image& pattern = brush.pattern;
    const auto wrapped = [](int value, int size) { return (value % size + size) % size; };
    const std::uint32_t pixel = pattern.At(wrapped(x - origin_.x, pattern.width), wrapped(y - origin_.y, pattern.height));
    // A monochrome pattern takes the text colour for its zeros and the background colour for its ones.
    return pattern.bitsPerPixel == 1 ? PixelOf(pixel ? state.backColor : state.textColor) : pixel;
}

void DeviceContext::Put(int x, int y, std::uint32_t pixel, int rop2)
{
    if (!Clip().Contains({x, y}))
        return;
    std::uint32_t& target = Target().At(x, y);
    target = ApplyRop2(rop2, pixel, target);
}

void DeviceContext::Fill(const Region& area, const Brush& brush, int rop2)
{
    if (brush.style == BS_NULL)
        return;
    for (const RECT& part : area.Rectangles())
        ForEach(part, [&](int x, int y, std::uint32_t& pixel) { pixel = ApplyRop2(rop2, BrushPixel(brush, x, y), pixel); });
}

void DeviceContext::Fill(const RECT& area, COLORREF color)
{
    const std::uint32_t filling = PixelOf(color);
    ForEach(area, [filling](int, int, std::uint32_t& pixel) { pixel = filling; });
}

HDC OpenDc(std::shared_ptr<Image> pixels, POINT origin, const Region& visible, HWND window)
{
    Graphics& graphics = SimPc::Current().Get<Graphics>();
    return OpenObject<HDC>(std::make_shared<DeviceContext>(graphics, std::move(pixels), origin, visible, window));
}

bool CloseDc(HDC dc)
{
    HandleTable& handles = SimPc::Current().Handles();
    const auto found = handles.Find<DeviceContext>(dc);
    if (!found)
        return false;
    // Somebody who still draws may keep the device context alive; what it holds is free from now on.
    found->state = {};
    return handles.Close<DeviceContext>(dc);
}

void MoveDc(HDC dc, std::shared_ptr<Image> pixels, POINT origin, const Region& visible)
{
    if (const auto found = SimPc::Current().Handles().Find<DeviceContext>(dc))
        found->Move(std::move(pixels), origin, visible);
}

std::shared_ptr<DeviceContext> FindDc(HDC dc)
{
    SimPc& pc = SimPc::Current();
    auto found = pc.Handles().Find<DeviceContext>(dc);
    if (!found)
        pc.LastError(ERROR_INVALID_HANDLE);
    return found;
}

std::uint32_t ApplyRop2(int rop2, std::uint32_t pen, std::uint32_t target)
{
    if (rop2 == R2_COPYPEN)
        return pen;
    // The operation's number less one is its truth table, with the pen as the high bit of the index and the target as the low one.
    const int table = rop2 - 1;
    std::uint32_t result = 0;
    if (table & 1)
        result |= ~pen & ~target;
    if (table & 2)
        result |= ~pen & target;
    if (table & 4)
        result |= pen & ~target;
    if (table & 8)
        result |= pen & target;
    return result & 0xFFFFFF;
}

std::uint32_t ApplyRop3(DWORD rop, std::uint32_t pattern, std::uint32_t source, std::uint32_t target)
{
    // The third byte is the truth table over pattern, source and target, from the high bit of its index to the low one.
    const DWORD table = rop >> 16 & 0xFF;
    if (table == 0xCC)
        return source;
    std::uint32_t result = 0;
    for (unsigned index = 0; index < 8; ++index)
        if (table >> index & 1)
            result |= (index & 4 ? pattern : ~pattern) & (index & 2 ? source : ~source) & (index & 1 ? target : ~target);
    return result & 0xFFFFFF;
}

}  // namespace platform
