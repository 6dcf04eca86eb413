// TabOrder: which control comes next for the keyboard focus when the host moves it.
#pragma once

namespace host {

class Control;
class Form;

/// The control of the form that follows (or precedes) the tab index, with wrapping round; null when none can take the focus. A control can
/// when it takes the focus at all, is a tab stop, visible and enabled. `except` is passed over.
[[nodiscard]] Control* NextInTabOrder(const Form& form, int tabIndex, bool backward, const Control* except = nullptr);

/// Whether the focus can go to the control now, tab stop or not.
[[nodiscard]] bool CanGetFocusNow(const Control& control);

}  // namespace host
