// Paper: a white bitmap to draw on, whose pixels are read back as rows of characters.
#pragma once

#include "base/Handles.h"

#include <string>
#include <vector>

namespace tests {

class Paper {
public:
    Paper(int width, int height, COLORREF color = RGB(255, 255, 255)) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_.Reset(CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        before_ = SelectObject(dc_.Get(), bitmap_.Get());
        const base::BrushHandle brush(CreateSolidBrush(color));
        const RECT all{0, 0, width, height};
        FillRect(dc_.Get(), &all, brush.Get());
    }
    ~Paper() { SelectObject(dc_.Get(), before_); }
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    [[nodiscard]] HDC Dc() const { return dc_.Get(); }
    [[nodiscard]] COLORREF At(int x, int y) const { return GetPixel(dc_.Get(), x, y); }

    using Rows = std::vector<std::string>;
    /// The rows from the top on: '.' white, '#' black, '?' any other colour.
    [[nodiscard]] Rows Picture() const
    {
        Rows rows;
        for (int y = 0; y < height_; ++y) {
            std::string& row = rows.emplace_back();
            for (int x = 0; x < width_; ++x)
                row += At(x, y) == RGB(255, 255, 255) ? '.' : At(x, y) == RGB(0, 0, 0) ? '#' : '?';
        }
        return rows;
    }

private:
    int width_;
    int height_;
    base::MemoryDc dc_;
    base::BitmapHandle bitmap_;
    HGDIOBJ before_ = nullptr;
};

/// Selects an object for as long as it lives.
class Select {
public:
    Select(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    ~Select() { SelectObject(dc_, before_); }
    Select(const Select&) = delete;
    Select& operator=(const Select&) = delete;

private:
    HDC dc_;
    HGDIOBJ before_;
};

}  // namespace tests
