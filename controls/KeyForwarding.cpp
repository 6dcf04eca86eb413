// KeyForwarding: routine by name first, message second.
#include "controls/KeyForwarding.h"

namespace controls {

namespace {

/// By host::KeyEvent.
struct Kind {
    const WCHAR* routine;
    UINT message;
};

constexpr Kind kinds[] = {{TEXT("Form_KeyDown"), WM_KEYDOWN}, {TEXT("Form_KeyUp"), WM_KEYUP}, {TEXT("Form_KeyPress"), WM_CHAR}};

}  // namespace

void KeyForwarding::Forward(host::Form& form, host::KeyEvent event, LPARAM lParam, std::int16_t& code, std::int16_t& shift)
{
    if (!form.KeyPreview())
        return;
    const auto kind = static_cast<std::size_t>(event);
    Mode& mode = modes_[kind];
    const host::Form::Routine* const routine = mode == Mode::SendMessage ? nullptr : form.RoutineByName(kinds[kind].routine);
    mode = routine ? Mode::CallRoutine : Mode::SendMessage;
    if (routine)
        (*routine)(code, shift);
    else
        SendMessageW(form.hWnd(), kinds[kind].message, static_cast<WPARAM>(static_cast<WORD>(code)), lParam);
}

void PostToFormButtons(host::Form& form, std::int16_t keyCode)
{
    if (keyCode != VK_RETURN && keyCode != VK_ESCAPE)
        return;
    for (host::Control* const control : form.Controls()) {
        if (control->Kind() != TEXT("CommandButton"))
            continue;
        const host::Extender& extender = control->GetExtender();
        if (keyCode == VK_RETURN ? extender.Default() : extender.Cancel()) {
            PostMessageW(control->hWnd(), WM_KEYDOWN, VK_RETURN, 0);
            PostMessageW(control->hWnd(), WM_KEYUP, VK_RETURN, 0);
        }
    }
}

}  // namespace controls
