// ButtonPaper: a sheet in memory on which a painter draws a face, with colours that every test knows.
#pragma once

#include "base/Handles.h"
#include "controls/CommandButton/CommandButtonStyles.h"

namespace tests {

class ButtonPaper {
public:
    ButtonPaper(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        former_ = SelectObject(dc_.Get(), bitmap_.Get());
    }
    ~ButtonPaper() { SelectObject(dc_.Get(), former_); }
    ButtonPaper(const ButtonPaper&) = delete;
    ButtonPaper& operator=(const ButtonPaper&) = delete;

    /// Red 0x80, green 0x60, blue 0x40 for the face, a light orange for the highlight, dark red round it, grey when it is disabled.
    static controls::ButtonLook Look(std::int32_t state, bool ownColors)
    {
        controls::ButtonLook look;
        look.state = state;
        look.Resolve({ownColors, 0x406080, 0x808080, 0x20A0E0, 0x0000C0});
        return look;
    }
    void Draw(std::int32_t style, const controls::ButtonLook& look, COLORREF paper)
    {
        controls::Canvas canvas(dc_.Get(), width_, height_);
        canvas.Fill(canvas.Client(), paper);
        controls::ButtonStyleOf(style).painter(canvas, look);
    }
    [[nodiscard]] HDC Dc() const { return dc_.Get(); }
    [[nodiscard]] COLORREF At(int x, int y) const { return GetPixel(dc_.Get(), x, y); }

private:
    int width_, height_;
    base::MemoryDc dc_;
    base::BitmapHandle bitmap_;
    HGDIOBJ former_ = nullptr;
};

}  // namespace tests
