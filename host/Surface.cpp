#include "host/Surface.h"

#include "host/DibInfo.h"

namespace host {

HDC Surface::Dc()
{
    if (!dc_)
        return nullptr;
    SelectFont();
    if (window_ && !isMarked_)
        isMarked_ = InvalidateRect(window_, nullptr, FALSE) != FALSE;
    return dc_.Get();
}

/// A font that has changed is another GDI font; the one selected so far lives as long as it is selected.
void Surface::SelectFont()
{
    const std::shared_ptr<const base::FontHandle> font = font_ ? font_->Share() : nullptr;
    if (font == selectedFont_)
        return;
    const HGDIOBJ former = SelectObject(dc_.Get(), font ? static_cast<HGDIOBJ>(font->Get()) : formerFont_);
    if (!formerFont_)
        formerFont_ = former;
    selectedFont_ = font;
}

void Surface::Clear()
{
    const HDC dc = Dc();
    const base::BrushHandle brush(CreateSolidBrush(ToRgb(backColor_)));
    if (!dc || !brush)
        return;
    const RECT all{0, 0, size_.cx, size_.cy};
    FillRect(dc, &all, brush.Get());
}

void Surface::Resize(SIZE size)
{
    Release();
    size_ = size;
    if (size.cx <= 0 || size.cy <= 0)
        return;
    base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const BITMAPINFO info = DibInfo(size.cx, -size.cy);
    void* bits = nullptr;
    base::BitmapHandle picture(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!dc || !picture)
        return;
    formerPicture_ = SelectObject(dc.Get(), picture.Get());
    if (!formerPicture_)
        return;
    dc_ = std::move(dc);
    picture_ = std::move(picture);
    Clear();
}

void Surface::CopyTo(HDC target) const
{
    if (dc_)
        BitBlt(target, 0, 0, size_.cx, size_.cy, dc_.Get(), 0, 0, SRCCOPY);
}

void Surface::Release()
{
    if (dc_) {
        SelectObject(dc_.Get(), formerPicture_);
        if (formerFont_)
            SelectObject(dc_.Get(), formerFont_);
    }
    dc_.Reset();
    picture_.Reset();
    selectedFont_.reset();
    formerPicture_ = nullptr;
    formerFont_ = nullptr;
    size_ = {};
}

}  // namespace host
