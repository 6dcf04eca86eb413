// Surface: what a user control draws on, a picture in memory that outlives every paint.
#pragma once

#include "base/Handles.h"
#include "base/String.h"
#include "host/Font.h"
#include "host/OleColor.h"
#include "host/OleDrag.h"

#include <cstdint>
#include <memory>

namespace host {

/// Pixels, (0, 0) at the top left of the control's window. Without memory for the picture there is no DC: drawing then does nothing.
class Surface {
public:
    explicit Surface(OleDragEvents& control) : oleDrag_(control) {}
    ~Surface() { Release(); }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    /// The memory DC on the 32-bit picture; asking for it marks the window for a repaint. The same DC until the size changes, NULL when
    /// there is none. The surface's font is selected in it; whatever else is selected must be taken out again.
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
    /// Letters that Alt brings to the control, empty for none.
    [[nodiscard]] const base::String& AccessKey() const { return accessKey_; }
    void AccessKey(base::StringView keys) { accessKey_ = keys; }
    /// A disabled surface gets no input: its window is disabled.
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void Enabled(bool enabled);
    /// 0 and 1 arrow, 2 cross, 3 I-beam, 5 move, 6 to 9 sizing, 10 up arrow, 11 hourglass, 12 no drop, 13 arrow and hourglass, 14 help.
    [[nodiscard]] std::int16_t MousePointer() const { return mousePointer_; }
    void MousePointer(std::int16_t pointer) { mousePointer_ = pointer; }
    /// 0 none; 1 manual: the control hears of data that is dragged over it and dropped on it. Other values are kept and mean none.
    [[nodiscard]] std::int16_t OleDropMode() const { return oleDropMode_; }
    void OleDropMode(std::int16_t mode);
    /// Drags data from here until the user lets go of it: OLEStartDrag, OLEGiveFeedback, OLESetData, OLECompleteDrag.
    void OLEDrag() { oleDrag_.Start(); }
    /// 0 transparent, 1 opaque. Kept for the control that stores it: a control of this library paints every pixel of its window, so there
    /// is none through which the container could show.
    [[nodiscard]] std::int16_t BackStyle() const { return backStyle_; }
    void BackStyle(std::int16_t style) { backStyle_ = style; }

    // The user control does these.

    /// Binds the surface to its window (NULL unbinds).
    void Attach(HWND window);
    /// A new empty picture of this size, filled with the background colour.
    void Resize(SIZE size);
    /// Copies the picture to `target`, whole.
    void CopyTo(HDC target) const;
    void Release();
    /// The cursor that `MousePointer` stands for; NULL for the ordinary arrow.
    [[nodiscard]] LPCWSTR CursorName() const;

private:
    void SelectFont();

    HWND window_ = nullptr;
    SIZE size_{};
    base::MemoryDc dc_;
    base::BitmapHandle picture_;
    HGDIOBJ formerPicture_ = nullptr;
    HGDIOBJ formerFont_ = nullptr;
    std::shared_ptr<host::Font> font_;
    std::shared_ptr<const base::FontHandle> selectedFont_;
    OleColor backColor_ = SystemColor(COLOR_BTNFACE);
    OleColor foreColor_ = SystemColor(COLOR_BTNTEXT);
    base::String accessKey_;
    bool enabled_ = true;
    std::int16_t mousePointer_ = 0;
    std::int16_t oleDropMode_ = 0;
    std::int16_t backStyle_ = 1;
    OleDrag oleDrag_;
};

}  // namespace host
