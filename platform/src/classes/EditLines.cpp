// EditLines: where the lines of an Edit begin and end, with and without word wrap.
#include "platform/src/classes/EditLines.h"

#include <algorithm>

namespace platform {

namespace {

/// How many characters at the head of `text` fit into `width`, at least one.
std::size_t Fitting(std::u16string_view text, int width, const EditLines::Measure& measure)
{
    std::size_t low = 1;
    std::size_t high = text.size();
    while (low < high) {
        const std::size_t middle = (low + high + 1) / 2;
        if (measure(text.substr(0, middle)) <= width)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

/// The length of the first line of a paragraph that does not fit as a whole.
std::size_t FirstLine(std::u16string_view paragraph, int width, const EditLines::Measure& measure)
{
    std::size_t length = Fitting(paragraph, width, measure);
    if (length == paragraph.size())
        return length;
    if (paragraph[length] != u' ') {
        const std::size_t space = paragraph.rfind(u' ', length - 1);
        if (space != std::u16string_view::npos)
            return space + 1;
    }
    while (length < paragraph.size() && paragraph[length] == u' ')
        ++length;
    return length;
}

}  // namespace

void EditLines::Break(std::u16string_view text)
{
    lines_.clear();
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find(u"\r\n", start);
        if (end == std::u16string_view::npos)
            break;
        lines_.push_back({start, end - start, false});
        start = end + 2;
    }
    lines_.push_back({start, text.size() - start, false});
}

void EditLines::Wrap(std::u16string_view text, int width, const Measure& measure)
{
    Break(text);
    const std::vector<Line> paragraphs = std::move(lines_);
    lines_.clear();
    for (Line rest : paragraphs) {
        for (;;) {
            const std::u16string_view paragraph = text.substr(rest.start, rest.length);
            const std::size_t length = paragraph.empty() ? 0 : FirstLine(paragraph, width, measure);
            lines_.push_back({rest.start, length, length < rest.length});
            if (length == rest.length)
                break;
            rest.start += length;
            rest.length -= length;
        }
    }
}

std::size_t EditLines::LineOf(std::size_t position) const
{
    const auto next =
        std::upper_bound(lines_.begin(), lines_.end(), position, [](std::size_t at, const Line& line) { return at < line.start; });
    return static_cast<std::size_t>(next - lines_.begin()) - 1;
}

}  // namespace platform
