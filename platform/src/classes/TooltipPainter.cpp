// TooltipPainter: the size of a tip, and its pixels.
#include "platform/src/classes/Tooltip.h"

#include <algorithm>

namespace platform {

namespace {

constexpr int kMargin = 4;
constexpr int kBalloonMargin = 8;
constexpr int kIcon = 16;

UINT Format(const Tooltip::Look& look)
{
    return DT_LEFT | DT_EXPANDTABS | (look.noPrefix ? DT_NOPREFIX : 0) | (look.maxWidth >= 0 ? DT_WORDBREAK : 0);
}

int Margin(const Tooltip::Look& look)
{
    return look.balloon ? kBalloonMargin : kMargin;
}

/// Title and icon stand in one row above the text.
SIZE HeadSize(const Tooltip::Look& look)
{
    if (look.title.empty())
        return {0, 0};
    const bool icon = look.icon != TTI_NONE;
    const SIZE title = TextRuler(look.font).Box(look.title, 0, DT_SINGLELINE | DT_NOPREFIX);
    return {title.cx + (icon ? kIcon + kMargin : 0), std::max<LONG>(title.cy, icon ? kIcon : 0) + kMargin};
}

void DrawIcon(Canvas& canvas, int icon, POINT corner)
{
    const COLORREF color = icon == TTI_INFO ? RGB(0, 84, 227) : icon == TTI_WARNING ? RGB(255, 204, 0) : RGB(204, 0, 0);
    canvas.Fill(RECT{corner.x, corner.y, corner.x + kIcon, corner.y + kIcon}, color);
}

}  // namespace

SIZE MeasureTooltip(const Tooltip::Look& look)
{
    const SIZE head = HeadSize(look);
    const SIZE text = TextRuler(look.font).Box(look.text, std::max(look.maxWidth, 0), Format(look));
    return {std::max(head.cx, text.cx) + 2 * Margin(look), head.cy + text.cy + 2 * Margin(look)};
}

void PaintTooltip(HDC dc, const RECT& client, const Tooltip::Look& look)
{
    Canvas canvas(dc);
    if (look.font)
        canvas.Font(look.font);
    canvas.Fill(client, look.backColor);
    canvas.Outline(client, look.textColor);
    canvas.TextColor(look.textColor);
    canvas.BackMode(TRANSPARENT);
    const int margin = Margin(look);
    RECT cell{client.left + margin, client.top + margin, client.right - margin, client.bottom - margin};
    if (!look.title.empty()) {
        RECT title = cell;
        if (look.icon != TTI_NONE) {
            DrawIcon(canvas, look.icon, {cell.left, cell.top});
            title.left += kIcon + kMargin;
        }
        canvas.Text(look.title, title, DT_SINGLELINE | DT_NOPREFIX);
        cell.top += HeadSize(look).cy;
    }
    canvas.Text(look.text, cell, Format(look));
}

}  // namespace platform
