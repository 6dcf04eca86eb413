// EditPainter: turns the text of an Edit and its selection into pixels.
#include "platform/src/classes/Edit.h"
#include "platform/src/theme/ThemeParts.h"

#include <vsstyle.h>

#include <algorithm>

namespace platform {

void PaintEdit(HDC dc, const RECT& client, const Edit::Look& look, HBRUSH background)
{
    auto& graphics = SimPc::Current().Get<Graphics>();
    const EditView& view = look.view;
    Canvas canvas(dc);
    canvas.Fill(client, background);
    if (view.GetShape().font)
        canvas.Font(view.GetShape().font);
    if (!look.enabled)
        canvas.TextColor(graphics.SystemColor(COLOR_GRAYTEXT));
    canvas.BackMode(TRANSPARENT);
    const std::u16string_view shown = view.ShownText();
    const std::size_t last = std::min(view.FirstLine() + view.VisibleLines() + 1, view.Lines().Count());
    const auto draw = [&](std::size_t from, std::size_t to) {
        const POINT corner = view.PointOf(from);
        RECT cell{corner.x, corner.y, client.right, corner.y + view.LineHeight()};
        canvas.Text(shown.substr(from, to - from), cell, DT_SINGLELINE | DT_NOPREFIX);
    };
    // First all of it in the colours that the parent gave, then the selected part over it.
    for (std::size_t index = view.FirstLine(); index < last; ++index) {
        const EditLines::Line& line = view.Lines().At(index);
        if (line.length > 0)
            draw(line.start, line.start + line.length);
    }
    canvas.TextColor(graphics.SystemColor(COLOR_HIGHLIGHTTEXT));
    for (std::size_t index = view.FirstLine(); index < last; ++index) {
        const EditLines::Line& line = view.Lines().At(index);
        const std::size_t from = std::clamp(look.selectionStart, line.start, line.start + line.length);
        const std::size_t to = std::clamp(look.selectionEnd, line.start, line.start + line.length);
        if (from >= to)
            continue;
        const POINT corner = view.PointOf(from);
        const int width = TextRuler(view.GetShape().font).Width(shown.substr(from, to - from));
        canvas.Fill(RECT{corner.x, corner.y, std::min<LONG>(corner.x + width, client.right), corner.y + view.LineHeight()},
                    graphics.SystemColor(COLOR_HIGHLIGHT));
        draw(from, to);
    }
}

void PaintEditBorder(HDC windowDc, const RECT& window, int state)
{
    // Visual styles paint over the sunken edge, two pixels wide on every side, and leave the inside alone.
    constexpr int kEdge = 2;
    const RECT strips[] = {{window.left, window.top, window.right, window.top + kEdge},
                           {window.left, window.bottom - kEdge, window.right, window.bottom},
                           {window.left, window.top, window.left + kEdge, window.bottom},
                           {window.right - kEdge, window.top, window.right, window.bottom}};
    for (const RECT& strip : strips)
        DrawThemePart(VSCLASS_EDIT, windowDc, EP_EDITTEXT, state, window, &strip);
}

}  // namespace platform
