// EditLines: where the lines of an Edit begin and end, with and without word wrap.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace platform {

class EditLines {
public:
    struct Line {
        std::size_t start = 0;
        std::size_t length = 0;  // without the line break
        bool wrapped = false;    // the next line goes on with the same paragraph
    };
    /// The width of a piece of text in pixels.
    using Measure = std::function<int(std::u16string_view text)>;

    /// One line, whatever the text holds.
    void Single(std::u16string_view text) { lines_ = {Line{0, text.size(), false}}; }
    /// A line for each paragraph; paragraphs end with a carriage return and a line feed.
    void Break(std::u16string_view text);
    /// The same, and no line wider than `width` pixels as far as spaces allow. Spaces at a line's end may hang over.
    void Wrap(std::u16string_view text, int width, const Measure& measure);

    [[nodiscard]] std::size_t Count() const { return lines_.size(); }
    [[nodiscard]] const Line& At(std::size_t index) const { return lines_[index]; }
    /// The line that holds a position; positions beyond the text count as its end.
    [[nodiscard]] std::size_t LineOf(std::size_t position) const;

private:
    std::vector<Line> lines_{Line{}};
};

}  // namespace platform
