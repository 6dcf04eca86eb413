// TabOrder: who qualifies and who wins.
#include "controls/TabOrder.h"

#include "base/String.h"
#include "host/TabOrder.h"

#include <algorithm>

namespace controls {

namespace {

/// Kinds that never take the focus, whatever their properties say.
bool IsPassive(base::StringView kind)
{
    static constexpr base::StringView passive[] = {TEXT("Timer"), TEXT("Form"),  TEXT("Frame"), TEXT("Shape"),
                                                   TEXT("Line"),  TEXT("Label"), TEXT("Image"), TEXT("Menu")};
    return std::ranges::find(passive, kind) != std::end(passive);
}

bool Qualifies(host::Control& control, const TabOrderSearch& search)
{
    if (IsPassive(control.Kind()))
        return false;
    const HWND window = control.hWnd();
    if (!window || !control.GetExtender().TabStop() || window == search.ownWindow)
        return false;
    if (search.skipContainer && window == search.containerWindow)
        return false;
    if (search.scope == FocusScope::OwnContainer && control.ContainerWindow() != search.containerWindow)
        return false;
    // A control on a disabled container counts as enabled, but Windows would not let it have the focus.
    return IsWindowVisible(window) && control.Enabled() && host::CanGetFocusNow(control);
}

/// Whether `index` beats `best`: those on the far side of `own` in the direction of travel win, and among them the nearest.
bool Beats(std::int32_t index, std::int32_t best, std::int32_t own, FocusDirection direction)
{
    const bool forward = direction == FocusDirection::Forward;
    const auto isAhead = [=](std::int32_t place) { return forward ? place > own : place < own; };
    if (isAhead(index) != isAhead(best))
        return isAhead(index);
    return forward ? index < best : index > best;
}

}  // namespace

host::Control* FindTabStop(host::Form& form, const TabOrderSearch& search)
{
    host::Control* candidate = nullptr;
    std::int32_t best = -1;
    for (host::Control* const control : form.Controls()) {
        if (!Qualifies(*control, search))
            continue;
        const std::int32_t index = control->GetExtender().TabIndex();
        if (candidate && !Beats(index, best, search.tabIndex, search.direction))
            continue;
        candidate = control;
        best = index;
    }
    return candidate;
}

}  // namespace controls
