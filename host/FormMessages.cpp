// Form: the messages of its window, the focus and the timers.
#include "host/Form.h"
#include "host/KeyRouting.h"
#include "host/TabOrder.h"

namespace host {

LRESULT Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_CLOSE:
        case WM_DESTROY:
            // WM_DESTROY finds a loaded form only when somebody else destroys its window.
            Unload();
            return 0;
        case WM_ERASEBKGND:
        case WM_PRINTCLIENT:
            Fill(reinterpret_cast<HDC>(wParam));
            return 1;
        case WM_PAINT:
            // A child window may ask for the background behind it and gives a DC for it.
            if (wParam == 0)
                break;
            Fill(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_SETFOCUS:
            RestoreFocus();
            return 0;
        case WM_TIMER:
            if (const auto timer = timers_.find(wParam); timer != timers_.end()) {
                const std::function<void()> tick = timer->second;
                tick();
            }
            return 0;
        case WM_COMMAND:
            if (Control* const control = ControlOf(reinterpret_cast<HWND>(lParam)))
                control->Command(HIWORD(wParam));
            break;
        case WM_SYSCOLORCHANGE:
            // Windows tells only top-level windows.
            ForwardToControls(message, wParam, lParam);
            break;
        default:
            if (scroll_.On(hWnd(), message, wParam))
                return 0;
            if (const auto event = KeyEventOf(message); event && !HandleKey(*event, wParam))
                return 0;
    }
    return Default(message, wParam, lParam);
}

void Form::Fill(HDC target) const
{
    const base::BrushHandle brush(CreateSolidBrush(ToRgb(backColor_)));
    RECT client{};
    GetClientRect(hWnd(), &client);
    if (brush)
        FillRect(target, &client, brush.Get());
}

void Form::ForwardToControls(UINT message, WPARAM wParam, LPARAM lParam)
{
    for (Control* const control : Controls()) {
        const HWND own = control->OwnHandle(), shown = control->hWnd();
        if (own)
            SendMessageW(own, message, wParam, lParam);
        if (shown && shown != own)
            SendMessageW(shown, message, wParam, lParam);
    }
}

void Form::Activate(Control* control)
{
    if (control && IsLoaded())
        scroll_.Reveal(hWnd(), control->OwnHandle());
    if (active_ == control || !IsLoaded())
        return;
    passedOnFrom_ = nullptr;
    Control* const former = std::exchange(active_, control);
    if (former) {
        former->LostFocus();
        if (IsLoaded())
            former->ExitFocus();
    }
    // A handler may have moved on, or unloaded the form.
    if (control && active_ == control)
        control->EnterFocus();
}

/// Windows gives the focus to the form's own window when the form is activated, and to a container's when it hides the control in it.
void Form::RestoreFocus()
{
    if (!IsLoaded())
        return;
    Control* const control = active_ && CanGetFocusNow(*active_) ? active_ : NextInTabOrder(*this, -1, FocusDirection::Forward);
    if (control)
        control->SetFocus();
}

/// Another window of the program, or another program, keeps the focus; the form's next activation then gives it to this control.
void Form::MoveFocusTo(Control* control)
{
    if (control && GetActiveWindow() == hWnd())
        control->SetFocus();
    else
        Activate(control);
}

void Form::PassFocusOn(Control& from)
{
    if (active_ != &from || !IsLoaded())
        return;
    const Control* const first = passedOnFrom_ ? passedOnFrom_ : &from;
    MoveFocusTo(NextInTabOrder(from, FocusDirection::Forward));
    passedOnFrom_ = first;
}

void Form::UserActs()
{
    passedOnFrom_ = nullptr;
    UserActed.Raise();
}

void Form::GiveFocusBack(Control& to)
{
    if (passedOnFrom_ == &to && IsLoaded() && CanGetFocusNow(to))
        MoveFocusTo(&to);
}

bool Form::HandleKey(KeyEvent event, WPARAM& key)
{
    return HandOver(
        event, key, [this](auto& code) { Form_KeyPress(code); }, [this](auto& code, auto& shift) { Form_KeyDown(code, shift); },
        [this](auto& code, auto& shift) { Form_KeyUp(code, shift); });
}

UINT_PTR Form::AddTimer(std::function<void()> tick)
{
    timers_.emplace(nextTimer_, std::move(tick));
    return nextTimer_++;
}

void Form::RemoveTimer(UINT_PTR timer)
{
    timers_.erase(timer);
}

}  // namespace host
