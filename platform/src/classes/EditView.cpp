// EditView: where the characters of an Edit stand in its window, and which part of them can be seen.
#include "platform/src/classes/EditView.h"

#include "platform/src/classes/Control.h"

#include <algorithm>
#include <cstdlib>

namespace platform {

namespace {

std::u16string Masked(std::u16string_view text, char16_t mask)
{
    return mask ? std::u16string(text.size(), mask) : std::u16string(text);
}

}  // namespace

EditLines EditView::Broken(std::u16string_view shown) const
{
    EditLines lines;
    if (!shape_.multiLine) {
        lines.Single(shown);
    } else if (shape_.wrap) {
        const TextRuler ruler(shape_.font);
        lines.Wrap(shown, Width(), [&](std::u16string_view part) { return ruler.Width(part); });
    } else {
        lines.Break(shown);
    }
    return lines;
}

void EditView::Arrange(std::u16string_view text, const Shape& shape)
{
    shape_ = shape;
    shown_ = Masked(text, shape.mask);
    lineHeight_ = std::max(TextRuler(shape.font).LineHeight(), 1);
    lines_ = Broken(shown_);
    firstLine_ = std::min(firstLine_, lines_.Count() - 1);
    if (shape.wrap || shown_.empty())
        scrolledPixels_ = 0;
}

POINT EditView::PointOf(std::size_t position) const
{
    const std::size_t index = lines_.LineOf(position);
    const EditLines::Line& line = lines_.At(index);
    const std::size_t column = std::min(position - line.start, line.length);
    const int x = TextRuler(shape_.font).Width(std::u16string_view(shown_).substr(line.start, column));
    const int row = static_cast<int>(index) - static_cast<int>(firstLine_);
    return {shape_.format.left + x - scrolledPixels_, shape_.format.top + row * lineHeight_};
}

std::size_t EditView::PositionAt(POINT point) const
{
    const int row = (point.y - shape_.format.top - (point.y < shape_.format.top ? lineHeight_ - 1 : 0)) / lineHeight_;
    const int last = static_cast<int>(lines_.Count()) - 1;
    const EditLines::Line& line = lines_.At(static_cast<std::size_t>(std::clamp(static_cast<int>(firstLine_) + row, 0, last)));
    const int x = point.x - shape_.format.left + scrolledPixels_;
    const TextRuler ruler(shape_.font);
    const std::u16string_view text = std::u16string_view(shown_).substr(line.start, line.length);
    int before = 0;
    for (std::size_t column = 0; column < text.size(); ++column) {
        const int after = ruler.Width(text.substr(0, column + 1));
        if (x < (before + after) / 2)
            return line.start + column;
        before = after;
    }
    return line.start + line.length - (line.wrapped ? 1 : 0);
}

std::size_t EditView::PositionFrom(std::size_t position, int lines) const
{
    POINT point = PointOf(position);
    point.y += lines * lineHeight_;
    const int row = static_cast<int>(lines_.LineOf(position)) + lines;
    if (row < 0 || row >= static_cast<int>(lines_.Count()))
        return position;
    return PositionAt(point);
}

std::size_t EditView::LineStart(std::size_t position) const
{
    return lines_.At(lines_.LineOf(position)).start;
}

std::size_t EditView::LineEnd(std::size_t position) const
{
    // The position behind a wrapped line is the start of the next one already.
    const EditLines::Line& line = lines_.At(lines_.LineOf(position));
    return line.start + line.length - (line.wrapped ? 1 : 0);
}

std::size_t EditView::VisibleLines() const
{
    return static_cast<std::size_t>(std::max<LONG>((shape_.format.bottom - shape_.format.top) / lineHeight_, 1));
}

bool EditView::ScrollBy(int lines)
{
    const int last = static_cast<int>(lines_.Count()) - 1;
    const auto target = static_cast<std::size_t>(std::clamp(static_cast<int>(firstLine_) + lines, 0, last));
    return std::exchange(firstLine_, target) != target;
}

EditView::Scrolled EditView::Show(std::size_t position)
{
    Scrolled scrolled;
    const std::size_t line = lines_.LineOf(position);
    if (line < firstLine_)
        scrolled.vertically = ScrollBy(static_cast<int>(line) - static_cast<int>(firstLine_));
    else if (line >= firstLine_ + VisibleLines())
        scrolled.vertically = ScrollBy(static_cast<int>(line + 1) - static_cast<int>(VisibleLines() + firstLine_));
    if (shape_.wrap || Width() <= 0)
        return scrolled;
    const int x = PointOf(position).x - shape_.format.left + scrolledPixels_;
    int target = scrolledPixels_;
    if (x < scrolledPixels_)
        target = std::max(x - Width() / 3, 0);
    else if (x > scrolledPixels_ + Width())
        target = x - Width() + Width() / 3;
    scrolled.horizontally = std::exchange(scrolledPixels_, target) != target;
    return scrolled;
}

bool EditView::Fits(std::u16string_view text) const
{
    const std::u16string shown = Masked(text, shape_.mask);
    if (!shape_.multiLine)
        return TextRuler(shape_.font).Width(shown) <= Width();
    return static_cast<int>(Broken(shown).Count()) * lineHeight_ <= shape_.format.bottom - shape_.format.top;
}

}  // namespace platform
