// Graphics: what the stand-in PC draws with, and what has been drawn.
#pragma once

#include "platform/sim/Image.h"
#include "platform/sim/SimPc.h"

#include <wingdi.h>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace platform {

class Graphics : public Area {
public:
    explicit Graphics(SimPc& pc);

    /// What the device context draws on, empty when it is not open.
    [[nodiscard]] std::shared_ptr<Image> PixelsOf(HDC dc) const;
    /// The bitmap of a handle, empty for any other handle.
    [[nodiscard]] std::shared_ptr<Image> PixelsOf(HBITMAP bitmap) const;

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
