// Picture: a bitmap or an icon that controls share.
#pragma once

#include "base/Handles.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace host {

struct IconTraits {
    using Type = HICON;
    static Type None() noexcept { return nullptr; }
    static void Close(Type icon) noexcept { DestroyIcon(icon); }
};
using IconHandle = base::Handle<IconTraits>;

enum class PictureType : int { None = 0, Bitmap = 1, Icon = 3 };

/// A picture as it is kept in files: the bytes of a .bmp or an .ico file.
struct PictureDescription {
    PictureType type = PictureType::None;
    std::vector<std::uint8_t> bytes;
    bool operator==(const PictureDescription&) const = default;
};

/// Held by `std::shared_ptr<Picture>`; owns its one handle.
class Picture {
public:
    Picture() = default;
    explicit Picture(base::BitmapHandle bitmap);
    explicit Picture(IconHandle icon);

    /// Null when the bytes are not those of an uncompressed bitmap of 1, 4, 8, 24 or 32 bits a pixel, or of an icon. Of an icon file
    /// with several pictures that one is taken whose width is nearest to the system's icons.
    [[nodiscard]] static std::shared_ptr<Picture> Of(const PictureDescription& description);
    /// The bytes that the picture was made of; of a handle those of a file with 32 bits a pixel.
    [[nodiscard]] PictureDescription Description() const;

    [[nodiscard]] PictureType GetType() const;
    [[nodiscard]] HBITMAP Bitmap() const { return bitmap_.Get(); }
    [[nodiscard]] HICON Icon() const { return icon_.Get(); }
    /// Pixels; 0 by 0 without a handle.
    [[nodiscard]] SIZE Size() const { return size_; }

private:
    base::BitmapHandle bitmap_;
    IconHandle icon_;
    SIZE size_{};
    PictureDescription description_;
};

}  // namespace host
