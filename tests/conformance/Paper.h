// Paper: a white bitmap to draw on.
#pragma once

#include "base/Handles.h"

namespace tests {

class Paper {
public:
    Paper(int width, int height) : dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_.Reset(CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        before_ = SelectObject(dc_.Get(), bitmap_.Get());
        const RECT all{0, 0, width, height};
        FillRect(dc_.Get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }
    ~Paper() { SelectObject(dc_.Get(), before_); }
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    [[nodiscard]] HDC Dc() const { return dc_.Get(); }
    [[nodiscard]] COLORREF At(int x, int y) const { return GetPixel(dc_.Get(), x, y); }

private:
    base::MemoryDc dc_;
    base::BitmapHandle bitmap_;
    HGDIOBJ before_ = nullptr;
};

}  // namespace tests
