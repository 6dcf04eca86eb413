// Graphics: the drawing side of the stand-in PC. Device contexts on images, GDI objects, system colours, fonts.
#pragma once

#include "platform/sim/Image.h"
#include "platform/sim/SimPc.h"
#include "platform/src/gdi/Region.h"

#include <wingdi.h>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Graphics : public Area {
public:
    explicit Graphics(SimPc& pc);
    ~Graphics() override;

    // -- Device contexts of windows and of the screen; memory device contexts are made by CreateCompatibleDC --

    /// Opens a device context that draws on `pixels`. `origin` is where its point (0, 0) lies in the image; `visible` is what it may touch,
    /// in image coordinates. It is a watched handle until `CloseDc`.
    HDC OpenDc(std::shared_ptr<Image> pixels, POINT origin, const Region& visible, HWND window);
    /// False for a device context that is not open. Objects that are still selected become free.
    bool CloseDc(HDC dc);
    /// A window was moved, sized, covered or uncovered: its open device contexts follow. What the program selected and set stays.
    void MoveDc(HDC dc, std::shared_ptr<Image> pixels, POINT origin, const Region& visible);
    /// The window of a device context; NULL for memory ones and unknown ones.
    [[nodiscard]] HWND WindowOf(HDC dc) const;
    /// What the device context draws on, empty when it is not open.
    [[nodiscard]] std::shared_ptr<Image> PixelsOf(HDC dc) const;
    /// The bitmap of a handle, empty for any other handle.
    [[nodiscard]] std::shared_ptr<Image> PixelsOf(HBITMAP bitmap) const;

    // -- Regions, icons and fonts by value, past the gate --

    /// The region of a handle, or null.
    [[nodiscard]] const Region* RegionOf(HRGN region) const;
    /// Replaces the content of a region object; false for a stale handle.
    bool RegionOf(HRGN region, Region value);
    /// The system takes the region over (SetWindowRgn): its handle is no longer the program's and stands for nothing any more. Empty for a
    /// stale handle.
    std::optional<Region> TakeRegion(HRGN region);

    // -- Settings --

    /// COLOR_SCROLLBAR (0) .. COLOR_MENUBAR (30) as COLORREF. 0 for other numbers.
    [[nodiscard]] COLORREF SystemColor(int index) const;
    void SystemColor(int index, COLORREF color);
    /// A brush that nobody deletes.
    [[nodiscard]] HBRUSH SystemBrush(int index);
    /// WHITE_BRUSH .. DC_PEN, or NULL.
    [[nodiscard]] HGDIOBJ StockObject(int index) const;
    /// Index of the stock bitmap that every new memory device context holds.
    static constexpr int kDefaultBitmap = 21;

    /// The font families that the PC knows, in the order in which they are enumerated.
    struct Family {
        std::u16string name;
        bool trueType = true;
        bool fixedPitch = false;
        BYTE charSet = ANSI_CHARSET;
    };
    [[nodiscard]] std::vector<Family>& Families() { return families_; }

    /// Text that was drawn by DrawTextW, DrawStateW and DrawThemeText since `ForgetTexts`, in order.
    struct DrawnText {
        std::u16string text;
        RECT cell;  // in the pixels of the image
        COLORREF color;
        HWND window;
    };
    [[nodiscard]] const std::vector<DrawnText>& Texts() const { return texts_; }
    void ForgetTexts() { texts_.clear(); }
    void AddText(DrawnText text) { texts_.push_back(std::move(text)); }

private:
    std::array<COLORREF, 31> colors_{};
    std::array<HBRUSH, 31> brushes_{};
    std::map<int, HGDIOBJ> stock_;
    std::vector<Family> families_;
    std::vector<DrawnText> texts_;
};

}  // namespace platform
