#include "host/TabOrder.h"

#include "host/Form.h"

namespace host {

namespace {

/// Whether the place `index` comes before `best` for somebody at `own`: those ahead in the direction of travel win, among them the nearest.
bool Beats(int index, int best, int own, FocusDirection direction)
{
    const bool forward = direction == FocusDirection::Forward;
    const auto isAhead = [=](int place) { return forward ? place > own : place < own; };
    if (isAhead(index) != isAhead(best))
        return isAhead(index);
    return forward ? index < best : index > best;
}

template <class Counts>
Control* Next(const Form& form, int tabIndex, FocusDirection direction, Counts counts)
{
    Control* best = nullptr;
    for (Control* const control : form.Controls()) {
        const Extender& extender = control->GetExtender();
        if (!extender.TabStop() || !CanGetFocusNow(*control) || !IsWindowVisible(control->hWnd()) || !counts(*control))
            continue;
        if (!best || Beats(extender.TabIndex(), best->GetExtender().TabIndex(), tabIndex, direction))
            best = control;
    }
    return best;
}

}  // namespace

bool CanGetFocusNow(const Control& control)
{
    const HWND window = control.OwnHandle();
    if (!control.CanGetFocus() || !control.Enabled() || !window || !IsWindowVisible(window))
        return false;
    // Windows refuses the focus also to a window that stands on a disabled one.
    for (HWND place = window; place; place = GetParent(place))
        if (!IsWindowEnabled(place))
            return false;
    return true;
}

Control* NextInTabOrder(const Form& form, int tabIndex, FocusDirection direction)
{
    return Next(form, tabIndex, direction, [](const Control&) { return true; });
}

Control* NextInTabOrder(const Control& from, FocusDirection direction, FocusScope scope)
{
    return Next(from.ParentForm(), from.GetExtender().TabIndex(), direction, [&](const Control& control) {
        const bool isBeside = control.ContainerWindow() == from.ContainerWindow();
        return &control != &from && control.OwnHandle() != from.ContainerWindow() &&
               (scope == FocusScope::AllContainers || isBeside == (scope == FocusScope::OwnContainer));
    });
}

bool MoveFocus(const Control& from, FocusDirection direction, FocusScope scope)
{
    Control* const next = NextInTabOrder(from, direction, scope);
    if (next)
        next->SetFocus();
    return next != nullptr;
}

}  // namespace host
