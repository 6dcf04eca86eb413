// DrawTextW: prefixes, lines, word breaks, alignment, ellipses, as the conformance tests of Texts show them.
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Text.h"

#include <windows.h>

using namespace platform;

namespace platform {

Prefixed ResolvePrefixes(std::u16string_view text)
{
    Prefixed result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == u'&' && index + 1 < text.size()) {
            if (text[++index] != u'&')
                result.accessKey = static_cast<int>(result.text.size());
        } else if (text[index] == u'&') {
            continue;
        }
        result.text += text[index];
    }
    return result;
}

namespace {

struct Line {
    std::size_t start = 0;
    std::size_t length = 0;
};

constexpr int kTabColumns = 8;

class TextBlock {
public:
    TextBlock(const Typeface& face, std::u16string_view text, UINT format) : face_(face), format_(format)
    {
        if (format & DT_NOPREFIX)
            text_.text = text;
        else
            text_ = ResolvePrefixes(text);
    }

    [[nodiscard]] std::vector<Line> Lines(int width) const
    {
        const std::u16string_view text = text_.text;
        std::vector<Line> lines;
        if (format_ & DT_SINGLELINE)
            return {{0, text.size()}};
        std::size_t start = 0;
        while (start < text.size()) {
            std::size_t end = std::min(text.find_first_of(u"\r\n", start), text.size());
            if (format_ & DT_WORDBREAK)
                end = BreakAt(start, end, width);
            lines.push_back({start, end - start});
            start = NextStart(end);
        }
        // A line break at the very end opens one more, empty line.
        if (!text.empty() && (text.back() == u'\n' || text.back() == u'\r') && format_ & DT_EDITCONTROL)
            lines.push_back({text.size(), 0});
        return lines;
    }

    [[nodiscard]] int Width(const Line& line) const
    {
        int width = 0;
        for (const char16_t character : Of(line))
            width += Step(character, width);
        return width;
    }

    [[nodiscard]] std::u16string_view Of(const Line& line) const { return std::u16string_view(text_.text).substr(line.start, line.length); }
    [[nodiscard]] const std::u16string& Text() const { return text_.text; }
    [[nodiscard]] int AccessKey() const { return text_.accessKey; }

    /// Width of one character that begins `x` pixels behind the line's start.
    [[nodiscard]] int Step(char16_t character, int x) const
    {
        if (character == u'\t' && format_ & DT_EXPANDTABS) {
            const int tab = kTabColumns * static_cast<int>(face_.Metrics().tmAveCharWidth);
            return tab - x % tab;
        }
        return face_.Advance(character);
    }

private:
    /// End of the line that starts at `start` when it may be `width` wide: behind its last word that fits, at least one word.
    [[nodiscard]] std::size_t BreakAt(std::size_t start, std::size_t end, int width) const
    {
        const std::u16string_view text = text_.text;
        std::size_t fits = start;
        int x = 0;
        for (std::size_t index = start; index < end; ++index) {
            x += Step(text[index], x);
            if (text[index] == u' ') {
                fits = index;
                continue;
            }
            if (x <= width)
                continue;
            if (fits > start)
                return fits;
            if (format_ & DT_EDITCONTROL)
                return std::max(index, start + 1);
            // A word that is too wide stays whole and sticks out.
            return std::min(text.find(u' ', index), end);
        }
        return end;
    }

    /// Behind the blank or the line break that ended a line.
    [[nodiscard]] std::size_t NextStart(std::size_t end) const
    {
        const std::u16string_view text = text_.text;
        if (end >= text.size())
            return end;
        if (text[end] == u' ')
            return end + 1;
        if (text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n')
            return end + 2;
        return text[end] == u'\r' || text[end] == u'\n' ? end + 1 : end;
    }

    const Typeface& face_;
    UINT format_;
    Prefixed text_;
};

/// Cuts the line until it fits together with three dots.
std::u16string WithEllipsis(const Typeface& face, std::u16string_view line, int width)
{
    constexpr std::u16string_view dots = u"...";
    std::u16string shortened(line);
    while (!shortened.empty() && face.Width(shortened) + face.Width(dots) > width)
        shortened.pop_back();
    return shortened.append(dots);
}

/// Left edge of a line inside the rectangle. Without wrapping a line that is too wide still keeps its alignment and sticks out on both
/// sides.
int AlignedLeft(const RECT& rectangle, int width, UINT format)
{
    if (format & DT_CENTER)
        return (rectangle.left + rectangle.right - width) / 2;
    return format & DT_RIGHT ? rectangle.right - width : rectangle.left;
}

void PaintBlockLine(DeviceContext& dc, const TextBlock& block, const Typeface& face, const Line& line, POINT at, int width,
                    const RECT* clip, UINT format, COLORREF color)
{
    std::u16string text(block.Of(line));
    if (format & (DT_END_ELLIPSIS | DT_WORD_ELLIPSIS) && block.Width(line) > width)
        text = WithEllipsis(face, text, width);
    std::vector<INT> advances;
    int x = 0;
    int keyLeft = 0;
    int keyWidth = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const int step = block.Step(text[index], x);
        if (static_cast<int>(line.start + index) == block.AccessKey()) {
            keyLeft = x;
            keyWidth = step;
        }
        if (text[index] == u'\t' && format & DT_EXPANDTABS)
            text[index] = u' ';
        advances.push_back(step);
        x += step;
    }
    if (!(format & DT_PREFIXONLY))
        PaintLine(dc, face, at, text, color, clip, advances.data());
    if (keyWidth > 0 && !(format & DT_HIDEPREFIX)) {
        const int y = at.y + face.Ascent() + 1;
        RECT underline{at.x + keyLeft, y, at.x + keyLeft + keyWidth, y + 1};
        if (clip)
            underline = {std::max(underline.left, clip->left), std::max(underline.top, clip->top), std::min(underline.right, clip->right),
                         std::min(underline.bottom, clip->bottom)};
        dc.Fill(underline, color);
    }
}

}  // namespace

int DrawTextIn(DeviceContext& dc, std::u16string_view text, RECT& rectangle, UINT format, COLORREF color)
{
    const Typeface face = TypefaceOf(dc);
    const TextBlock block(face, text, format);
    const std::vector<Line> lines = block.Lines(rectangle.right - rectangle.left);
    const int height = face.Height() * static_cast<int>(lines.size());
    // An empty text takes no room and yet reports one line.
    const int reported = lines.empty() ? face.Height() : height;
    int top = rectangle.top;
    if (format & DT_SINGLELINE && format & DT_VCENTER)
        top = rectangle.top + (rectangle.bottom - rectangle.top - height) / 2;
    else if (format & DT_SINGLELINE && format & DT_BOTTOM)
        top = rectangle.bottom - height;
    if (format & DT_CALCRECT) {
        int widest = 0;
        for (const Line& line : lines)
            widest = std::max(widest, block.Width(line));
        rectangle.right = rectangle.left + widest;
        rectangle.bottom = top + height;
        return top - rectangle.top + reported;
    }
    const RECT area = dc.ToImage(rectangle);
    SimPc::Current().Get<Graphics>().AddText({block.Text(), area, color, dc.Window()});
    const int available = rectangle.right - rectangle.left;
    int y = top;
    for (const Line& line : lines) {
        if (format & DT_EDITCONTROL && !(format & DT_NOCLIP) && y + face.Height() > rectangle.bottom)
            break;
        const bool shortens = format & (DT_END_ELLIPSIS | DT_WORD_ELLIPSIS);
        const int width = shortens ? std::min(block.Width(line), available) : block.Width(line);
        const POINT at = dc.ToImage(POINT{AlignedLeft(rectangle, width, format), y});
        PaintBlockLine(dc, block, face, line, at, available, format & DT_NOCLIP ? nullptr : &area, format, color);
        y += face.Height();
    }
    return top - rectangle.top + reported;
}

}  // namespace platform

int WINAPI DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rectangle, UINT format)
{
    SIM_NOTE(dc, Counted(text, length).c_str(), length, rectangle, format);
    const auto context = FindDc(dc);
    if (!context || !text || !rectangle)
        return 0;
    const std::u16string_view all = length < 0 ? std::u16string_view(text) : std::u16string_view(text, static_cast<std::size_t>(length));
    return DrawTextIn(*context, all, *rectangle, format, context->state.textColor);
}
