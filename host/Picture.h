// Picture: a bitmap or an icon that controls share.
#pragma once

#include "base/Handles.h"

#include <memory>

namespace host {

struct IconTraits {
    using Type = HICON;
    static Type None() noexcept { return nullptr; }
    static void Close(Type icon) noexcept { DestroyIcon(icon); }
};
using IconHandle = base::Handle<IconTraits>;

/// Held by `std::shared_ptr<Picture>`; owns its one handle.
class Picture {
public:
    enum class Type : int { None = 0, Bitmap = 1, Icon = 3 };

    Picture() = default;
    explicit Picture(base::BitmapHandle bitmap);
    explicit Picture(IconHandle icon);

    [[nodiscard]] Type GetType() const;
    [[nodiscard]] HBITMAP Bitmap() const { return bitmap_.Get(); }
    [[nodiscard]] HICON Icon() const { return icon_.Get(); }
    /// Pixels; 0 by 0 without a handle.
    [[nodiscard]] SIZE Size() const { return size_; }

private:
    base::BitmapHandle bitmap_;
    IconHandle icon_;
    SIZE size_{};
};

}  // namespace host
