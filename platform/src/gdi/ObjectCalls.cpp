// Making, selecting, describing and deleting GDI objects.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"

#include <windows.h>

#include <cstring>

using namespace platform;

HPEN WINAPI CreatePen(int style, int width, COLORREF color)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, style, width, color);
    auto pen = std::make_shared<Pen>();
    pen->style = style;
    pen->width = std::max(width, 1);
    pen->color = color;
    return OpenObject<HPEN>(std::move(pen));
}

HPEN WINAPI ExtCreatePen(DWORD style, DWORD width, const LOGBRUSH* brush, DWORD dashCount, const DWORD* dashes)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, style, width, brush, dashCount, dashes);
    SimPc& pc = SimPc::Current();
    if (!brush || width != 1)
        return pc.Fail(ERROR_INVALID_PARAMETER, HPEN{});
    if (style != (PS_COSMETIC | PS_ALTERNATE) || brush->lbStyle != BS_SOLID || dashCount != 0) {
        pc.Unsupported("ExtCreatePen: style " + std::to_string(style));
        return nullptr;
    }
    auto pen = std::make_shared<Pen>();
    pen->style = PS_ALTERNATE;
    pen->color = brush->lbColor;
    return OpenObject<HPEN>(std::move(pen));
}

HBRUSH WINAPI CreateSolidBrush(COLORREF color)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, color);
    auto brush = std::make_shared<Brush>();
    brush->color = color;
    return OpenObject<HBRUSH>(std::move(brush));
}

HBRUSH WINAPI CreatePatternBrush(HBITMAP bitmap)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, bitmap);
    const auto source = SimPc::Current().Handles().Find<Bitmap>(bitmap);
    if (!source)
        return nullptr;
    auto brush = std::make_shared<Brush>();
    brush->style = BS_PATTERN;
    brush->pattern = *source->image;
    return OpenObject<HBRUSH>(std::move(brush));
}

HFONT WINAPI CreateFontIndirectW(const LOGFONTW* font)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, font ? font->lfFaceName : nullptr, font ? font->lfHeight : 0, font ? font->lfWeight : 0);
    if (!font)
        return nullptr;
    auto object = std::make_shared<Font>();
    object->description = *font;
    return OpenObject<HFONT>(std::move(object));
}

HGDIOBJ WINAPI GetStockObject(int index)
{
    SIM_NOTE(index);
    return index > DC_PEN ? nullptr : SimPc::Current().Get<Graphics>().StockObject(index);
}

HGDIOBJ WINAPI SelectObject(HDC dc, HGDIOBJ object)
{
    SIM_NOTE(dc, object);
    const auto context = FindDc(dc);
    if (!context)
        return nullptr;
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<GdiObject>(object);
    const auto select = [&]<class T>(Selected<T>& place, std::shared_ptr<T> value) {
        const HGDIOBJ before = place.Handle();
        place = Selected<T>(object, std::move(value));
        return before;
    };
    if (auto pen = std::dynamic_pointer_cast<Pen>(found))
        return select(context->state.pen, std::move(pen));
    if (auto brush = std::dynamic_pointer_cast<Brush>(found))
        return select(context->state.brush, std::move(brush));
    if (auto font = std::dynamic_pointer_cast<Font>(found))
        return select(context->state.font, std::move(font));
    if (auto region = std::dynamic_pointer_cast<RegionObject>(found)) {
        // A region is copied as the clip and reports its kind instead of an earlier object.
        context->state.clip = region->region;
        context->ClipChanged();
        return reinterpret_cast<HGDIOBJ>(static_cast<ULONG_PTR>(region->region.Kind()));
    }
    if (auto bitmap = std::dynamic_pointer_cast<Bitmap>(found)) {
        // A bitmap fits memory device contexts only, and one at a time.
        const HGDIOBJ before = context->state.bitmap.Handle();
        if (!context->IsMemory() || (before != object && bitmap->selections > 0 && !bitmap->stock))
            return nullptr;
        context->SelectBitmap(static_cast<HBITMAP>(object), std::move(bitmap));
        return before;
    }
    return pc.Fail(ERROR_INVALID_HANDLE, nullptr);
}

BOOL WINAPI DeleteObject(HGDIOBJ object)
{
    SIM_NOTE(object);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<GdiObject>(object);
    if (!found)
        return FALSE;
    // Stock objects stay, and succeed. What is still selected somewhere stays too.
    if (found->stock)
        return TRUE;
    return found->selections == 0 && pc.Handles().Close<GdiObject>(object);
}

HGDIOBJ WINAPI GetCurrentObject(HDC dc, UINT type)
{
    SIM_NOTE(dc, type);
    const auto context = FindDc(dc);
    if (!context)
        return nullptr;
    switch (type) {
        case OBJ_PEN:
            return context->state.pen.Handle();
        case OBJ_BRUSH:
            return context->state.brush.Handle();
        case OBJ_FONT:
            return context->state.font.Handle();
        case OBJ_BITMAP:
            return context->state.bitmap.Handle();
        default:
            SimPc::Current().Unsupported("GetCurrentObject: type " + std::to_string(type));
            return nullptr;
    }
}

namespace {

/// Hands a record out as GetObjectW does: as many bytes as fit, or its size when there is no buffer.
template <class T>
int HandOut(const T& record, int size, LPVOID buffer)
{
    if (!buffer)
        return sizeof(T);
    const int copied = std::min(size, static_cast<int>(sizeof(T)));
    std::memcpy(buffer, &record, static_cast<std::size_t>(copied));
    return copied;
}

int DescribeBitmap(const Bitmap& bitmap, int size, LPVOID buffer)
{
    const Image& image = *bitmap.image;
    const LONG rowBytes = (image.width * image.bitsPerPixel + 15) / 16 * 2;
    DIBSECTION section{};
    section.dsBm = {0, image.width, image.height, rowBytes, 1, static_cast<WORD>(image.bitsPerPixel), nullptr};
    if (!bitmap.isDibSection)
        return HandOut(section.dsBm, size, buffer);
    section.dsBm.bmBits = bitmap.image->pixels.data();
    section.dsBmih = {sizeof(BITMAPINFOHEADER),
                      image.width,
                      image.bottomUp ? image.height : -image.height,
                      1,
                      32,
                      BI_RGB,
                      static_cast<DWORD>(rowBytes * image.height),
                      0,
                      0,
                      0,
                      0};
    return buffer && size < static_cast<int>(sizeof(DIBSECTION)) ? HandOut(section.dsBm, size, buffer) : HandOut(section, size, buffer);
}

}  // namespace

int WINAPI GetObjectW(HANDLE object, int size, LPVOID buffer)
{
    SIM_NOTE(object, size);
    SimPc& pc = SimPc::Current();
    const auto found = pc.Handles().Find<GdiObject>(object);
    if (const auto* const font = dynamic_cast<Font*>(found.get()))
        return HandOut(font->description, size, buffer);
    if (const auto* const bitmap = dynamic_cast<Bitmap*>(found.get()))
        return DescribeBitmap(*bitmap, size, buffer);
    if (const auto* const pen = dynamic_cast<Pen*>(found.get()))
        return HandOut(LOGPEN{static_cast<UINT>(pen->style), {pen->width, 0}, pen->color}, size, buffer);
    if (const auto* const brush = dynamic_cast<Brush*>(found.get()))
        return HandOut(LOGBRUSH{brush->style, brush->color, 0}, size, buffer);
    return pc.Fail(ERROR_INVALID_HANDLE, 0);
}
