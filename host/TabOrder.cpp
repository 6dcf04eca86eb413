// TabOrder: who can take the focus and who is next.
#include "host/TabOrder.h"

#include "host/Form.h"

namespace host {

bool CanGetFocusNow(const Control& control)
{
    const HWND window = control.OwnHandle();
    if (!control.CanGetFocus() || window == nullptr || !IsWindowVisible(window))
        return false;
    // Windows refuses the focus also to a window that stands on a disabled one.
    for (HWND place = window; place != nullptr; place = GetParent(place))
        if (!IsWindowEnabled(place))
            return false;
    return true;
}

Control* NextInTabOrder(const Form& form, int tabIndex, bool backward, const Control* except)
{
    const auto isAhead = [=](int index) { return backward ? index < tabIndex : index > tabIndex; };
    Control* best = nullptr;
    for (Control* const control : form.Controls()) {
        if (control == except || !control->GetExtender().TabStop() || !control->Enabled() || !CanGetFocusNow(*control))
            continue;
        const int index = control->GetExtender().TabIndex();
        if (best != nullptr) {
            const int present = best->GetExtender().TabIndex();
            const bool isNearer = backward ? index > present : index < present;
            if (isAhead(index) != isAhead(present) ? !isAhead(index) : !isNearer)
                continue;
        }
        best = control;
    }
    return best;
}

}  // namespace host
