// DeviceContext: what GDI draws with and where. Its primitives work in pixels of the image and obey the clip.
#pragma once

#include "platform/src/gdi/Objects.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

class DeviceContext : public Object {
public:
    /// What the program selects and sets.
    struct State {
        Selected<Pen> pen;
        Selected<Brush> brush;
        Selected<Font> font;
        Selected<Bitmap> bitmap;
        COLORREF textColor = RGB(0, 0, 0);
        COLORREF backColor = RGB(255, 255, 255);
        int backMode = OPAQUE;
        int rop2 = R2_COPYPEN;
        POINT position{};
        POINT viewport{};
        std::optional<Region> clip;  // of the program, in device coordinates
    };

    /// A memory device context, on a monochrome bitmap of one pixel as all new ones.
    explicit DeviceContext(Graphics& graphics);
    /// One of a window or of the screen.
    DeviceContext(Graphics& graphics, std::shared_ptr<Image> pixels, POINT origin, Region visible, HWND window);

    State state;

    /// What it asks of its own device; without one it is the screen's.
    struct Device {
        int dpi;
        SIZE size;  // in pixels
    };
    std::optional<Device> device;

    [[nodiscard]] bool IsMemory() const { return memory_; }
    [[nodiscard]] HWND Window() const { return window_; }
    [[nodiscard]] const std::shared_ptr<Image>& Pixels() const { return pixels_; }
    [[nodiscard]] Image& Target() const
    {
        if (compose_)
            std::exchange(compose_, nullptr)();
        return *pixels_;
    }
    /// Fills the pixels in when somebody first touches them: a picture of the whole screen is dear, and most only ask for its resolution.
    void ComposeLater(std::function<void()> compose) { compose_ = std::move(compose); }
    [[nodiscard]] bool IsMonochrome() const { return pixels_->bitsPerPixel == 1; }
    /// Other pixels, another place, another visible part. The program's own clip stays.
    void Move(std::shared_ptr<Image> pixels, POINT origin, Region visible);
    void SelectBitmap(HBITMAP handle, std::shared_ptr<Bitmap> bitmap);
    /// After `state.clip`, the viewport's origin or the bitmap was changed.
    void ClipChanged() { clip_.reset(); }

    [[nodiscard]] POINT ToImage(POINT logical) const;
    [[nodiscard]] RECT ToImage(const RECT& logical) const;
    /// What may be touched, in pixels of the image.
    [[nodiscard]] const Region& Clip();

    /// The pixel value that a colour has on this target (black or white on a monochrome one).
    [[nodiscard]] std::uint32_t PixelOf(COLORREF color) const;
    /// The brush's pixel value at a place of the image. Not for BS_NULL.
    [[nodiscard]] std::uint32_t BrushPixel(const Brush& brush, int x, int y) const;
    /// Combines a pixel with what is there by the raster operation of pens (ROP2) and brushes.
    void Put(int x, int y, std::uint32_t pixel, int rop2);

    /// Calls `change(x, y, pixel)` for every pixel of the rectangle (pixels of the image) that may be touched.
    template <class Change>
    void ForEach(const RECT& area, Change change)
    {
        Image& target = Target();
        for (const RECT& part : Clip().Rectangles()) {
            const LONG right = std::min(part.right, area.right), bottom = std::min(part.bottom, area.bottom);
            for (LONG y = std::max(part.top, area.top); y < bottom; ++y)
                for (LONG x = std::max(part.left, area.left); x < right; ++x)
                    change(x, y, target.At(x, y));
        }
    }
    /// Fills pixels of the image by the raster operation.
    void Fill(const Region& area, const Brush& brush, int rop2);
    void Fill(const RECT& area, COLORREF color);

private:
    void SelectDefaults(Graphics& graphics);

    bool memory_ = false;
    HWND window_ = nullptr;
    std::shared_ptr<Image> pixels_;
    POINT origin_{};
    Region visible_;
    std::optional<Region> clip_;
    RECT clippedFor_{};
    mutable std::function<void()> compose_;
};

/// Opens a device context of a window or of the screen that draws on `pixels`. `origin` is where its point (0, 0) lies in the image;
/// `visible` is what it may touch, in image coordinates. It is a watched handle until `CloseDc`.
HDC OpenDc(std::shared_ptr<Image> pixels, POINT origin, const Region& visible, HWND window);
/// False for a device context that is not open. Objects that are still selected become free.
bool CloseDc(HDC dc);
/// A window was moved, sized, covered or uncovered: its open device contexts follow. What the program selected and set stays.
void MoveDc(HDC dc, std::shared_ptr<Image> pixels, POINT origin, const Region& visible);

/// The open device context of a handle, or empty with ERROR_INVALID_HANDLE.
[[nodiscard]] std::shared_ptr<DeviceContext> FindDc(HDC dc);

/// A raster operation of pens on 24 bits of colour: `rop2` is R2_BLACK (1) .. R2_WHITE (16).
[[nodiscard]] std::uint32_t ApplyRop2(int rop2, std::uint32_t pen, std::uint32_t target);
/// A raster operation of three operands; `rop` is SRCCOPY and the like.
[[nodiscard]] std::uint32_t ApplyRop3(DWORD rop, std::uint32_t pattern, std::uint32_t source, std::uint32_t target);

/// A rectangle whose edges are in order.
[[nodiscard]] inline RECT Ordered(const RECT& rectangle)
{
    return {std::min(rectangle.left, rectangle.right), std::min(rectangle.top, rectangle.bottom), std::max(rectangle.left, rectangle.right),
            std::max(rectangle.top, rectangle.bottom)};
}

}  // namespace platform
