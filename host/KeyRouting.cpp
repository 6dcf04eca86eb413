// KeyRouting: the order in which form, access keys, buttons and the tab order get a key.
#include "host/KeyRouting.h"

#include "host/Form.h"
#include "host/TabOrder.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::int16_t shiftHeld = 1, ctrlHeld = 2, altHeld = 4;

int TabIndexOf(const Control* control)
{
    return control ? control->GetExtender().TabIndex() : -1;
}

FocusDirection DirectionOf(std::int16_t shift)
{
    return (shift & shiftHeld) != 0 ? FocusDirection::Backward : FocusDirection::Forward;
}

bool AnswersTo(const Control& control, base::StringView key)
{
    return control.Enabled() && control.OwnHandle() && IsWindowVisible(control.OwnHandle()) && IsWindowEnabled(control.OwnHandle()) &&
           base::FindIgnoringCase(control.AccessKey(), key) != base::String::npos;
}

/// Of several controls with the same letter the next one after the active control, so that pressing it again goes round.
Control* ControlWithAccessKey(const Form& form, base::StringView key)
{
    std::vector<Control*> controls = form.Controls();
    std::erase_if(controls, [=](const Control* control) { return !AnswersTo(*control, key); });
    const int own = TabIndexOf(form.ActiveControl());
    const auto next = std::ranges::min_element(controls, {}, [=](const Control* control) {
        const int index = TabIndexOf(control);
        return std::pair(index <= own, index);
    });
    return next == controls.end() ? nullptr : *next;
}

bool PressAccessKey(Form& form, WCHAR key)
{
    Control* const control = ControlWithAccessKey(form, {&key, 1});
    if (!control)
        return false;
    if (control->CanGetFocus())
        control->SetFocus();
    else
        MoveFocus(*control, FocusDirection::Forward, FocusScope::AllContainers);
    if (form.IsLoaded())
        control->AccessKeyPress(static_cast<std::int16_t>(key));
    return true;
}

/// Enter and Esc go to the button that the form names for them, without moving the focus.
bool PressButton(const Form& form, bool (Extender::*isIt)() const, std::int16_t key)
{
    for (Control* const control : form.Controls()) {
        if ((control->GetExtender().*isIt)() && control->Enabled() && control->OwnHandle() && IsWindowVisible(control->OwnHandle())) {
            control->AccessKeyPress(key);
            return true;
        }
    }
    return false;
}

bool Navigate(const Form& form, const Control* focused, std::int16_t key)
{
    const std::int16_t shift = ShiftState();
    if ((focused && focused->WantsKey(key)) || (shift & (ctrlHeld | altHeld)) != 0)
        return false;
    switch (key) {
        case VK_RETURN:
            return PressButton(form, &Extender::Default, key);
        case VK_ESCAPE:
            return PressButton(form, &Extender::Cancel, key);
        case VK_TAB:
            if (Control* const next = NextInTabOrder(form, TabIndexOf(focused ? focused : form.ActiveControl()), DirectionOf(shift)))
                next->SetFocus();
            return true;
        default:
            return false;
    }
}

/// A push button keeps Tab within its own container; F6, the key that goes from pane to pane, leads out of it.
bool GoToOtherContainer(const Control& focused)
{
    const std::int16_t shift = ShiftState();
    return (shift & (ctrlHeld | altHeld)) == 0 && MoveFocus(focused, DirectionOf(shift), FocusScope::OtherContainers);
}

bool RouteKey(Form& form, MSG& message)
{
    const bool isForForm = message.hwnd == form.hWnd();
    const Control* const control = form.ControlOf(message.hwnd);
    const bool isForHosted = control && control->OwnHandle() != message.hwnd;
    if (isForHosted)
        return message.message == WM_KEYDOWN && message.wParam == VK_F6 && GoToOtherContainer(*control);
    if (!isForForm && !control)
        return false;
    if (!isForForm && form.KeyPreview() && (!form.HandleKey(*KeyEventOf(message.message), message.wParam) || !form.IsLoaded()))
        return true;
    if (control && message.message == WM_KEYDOWN && message.wParam == VK_F6)
        return GoToOtherContainer(*control);
    return message.message == WM_KEYDOWN && Navigate(form, control, static_cast<std::int16_t>(message.wParam));
}

/// A system window that a control hosts takes the focus by itself when it is clicked. The control that has it must hear before
/// its windows lose it that it is left.
void LeaveActiveControl(Form& form, HWND clicked)
{
    const Control* const control = form.ControlOf(clicked);
    if (control && control != form.ActiveControl() && control->OwnHandle() != clicked)
        form.Activate(nullptr);
}

}  // namespace

std::optional<KeyEvent> KeyEventOf(UINT message)
{
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return KeyEvent::Down;
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return KeyEvent::Up;
        case WM_CHAR:
            return KeyEvent::Press;
        default:
            return {};
    }
}

std::int16_t ShiftState()
{
    return static_cast<std::int16_t>((GetKeyState(VK_SHIFT) < 0 ? shiftHeld : 0) | (GetKeyState(VK_CONTROL) < 0 ? ctrlHeld : 0) |
                                     (GetKeyState(VK_MENU) < 0 ? altHeld : 0));
}

bool RouteMessage(MSG& message)
{
    Form* const form = Form::Of(message.hwnd);
    if (!form)
        return false;
    switch (message.message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            form->UserActs();
            LeaveActiveControl(*form, message.hwnd);
            return false;
        case WM_RBUTTONDOWN:
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
        case WM_MOUSEWHEEL:
            form->UserActs();
            return false;
        case WM_SYSCHAR:
            return PressAccessKey(*form, static_cast<WCHAR>(message.wParam));
        default:
            break;
    }
    const std::optional<KeyEvent> event = KeyEventOf(message.message);
    if (event == KeyEvent::Down)
        form->UserActs();
    if (!event || RouteKey(*form, message))
        return event.has_value();
    if (message.message == WM_KEYDOWN)
        form->ScrollByKey(message);
    return false;
}

}  // namespace host
