// CommandButtonAccessibility: what a screen reader is told of a button.
#include "controls/CommandButton/CommandButton.h"
#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace controls {

LONG CommandButton::AccessibleState() const
{
    const bool isOn = buttonType_ == ToggleButton && value_ == 1;
    const bool isDown = isOn || (Enabled() && state_ == StatePressed);
    return (isOn ? STATE_SYSTEM_CHECKED : 0) | (isDown ? STATE_SYSTEM_PRESSED : 0) | (GetExtender().Default() ? STATE_SYSTEM_DEFAULT : 0);
}

host::AccessibleFacts CommandButton::Accessibility()
{
    host::AccessibleFacts facts = LibraryControl::Accessibility();
    const bool isToggle = buttonType_ == ToggleButton;
    facts.role = isToggle ? ROLE_SYSTEM_CHECKBUTTON : ROLE_SYSTEM_PUSHBUTTON;
    facts.state = AccessibleState() | (Enabled() && state_ == StateHot ? STATE_SYSTEM_HOTTRACKED : 0);
    facts.caption = WindowTextUnsubclassed(subclassControl_, hWnd());
    if (facts.caption.empty())
        facts.caption = caption_;
    facts.action = !isToggle ? TEXT("Press") : value_ == 0 ? TEXT("Check") : TEXT("Uncheck");
    return facts;
}

/// Where the mouse is, readers see for themselves.
void CommandButton::AnnounceState()
{
    const LONG state = AccessibleState();
    if (std::exchange(announcedState_, state) != state)
        Announce(EVENT_OBJECT_STATECHANGE);
}

}  // namespace controls
