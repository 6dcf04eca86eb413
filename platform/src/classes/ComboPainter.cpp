// ComboPainter: turns the field and the open list of a combo box into pixels.
#include "platform/src/classes/ComboBox.h"
#include "platform/src/theme/ThemeParts.h"

#include <vsstyle.h>

#include <algorithm>

namespace platform {

namespace {

constexpr int kArrowWidth = 17;

COLORREF SystemColor(int index)
{
    return SimPc::Current().Get<Graphics>().SystemColor(index);
}

void DrawItem(Canvas& canvas, const RECT& cell, const std::u16string& text, bool highlighted)
{
    if (highlighted) {
        canvas.Fill(cell, SystemColor(COLOR_HIGHLIGHT));
        canvas.TextColor(SystemColor(COLOR_HIGHLIGHTTEXT));
    }
    RECT place{cell.left + 2, cell.top, cell.right, cell.bottom};
    canvas.Text(text, place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

void DrawArrow(Canvas& canvas, const RECT& button, COLORREF color)
{
    const LONG middle = (button.left + button.right) / 2;
    const LONG top = (button.top + button.bottom) / 2 - 1;
    for (LONG row = 0; row < 4; ++row)
        canvas.Line({middle - 3 + row, top + row}, {middle + 4 - row, top + row}, color);
}

}  // namespace

void PaintComboField(HDC dc, const RECT& client, const ComboBox::Look& look, HBRUSH background)
{
    Canvas canvas(dc);
    if (look.font)
        canvas.Font(look.font);
    canvas.BackMode(TRANSPARENT);
    RECT field{client.left + 3, client.top + 3, client.right - kArrowWidth - 2, client.bottom - 3};
    const RECT button{client.right - kArrowWidth - 2, client.top + 2, client.right - 2, client.bottom - 2};
    if (look.themed) {
        const int state = !look.enabled ? CBXS_DISABLED : look.dropped ? CBXS_PRESSED : CBXS_NORMAL;
        canvas.Fill(client, SystemColor(COLOR_BTNFACE));  // The look's round corners let the parent through.
        DrawThemePart(VSCLASS_COMBOBOX, dc, CP_READONLY, state, client);
        DrawThemePart(VSCLASS_COMBOBOX, dc, CP_DROPDOWNBUTTONRIGHT, state, button);
    } else {
        canvas.Fill(client, background);
        RECT frame = client;
        canvas.Edge(frame, EDGE_SUNKEN, BF_RECT);
        RECT raised = button;
        canvas.Edge(raised, look.dropped ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_MIDDLE | BF_SOFT);
        DrawArrow(canvas, button, SystemColor(look.enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    }
    if (!look.enabled)
        canvas.TextColor(SystemColor(COLOR_GRAYTEXT));
    const bool marked = look.focused && !look.dropped;
    const std::u16string text = look.shown < 0 ? u"" : look.items[static_cast<std::size_t>(look.shown)];
    DrawItem(canvas, field, text, marked && !look.themed);
    if (marked)
        canvas.FocusRect(field);
}

void PaintComboList(HDC dc, const RECT& client, const ComboBox::Look& look, HBRUSH background)
{
    Canvas canvas(dc);
    if (look.font)
        canvas.Font(look.font);
    canvas.BackMode(TRANSPARENT);
    canvas.Fill(client, background);
    RECT cell{client.left, client.top, client.right, client.top + look.itemHeight};
    for (int index = look.first; index < static_cast<int>(look.items.size()) && cell.top < client.bottom; ++index) {
        canvas.TextColor(SystemColor(COLOR_WINDOWTEXT));
        DrawItem(canvas, cell, look.items[static_cast<std::size_t>(index)], index == look.shown);
        cell.top += look.itemHeight;
        cell.bottom += look.itemHeight;
    }
}

}  // namespace platform
