// GDI objects of the stand-in PC: pens, brushes, fonts, bitmaps, regions.
#pragma once

#include "platform/sim/Graphics.h"
#include "platform/sim/HandleTable.h"
#include "platform/sim/Image.h"
#include "platform/src/gdi/Region.h"

#include <memory>
#include <utility>

namespace platform {

struct GdiObject : Object {
    /// How many device contexts it is selected into.
    int selections = 0;
    bool stock = false;
};

struct Pen : GdiObject {
    int style = PS_SOLID;
    int width = 1;
    COLORREF color = 0;
};

struct Brush : GdiObject {
    /// BS_SOLID, BS_NULL or BS_PATTERN.
    UINT style = BS_SOLID;
    COLORREF color = 0;
    Image pattern;
};

struct Font : GdiObject {
    LOGFONTW description{};
};

struct Bitmap : GdiObject {
    std::shared_ptr<Image> image;
    /// Made by CreateDIBSection: the program writes straight into the pixels.
    bool isDibSection = false;
};

struct RegionObject : GdiObject {
    Region region;
};

/// An object that a device context holds: it counts as selected as long as this lives.
template <class T>
class Selected {
public:
    Selected() = default;
    Selected(HGDIOBJ handle, std::shared_ptr<T> object) : handle_(handle), object_(std::move(object)) { Count(1); }
    Selected(const Selected& other) : handle_(other.handle_), object_(other.object_) { Count(1); }
    Selected& operator=(Selected other) noexcept
    {
        std::swap(handle_, other.handle_);
        std::swap(object_, other.object_);
        return *this;
    }
    ~Selected() { Count(-1); }

    [[nodiscard]] HGDIOBJ Handle() const { return handle_; }
    const T* operator->() const { return object_.get(); }
    [[nodiscard]] const std::shared_ptr<T>& Get() const { return object_; }

private:
    void Count(int step)
    {
        if (object_)
            object_->selections += step;
    }
    HGDIOBJ handle_ = nullptr;
    std::shared_ptr<T> object_;
};

/// Makes `object` a watched handle of Windows' type `H`.
template <class H, class T>
[[nodiscard]] H OpenObject(std::shared_ptr<T> object)
{
    return AsHandle<H>(SimPc::Current().Handles().Open(std::move(object)));
}

}  // namespace platform
