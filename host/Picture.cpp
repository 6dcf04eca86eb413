#include "host/Picture.h"

#include "host/PictureFile.h"

namespace host {

namespace {

SIZE SizeOf(HBITMAP bitmap)
{
    BITMAP header{};
    if (!bitmap || GetObjectW(bitmap, sizeof header, &header) == 0)
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

std::shared_ptr<Picture> Picture::Of(const PictureDescription& description)
{
    auto picture = std::make_shared<Picture>();
    if (description.type == PictureType::Bitmap)
        *picture = Picture(BitmapFromFile(description.bytes));
    else if (description.type == PictureType::Icon)
        *picture = Picture(IconFromFile(description.bytes));
    if (picture->GetType() == PictureType::None)
        return nullptr;
    picture->description_ = description;
    return picture;
}

PictureDescription Picture::Description() const
{
    if (description_.type != PictureType::None)
        return description_;
    switch (GetType()) {
        case PictureType::Bitmap:
            return {PictureType::Bitmap, FileOfBitmap(Bitmap(), size_)};
        case PictureType::Icon:
            return {PictureType::Icon, FileOfIcon(Icon(), size_)};
        default:
            return {};
    }
}

PictureType Picture::GetType() const
{
    if (bitmap_)
        return PictureType::Bitmap;
    return icon_ ? PictureType::Icon : PictureType::None;
}

}  // namespace host
