// Graphics: stock objects and system colours.
#include "platform/sim/Graphics.h"

#include "platform/src/gdi/DeviceContext.h"
#include "platform/src/gdi/Typeface.h"

#include <algorithm>

namespace platform {

namespace {

/// The colours of a fresh Windows 7, from COLOR_SCROLLBAR on.
constexpr std::array<COLORREF, 31> kColors{
    RGB(200, 200, 200), RGB(0, 0, 0),       RGB(153, 180, 209), RGB(191, 205, 219), RGB(240, 240, 240), RGB(255, 255, 255),
    RGB(100, 100, 100), RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(180, 180, 180), RGB(244, 247, 252),
    RGB(171, 171, 171), RGB(51, 153, 255),  RGB(255, 255, 255), RGB(240, 240, 240), RGB(160, 160, 160), RGB(109, 109, 109),
    RGB(0, 0, 0),       RGB(67, 78, 84),    RGB(255, 255, 255), RGB(105, 105, 105), RGB(227, 227, 227), RGB(0, 0, 0),
    RGB(255, 255, 225), RGB(180, 180, 180), RGB(0, 102, 204),   RGB(185, 209, 234), RGB(215, 228, 242), RGB(51, 153, 255),
    RGB(240, 240, 240)};

std::shared_ptr<Brush> MakeBrush(UINT style, COLORREF color)
{
    auto brush = std::make_shared<Brush>();
    brush->style = style;
    brush->color = color;
    return brush;
}

std::shared_ptr<Pen> MakePen(int style, COLORREF color)
{
    auto pen = std::make_shared<Pen>();
    pen->style = style;
    pen->color = color;
    return pen;
}

std::shared_ptr<Font> MakeFont(LONG height, std::u16string_view face, LONG weight = FW_NORMAL)
{
    auto font = std::make_shared<Font>();
    font->description.lfHeight = height;
    font->description.lfWeight = weight;
    std::copy(face.begin(), face.end(), font->description.lfFaceName);
    return font;
}

}  // namespace

Graphics::Graphics(SimPc& pc) : Area(pc), colors_(kColors), families_(InstalledFamilies())
{
    const auto keep = [&](int index, std::shared_ptr<GdiObject> object) {
        object->stock = true;
        stock_[index] = AsHandle<HGDIOBJ>(pc.Handles().Open(std::move(object), HandleTable::Watch::Ignore));
    };
    keep(WHITE_BRUSH, MakeBrush(BS_SOLID, RGB(255, 255, 255)));
    keep(LTGRAY_BRUSH, MakeBrush(BS_SOLID, RGB(192, 192, 192)));
    keep(GRAY_BRUSH, MakeBrush(BS_SOLID, RGB(128, 128, 128)));
    keep(DKGRAY_BRUSH, MakeBrush(BS_SOLID, RGB(64, 64, 64)));
    keep(BLACK_BRUSH, MakeBrush(BS_SOLID, RGB(0, 0, 0)));
    keep(NULL_BRUSH, MakeBrush(BS_NULL, 0));
    keep(DC_BRUSH, MakeBrush(BS_SOLID, RGB(255, 255, 255)));
    keep(WHITE_PEN, MakePen(PS_SOLID, RGB(255, 255, 255)));
    keep(BLACK_PEN, MakePen(PS_SOLID, RGB(0, 0, 0)));
    keep(NULL_PEN, MakePen(PS_NULL, 0));
    keep(DC_PEN, MakePen(PS_SOLID, RGB(0, 0, 0)));
    for (const int fixed : {OEM_FIXED_FONT, ANSI_FIXED_FONT, SYSTEM_FIXED_FONT})
        keep(fixed, MakeFont(13, u"Courier New"));
    keep(ANSI_VAR_FONT, MakeFont(13, u"MS Sans Serif"));
    keep(DEVICE_DEFAULT_FONT, MakeFont(16, u"Microsoft Sans Serif", FW_BOLD));
    keep(SYSTEM_FONT, MakeFont(16, u"Microsoft Sans Serif", FW_BOLD));
    keep(DEFAULT_GUI_FONT, MakeFont(-11, u"Microsoft Sans Serif"));
    auto bitmap = std::make_shared<Bitmap>();
    bitmap->image = std::make_shared<Image>(1, 1);
    bitmap->image->bitsPerPixel = 1;
    keep(kDefaultBitmap, std::move(bitmap));
}

std::shared_ptr<Image> Graphics::PixelsOf(HDC dc) const
{
    const auto found = pc_.Handles().Find<DeviceContext>(dc);
    if (!found)
        return nullptr;
    (void)found->Target();
    return found->Pixels();
}

std::shared_ptr<Image> Graphics::PixelsOf(HBITMAP bitmap) const
{
    const auto found = pc_.Handles().Find<Bitmap>(bitmap);
    return found ? found->image : nullptr;
}

COLORREF Graphics::SystemColor(int index) const
{
    return index >= 0 && index < static_cast<int>(colors_.size()) ? colors_[static_cast<std::size_t>(index)] : 0;
}

void Graphics::SystemColor(int index, COLORREF color)
{
    colors_.at(static_cast<std::size_t>(index)) = color;
    if (const auto brush = pc_.Handles().Find<Brush>(brushes_[static_cast<std::size_t>(index)]))
        brush->color = color;
}

HBRUSH Graphics::SystemBrush(int index)
{
    if (index < 0 || index >= static_cast<int>(brushes_.size()))
        return nullptr;
    HBRUSH& brush = brushes_[static_cast<std::size_t>(index)];
    if (!brush) {
        auto object = MakeBrush(BS_SOLID, SystemColor(index));
        object->stock = true;
        brush = AsHandle<HBRUSH>(pc_.Handles().Open(std::move(object), HandleTable::Watch::Ignore));
    }
    return brush;
}

HGDIOBJ Graphics::StockObject(int index) const
{
    const auto found = stock_.find(index);
    return found == stock_.end() ? nullptr : found->second;
}

}  // namespace platform
