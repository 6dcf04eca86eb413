// EditView: where the characters of an Edit stand in its window, and which part of them can be seen.
#pragma once

#include "platform/src/classes/EditLines.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace platform {

class EditView {
public:
    struct Shape {
        bool multiLine = false;
        bool wrap = false;
        char16_t mask = 0;  // shown instead of every character; 0 shows them as they are
        HFONT font = nullptr;
        RECT format{};  // the part of the client area that text may use
    };
    struct Scrolled {
        bool horizontally = false;
        bool vertically = false;
    };

    /// Breaks the text into lines. What could be seen stays in sight as far as it still exists.
    void Arrange(std::u16string_view text, const Shape& shape);
    [[nodiscard]] const EditLines& Lines() const { return lines_; }
    [[nodiscard]] const Shape& GetShape() const { return shape_; }
    /// The characters as they are shown, the password character instead of each where there is one.
    [[nodiscard]] const std::u16string& ShownText() const { return shown_; }
    [[nodiscard]] int LineHeight() const { return lineHeight_; }

    /// The upper left corner of a character, in client pixels.
    [[nodiscard]] POINT PointOf(std::size_t position) const;
    /// The position between two characters that is nearest to a point.
    [[nodiscard]] std::size_t PositionAt(POINT point) const;
    /// The position below or above another one, `lines` away, as the arrow keys go.
    [[nodiscard]] std::size_t PositionFrom(std::size_t position, int lines) const;
    [[nodiscard]] std::size_t LineStart(std::size_t position) const;
    [[nodiscard]] std::size_t LineEnd(std::size_t position) const;

    [[nodiscard]] std::size_t FirstLine() const { return firstLine_; }
    [[nodiscard]] std::size_t VisibleLines() const;
    /// Scrolls by lines, never beyond the text; true when something moved.
    bool ScrollBy(int lines);
    /// Scrolls until a position can be seen.
    Scrolled Show(std::size_t position);
    /// Whether text would fit into the window without any scrolling.
    [[nodiscard]] bool Fits(std::u16string_view text) const;

private:
    [[nodiscard]] EditLines Broken(std::u16string_view shown) const;
    [[nodiscard]] int Width() const { return shape_.format.right - shape_.format.left; }

    Shape shape_;
    std::u16string shown_;
    EditLines lines_;
    int lineHeight_ = 1;
    std::size_t firstLine_ = 0;
    int scrolledPixels_ = 0;  // to the right
};

}  // namespace platform
