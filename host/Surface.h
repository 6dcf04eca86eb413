// Surface: what a user control draws on, a picture in memory that outlives every paint.
#pragma once

#include "base/Handles.h"
#include "host/Font.h"
#include "host/OleColor.h"

#include <memory>

namespace host {

/// Pixels, (0, 0) at the top left of the control's window. Without memory for the picture there is no DC: drawing then does nothing.
class Surface {
public:
    Surface() = default;
    ~Surface() { Release(); }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    /// The memory DC on the 32-bit picture; asking for it marks the window for a repaint, unless it waits for one since it was last asked
    /// for. The same DC until the size changes, NULL when there is none. The surface's font is selected in it; whatever else is selected
    /// must be taken out again.
    [[nodiscard]] HDC Dc();
    /// Fills the picture with the background colour.
    void Clear();
    /// In pixels; the window's client size.
    [[nodiscard]] int ScaleWidth() const { return size_.cx; }
    [[nodiscard]] int ScaleHeight() const { return size_.cy; }

    [[nodiscard]] OleColor BackColor() const { return backColor_; }
    void BackColor(OleColor color) { backColor_ = color; }
    [[nodiscard]] OleColor ForeColor() const { return foreColor_; }
    void ForeColor(OleColor color) { foreColor_ = color; }
    [[nodiscard]] const std::shared_ptr<host::Font>& Font() const { return font_; }
    void Font(std::shared_ptr<host::Font> font) { font_ = std::move(font); }

    // The user control does these.

    /// Binds the surface to its window (NULL unbinds).
    void Attach(HWND window)
    {
        window_ = window;
        isMarked_ = false;
    }
    /// The window is being repainted: what is drawn from now on marks it again.
    void Painted() { isMarked_ = false; }
    /// A new empty picture of this size, filled with the background colour.
    void Resize(SIZE size);
    /// Copies the picture to `target`, whole.
    void CopyTo(HDC target) const;
    void Release();

private:
    void SelectFont();

    HWND window_ = nullptr;
    bool isMarked_ = false;  // the window waits for a repaint
    SIZE size_{};
    base::MemoryDc dc_;
    base::BitmapHandle picture_;
    HGDIOBJ formerPicture_ = nullptr;
    HGDIOBJ formerFont_ = nullptr;
    std::shared_ptr<host::Font> font_;
    std::shared_ptr<const base::FontHandle> selectedFont_;
    OleColor backColor_ = SystemColor(COLOR_BTNFACE);
    OleColor foreColor_ = SystemColor(COLOR_BTNTEXT);
};

}  // namespace host
