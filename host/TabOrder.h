// TabOrder: which control comes next for the keyboard focus.
#pragma once

namespace host {

class Control;
class Form;

enum class FocusDirection { Forward, Backward };

/// Among which controls the next one is looked for: those of the whole form, those in the same container, those in any other.
enum class FocusScope { AllContainers, OwnContainer, OtherContainers };

/// The control of the form that follows (or precedes) a place in the tab order, wrapping round at either end; null when none can take the
/// focus. A control can when it takes the focus at all, is a tab stop, visible and enabled.
[[nodiscard]] Control* NextInTabOrder(const Form& form, int tabIndex, FocusDirection direction);

/// The same from the place of a control on; it and the control that it stands in are passed over.
[[nodiscard]] Control* NextInTabOrder(const Control& from, FocusDirection direction, FocusScope scope = FocusScope::AllContainers);

/// Gives the focus to that next control. False when there is none.
bool MoveFocus(const Control& from, FocusDirection direction, FocusScope scope);

/// Whether the focus can go to the control now, tab stop or not.
[[nodiscard]] bool CanGetFocusNow(const Control& control);

}  // namespace host
