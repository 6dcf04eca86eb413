// Picture: taking over a handle and asking for its size.
#include "host/Picture.h"

namespace host {

namespace {

SIZE SizeOf(HBITMAP bitmap)
{
    BITMAP header{};
    if (bitmap == nullptr || GetObjectW(bitmap, sizeof header, &header) == 0)
        return {};
    return {header.bmWidth, header.bmHeight};
}

}  // namespace

Picture::Picture(base::BitmapHandle bitmap) : bitmap_(std::move(bitmap)), size_(SizeOf(bitmap_.Get())) {}

Picture::Picture(IconHandle icon) : icon_(std::move(icon))
{
    ICONINFO info{};
    if (!icon_ || !GetIconInfo(icon_.Get(), &info))
        return;
    // GetIconInfo makes two bitmaps for the caller. A black-and-white icon has both its masks in one, one above the other.
    const base::BitmapHandle mask(info.hbmMask), color(info.hbmColor);
    size_ = SizeOf(color ? color.Get() : mask.Get());
    if (!color)
        size_.cy /= 2;
}

Picture::Type Picture::GetType() const
{
    if (bitmap_)
        return Type::Bitmap;
    return icon_ ? Type::Icon : Type::None;
}

}  // namespace host
