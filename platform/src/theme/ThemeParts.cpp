// Parts of visual styles: soft gradients in thin frames with rounded corners, blue under the mouse. No page says how a part looks, so none
// is compared with Windows' own: what counts is that the states of a part can be told apart and that a picture stays the same.
#include "platform/src/theme/ThemeParts.h"

#include <vsstyle.h>
#include <windows.h>

#include <iterator>
#include <span>

namespace platform {

namespace {

/// A face from its upper to its lower colour inside a frame, with a second frame just inside the first.
struct Look {
    COLORREF frame, inner, top, bottom;
};

constexpr Look kPushButtons[]{
    {RGB(112, 112, 112), RGB(252, 252, 252), RGB(242, 242, 242), RGB(207, 207, 207)},
    {RGB(60, 127, 177), RGB(250, 253, 254), RGB(234, 246, 253), RGB(167, 217, 245)},
    {RGB(44, 98, 139), RGB(158, 176, 186), RGB(229, 244, 252), RGB(104, 179, 219)},
    {RGB(173, 178, 181), RGB(252, 252, 252), RGB(244, 244, 244), RGB(244, 244, 244)},
    {RGB(60, 127, 177), RGB(72, 216, 251), RGB(242, 242, 242), RGB(207, 207, 207)},
};
/// Normal, hot, pressed, disabled; boxes, combo boxes and their arrows take the same four.
constexpr Look kBoxes[]{
    {RGB(142, 143, 143), RGB(244, 244, 244), RGB(203, 207, 213), RGB(246, 246, 246)},
    {RGB(60, 127, 177), RGB(222, 249, 250), RGB(177, 223, 253), RGB(233, 247, 254)},
    {RGB(44, 98, 139), RGB(194, 228, 246), RGB(94, 182, 247), RGB(211, 237, 254)},
    {RGB(174, 179, 185), RGB(240, 240, 240), RGB(240, 240, 240), RGB(251, 251, 251)},
};
constexpr COLORREF kGroupFrames[]{RGB(213, 223, 229), RGB(226, 232, 235)};
constexpr COLORREF kTickColor = RGB(4, 34, 113);
constexpr COLORREF kDisabledInk = RGB(131, 131, 131);
constexpr LONG kBoxSize = 13;  // as GetThemePartSize has it at 96 dots per inch; a larger place holds it in its middle

COLORREF Between(COLORREF from, COLORREF to, int step, int steps)
{
    const auto channel = [&](int shift) {
        const int first = static_cast<int>(from >> shift & 0xFF);
        const int last = static_cast<int>(to >> shift & 0xFF);
        return static_cast<COLORREF>(steps > 0 ? first + (last - first) * step / steps : first) << shift;
    };
    return channel(0) | channel(8) | channel(16);
}

RECT Shrunk(const RECT& r, LONG by)
{
    return {r.left + by, r.top + by, r.right - by, r.bottom - by};
}

/// A frame one pixel wide whose corners are cut. Pixels of the image.
void PaintCutFrame(DeviceContext& dc, const RECT& r, COLORREF color)
{
    dc.Fill(RECT{r.left + 1, r.top, r.right - 1, r.top + 1}, color);
    dc.Fill(RECT{r.left + 1, r.bottom - 1, r.right - 1, r.bottom}, color);
    dc.Fill(RECT{r.left, r.top + 1, r.left + 1, r.bottom - 1}, color);
    dc.Fill(RECT{r.right - 1, r.top + 1, r.right, r.bottom - 1}, color);
}

void PaintFace(DeviceContext& dc, const RECT& r, const Look& look)
{
    const RECT face = Shrunk(r, 2);
    for (LONG y = face.top; y < face.bottom; ++y)
        dc.Fill(RECT{face.left, y, face.right, y + 1}, Between(look.top, look.bottom, y - face.top, face.bottom - face.top - 1));
    PaintCutFrame(dc, Shrunk(r, 1), look.inner);
    PaintCutFrame(dc, r, look.frame);
}

void PaintTick(DeviceContext& dc, const RECT& box, COLORREF color)
{
    constexpr int offsets[]{3, 4, 5, 4, 3, 2, 1};
    for (int column = 0; column < 7; ++column)
        dc.Fill(RECT{box.left + 3 + column, box.top + 2 + offsets[column], box.left + 4 + column, box.top + 5 + offsets[column]}, color);
}

bool PaintCheckBox(DeviceContext& dc, const RECT& r, int state)
{
    if (state < CBS_UNCHECKEDNORMAL || state > CBS_MIXEDDISABLED)
        return false;
    const LONG left = (r.left + r.right - kBoxSize) / 2;
    const LONG top = (r.top + r.bottom - kBoxSize) / 2;
    const RECT box{left, top, left + kBoxSize, top + kBoxSize};
    PaintFace(dc, box, kBoxes[(state - 1) % 4]);
    const COLORREF ink = state % 4 == 0 ? kDisabledInk : kTickColor;
    if (state >= CBS_MIXEDNORMAL)
        dc.Fill(Shrunk(box, 4), ink);
    else if (state >= CBS_CHECKEDNORMAL)
        PaintTick(dc, box, ink);
    return true;
}

bool PaintButtonPart(DeviceContext& dc, int part, int state, const RECT& r)
{
    switch (part) {
        case BP_PUSHBUTTON:
            if (state < 0 || state > static_cast<int>(std::size(kPushButtons)))
                return false;
            PaintFace(dc, r, kPushButtons[state == 0 ? 0 : state - 1]);  // State 0 is drawn as the part without a state: normal.
            return true;
        case BP_CHECKBOX:
            return PaintCheckBox(dc, r, state);
        case BP_GROUPBOX:
            if (state != GBS_NORMAL && state != GBS_DISABLED)
                return false;
            PaintCutFrame(dc, r, kGroupFrames[state - 1]);
            return true;
        default:
            return false;
    }
}

bool PaintEditPart(DeviceContext& dc, int part, int state, const RECT& r)
{
    if (part != EP_EDITTEXT && part != EP_BACKGROUND && part != EP_EDITBORDER_NOSCROLL)
        return false;
    const bool lively = part == EP_EDITTEXT && (state == ETS_HOT || state == ETS_FOCUSED);
    dc.Fill(Shrunk(r, 1),
            SimPc::Current().Get<Graphics>().SystemColor(part == EP_EDITTEXT && state == ETS_DISABLED ? COLOR_BTNFACE : COLOR_WINDOW));
    PaintCutFrame(dc, r, lively ? RGB(61, 123, 173) : RGB(171, 173, 179));
    return true;
}

bool PaintComboPart(DeviceContext& dc, int part, int state, const RECT& r)
{
    if (state < CBXS_NORMAL || state > CBXS_DISABLED)
        return false;
    if (part == CP_BORDER)
        return PaintEditPart(dc, EP_EDITTEXT, state == CBXS_DISABLED ? ETS_DISABLED : state == CBXS_NORMAL ? ETS_NORMAL : ETS_HOT, r);
    if (part == CP_READONLY) {
        PaintFace(dc, r, kPushButtons[state - 1]);
        return true;
    }
    if (part != CP_DROPDOWNBUTTON && part != CP_DROPDOWNBUTTONRIGHT)
        return false;
    if (part == CP_DROPDOWNBUTTON || state != CBXS_NORMAL)
        PaintFace(dc, r, kPushButtons[state - 1]);
    const LONG centre = (r.left + r.right) / 2;
    const LONG top = (r.top + r.bottom) / 2 - 2;
    for (int row = 0; row < 4; ++row)
        dc.Fill(RECT{centre - 3 + row, top + row, centre + 4 - row, top + row + 1}, state == CBXS_DISABLED ? kDisabledInk : RGB(0, 0, 0));
    return true;
}

}  // namespace

bool HasThemeClass(std::u16string_view className)
{
    return className == VSCLASS_BUTTON || className == VSCLASS_EDIT || className == VSCLASS_COMBOBOX;
}

bool PaintThemePart(DeviceContext& dc, std::u16string_view className, int part, int state, const RECT& rectangle)
{
    const RECT r = dc.ToImage(rectangle);
    if (className == VSCLASS_BUTTON)
        return PaintButtonPart(dc, part, state, r);
    if (className == VSCLASS_EDIT)
        return PaintEditPart(dc, part, state, r);
    return className == VSCLASS_COMBOBOX && PaintComboPart(dc, part, state, r);
}

bool DrawThemePart(std::u16string_view className, HDC dc, int part, int state, const RECT& rectangle, const RECT* clip)
{
    const auto context = SimPc::Current().Handles().Find<DeviceContext>(dc);
    if (!context)
        return false;
    if (!clip)
        return PaintThemePart(*context, className, part, state, rectangle);
    // The clip narrows the device context's own for this one drawing.
    const std::optional<Region> before = context->state.clip;
    const Region device = Region(*clip).Offset(context->state.viewport.x, context->state.viewport.y);
    context->state.clip = before ? before->Intersect(device) : device;
    context->ClipChanged();
    const bool drawn = PaintThemePart(*context, className, part, state, rectangle);
    context->state.clip = before;
    context->ClipChanged();
    return drawn;
}

COLORREF ThemeTextColor(std::u16string_view className, int part, int state)
{
    bool disabled = state == CBXS_DISABLED;
    if (className == VSCLASS_BUTTON && part == BP_CHECKBOX)
        disabled = state % 4 == 0;
    else if (className == VSCLASS_BUTTON && part == BP_GROUPBOX)
        disabled = state == GBS_DISABLED;
    return disabled ? kDisabledInk : RGB(0, 0, 0);
}

Region ThemePartRegion(std::u16string_view className, int part, const RECT& rectangle)
{
    // A group box covers its frame only.
    if (className == VSCLASS_BUTTON && part == BP_GROUPBOX)
        return Region(rectangle).Subtract(Region(Shrunk(rectangle, 1)));
    return Region(rectangle);
}

}  // namespace platform
