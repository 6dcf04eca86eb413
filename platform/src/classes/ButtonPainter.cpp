// ButtonPainter: turns a button's state into pixels, with visual styles and in the classic look.
#include "platform/src/classes/Button.h"
#include "platform/src/theme/ThemeParts.h"

#include <vsstyle.h>

#include <algorithm>

namespace platform {

namespace {

constexpr int kBox = 13;     // a check box's box
constexpr int kTextGap = 3;  // between the box and the text

COLORREF SystemColor(int index)
{
    return SimPc::Current().Get<Graphics>().SystemColor(index);
}

/// Whether it looks like a check box too.
bool IsCheckBox(DWORD style)
{
    return (style & BS_TYPEMASK) == BS_3STATE && !(style & BS_PUSHLIKE);
}

RECT Shrunk(RECT rectangle, int by)
{
    return {rectangle.left + by, rectangle.top + by, rectangle.right - by, rectangle.bottom - by};
}

UINT TextFormat(const Button::Look& look, DWORD standardAlignment)
{
    const UINT format = look.style & BS_MULTILINE ? DT_WORDBREAK : DT_SINGLELINE;
    DWORD alignment = look.style & BS_CENTER;
    if (alignment == 0)
        alignment = standardAlignment;
    return format | (alignment == BS_CENTER ? DT_CENTER : alignment == BS_RIGHT ? DT_RIGHT : DT_LEFT);
}

/// Draws the caption and, around it, the focus rectangle. Text stands in the middle of the height.
void DrawCaption(Canvas& canvas, const RECT& area, const Button::Look& look, UINT format)
{
    TextRuler ruler(look.font);
    const SIZE size = ruler.Box(look.text, area.right - area.left, format);
    RECT cell = area;
    cell.top += (area.bottom - area.top - size.cy) / 2;
    cell.bottom = cell.top + size.cy;
    canvas.BackMode(TRANSPARENT);
    if (!look.enabled && !look.themed) {
        RECT relief{cell.left + 1, cell.top + 1, cell.right + 1, cell.bottom + 1};
        canvas.TextColor(SystemColor(COLOR_BTNHIGHLIGHT));
        canvas.Text(look.text, relief, format);
    }
    if (!look.enabled)
        canvas.TextColor(SystemColor(COLOR_GRAYTEXT));
    RECT text = cell;
    canvas.Text(look.text, text, format);
    if ((look.state & BST_FOCUS) && IsCheckBox(look.style)) {
        RECT focus{cell.left - 1, cell.top, std::min<LONG>(cell.left + size.cx + 1, area.right), cell.bottom};
        if (format & DT_RIGHT)
            focus = {std::max<LONG>(area.right - size.cx - 1, area.left), cell.top, area.right, cell.bottom};
        canvas.FocusRect(focus);
    }
}

int StateOf(const Button::Look& look)
{
    return !look.enabled ? PBS_DISABLED : look.state & BST_PUSHED ? PBS_PRESSED : look.hot ? PBS_HOT : PBS_NORMAL;
}

void PaintPush(HDC dc, const RECT& client, const Button::Look& look, HBRUSH background)
{
    Canvas canvas(dc);
    if (look.font)
        canvas.Font(look.font);
    canvas.Fill(client, background);
    const bool pushed = (look.state & (BST_PUSHED | BST_CHECKED)) != 0;
    RECT face = client;
    if (look.themed) {
        int state = StateOf(look);
        if (state == PBS_NORMAL && pushed)
            state = PBS_PRESSED;
        DrawThemePart(VSCLASS_BUTTON, dc, BP_PUSHBUTTON, state, client);
    } else {
        canvas.Edge(face, pushed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_SOFT | BF_MIDDLE | BF_ADJUST);
    }
    RECT text = Shrunk(client, 3);
    if (pushed && !look.themed)
        text = {text.left + 1, text.top + 1, text.right + 1, text.bottom + 1};
    DrawCaption(canvas, text, look, TextFormat(look, BS_CENTER));
    if (look.state & BST_FOCUS)
        canvas.FocusRect(Shrunk(client, 3));
}

void DrawClassicBox(Canvas& canvas, RECT box, const Button::Look& look)
{
    const bool grey = !look.enabled || (look.state & BST_PUSHED) || (look.state & 3) == BST_INDETERMINATE;
    canvas.Edge(box, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    canvas.Fill(box, SystemColor(grey ? COLOR_BTNFACE : COLOR_WINDOW));
    if ((look.state & 3) == BST_UNCHECKED)
        return;
    const bool pale = !look.enabled || (look.state & 3) == BST_INDETERMINATE;
    const COLORREF color = SystemColor(pale ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT);
    for (int step = 0; step < 7; ++step) {  // The tick: two pixels down, four up, three pixels thick.
        const int x = box.left + 1 + step;
        const int y = box.top + (step < 2 ? 3 + step : 7 - step);
        canvas.Line({x, y}, {x, y + 3}, color);
    }
}

void PaintCheckBox(HDC dc, const RECT& client, const Button::Look& look, HBRUSH background)
{
    Canvas canvas(dc);
    if (look.font)
        canvas.Font(look.font);
    canvas.Fill(client, background);
    const LONG top = (client.top + client.bottom - kBox) / 2;
    RECT box{client.left, top, client.left + kBox, top + kBox};
    RECT text{box.right + kTextGap, client.top, client.right, client.bottom};
    if (look.style & BS_LEFTTEXT) {
        box = {client.right - kBox, box.top, client.right, box.bottom};
        text = {client.left, client.top, box.left - kTextGap, client.bottom};
    }
    if (look.themed) {
        const int first = (look.state & 3) * 4;  // unchecked, checked, mixed: four states each
        DrawThemePart(VSCLASS_BUTTON, dc, BP_CHECKBOX, first + StateOf(look), box);
    } else {
        DrawClassicBox(canvas, box, look);
    }
    DrawCaption(canvas, text, look, TextFormat(look, BS_LEFT));
}

}  // namespace

void PaintButton(HDC dc, const RECT& client, const Button::Look& look, HBRUSH background)
{
    if (IsCheckBox(look.style))
        PaintCheckBox(dc, client, look, background);
    else
        PaintPush(dc, client, look, background);
}

}  // namespace platform
