// Button: what a button does with messages.
#include "platform/src/classes/Button.h"

#include "platform/src/classes/SystemClasses.h"

#include <utility>

namespace platform {

LRESULT CALLBACK ButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<Button>(window, message, wParam, lParam);
}

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCCREATE: {
            const DWORD kind = Kind();
            if (kind > BS_GROUPBOX || (kind > BS_CHECKBOX + 1 && kind < BS_3STATE)) {
                SimPc::Current().Unsupported("Button: style " + std::to_string(kind));
                return FALSE;
            }
            return inner::DefWindowProc(window_, message, wParam, lParam);
        }
        case BM_GETCHECK:
            return IsCheckBox() ? state_ & 3 : 0;
        case BM_SETCHECK:
            SetCheck(wParam);
            return 0;
        case BM_GETSTATE:
            return state_;
        case BM_SETSTATE:
            SetState(BST_PUSHED, wParam ? BST_PUSHED : 0);
            return 0;
        case BM_SETSTYLE:
            inner::SetStyle(window_, BS_TYPEMASK, static_cast<DWORD>(wParam) & BS_TYPEMASK);
            if (LOWORD(lParam))
                Repaint();
            return 0;
        case BM_GETIMAGE:
            return 0;
        case BM_CLICK:
            if (std::exchange(clicking_, true))
                return 0;
            inner::SendMessage(window_, WM_LBUTTONDOWN, 0, 0);
            inner::SendMessage(window_, WM_LBUTTONUP, 0, 0);
            clicking_ = false;
            return 0;
        case WM_MOUSEMOVE:
        case WM_MOUSELEAVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
            return HandleMouse(message, wParam, lParam);
        case WM_CAPTURECHANGED:
            if (pressing_) {
                pressing_ = false;
                inner::SendMessage(window_, BM_SETSTATE, FALSE, 0);
            }
            return 0;
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return HandleKey(message, wParam, lParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return HandleFocus(message == WM_SETFOCUS);
        case WM_ENABLE:
            if (!wParam && pressing_)
                Release(false);
            Repaint();
            return 0;
        case WM_SETTEXT: {
            const LRESULT result = inner::DefWindowProc(window_, message, wParam, lParam);
            Repaint();
            return result;
        }
        case WM_GETDLGCODE:
            return DialogCode();
        case WM_NCHITTEST:
            // The frame of a group lets the mouse through to what stands inside it.
            return Kind() == BS_GROUPBOX ? HTTRANSPARENT : inner::DefWindowProc(window_, message, wParam, lParam);
        case WM_ERASEBKGND:
            return 1;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            Repaint();
            return 0;
        default:
            return HandleShared(message, wParam, lParam);
    }
}

LRESULT Button::DialogCode() const
{
    switch (Kind()) {
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_GROUPBOX:
            return DLGC_STATIC;
        default:
            return DLGC_BUTTON;
    }
}

LRESULT Button::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_MOUSEMOVE:
            if (pressing_ && !bySpace_) {
                if (Inside(lParam) != ((state_ & BST_PUSHED) != 0))
                    inner::SendMessage(window_, BM_SETSTATE, Inside(lParam), 0);
            } else if (!std::exchange(hot_, true)) {
                TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window_, 0};
                inner::TrackMouseEvent(track);
                if (Themed())
                    Repaint();
            }
            return 0;
        case WM_MOUSELEAVE:
            hot_ = false;
            if (Themed())
                Repaint();
            return 0;
        case WM_LBUTTONDBLCLK:
            if (Has(BS_NOTIFY)) {
                Notify(BN_DBLCLK);
                return 0;
            }
            [[fallthrough]];
        case WM_LBUTTONDOWN:
            if (Kind() == BS_GROUPBOX)
                return 0;
            if (!Focused())
                inner::SetFocus(window_);
            if (Alive())
                Press();
            return 0;
        case WM_LBUTTONUP:
            if (pressing_ && !bySpace_)
                Release(Inside(lParam));
            return 0;
        default:
            return inner::DefWindowProc(window_, message, wParam, lParam);
    }
}

LRESULT Button::HandleKey(UINT message, WPARAM key, LPARAM lParam)
{
    if (message == WM_KEYDOWN) {
        if (key == VK_SPACE && !pressing_) {
            bySpace_ = true;
            Press();
        } else if (key != VK_SPACE && pressing_ && bySpace_) {
            Release(false);  // Any other key takes the press back.
        }
        return 0;
    }
    if (key == VK_SPACE && pressing_ && bySpace_)
        Release(true);
    return inner::DefWindowProc(window_, message, key, lParam);
}

LRESULT Button::HandleFocus(bool focused)
{
    if (!focused && pressing_)
        Release(false);
    SetState(focused ? 0 : BST_FOCUS, focused ? BST_FOCUS : 0);
    if (Has(BS_NOTIFY) && Kind() != BS_GROUPBOX)
        Notify(focused ? BN_SETFOCUS : BN_KILLFOCUS);
    return 0;
}

void Button::SetState(UINT clear, UINT set)
{
    const UINT before = std::exchange(state_, (state_ & ~clear) | set);
    if (before != state_)
        Repaint();
}

void Button::SetCheck(WPARAM check)
{
    if (!IsCheckBox())
        return;
    const bool threeStates = Kind() == BS_3STATE || Kind() == BS_AUTO3STATE;
    const UINT highest = threeStates ? BST_INDETERMINATE : BST_CHECKED;
    SetState(3, check > highest ? highest : static_cast<UINT>(check));
}

void Button::Press()
{
    pressing_ = true;
    inner::SetCapture(window_);
    inner::SendMessage(window_, BM_SETSTATE, TRUE, 0);
}

void Button::Release(bool click)
{
    pressing_ = bySpace_ = false;  // Before the capture goes, whose loss would take a press back.
    inner::SendMessage(window_, BM_SETSTATE, FALSE, 0);
    if (Alive() && inner::GetCapture() == window_)
        inner::ReleaseCapture();
    if (!click || !Alive())
        return;
    Toggle();
    if (Alive())
        Notify(BN_CLICKED);
}

void Button::Toggle()
{
    const UINT check = state_ & 3;
    if (Kind() == BS_AUTOCHECKBOX)
        inner::SendMessage(window_, BM_SETCHECK, check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED, 0);
    else if (Kind() == BS_AUTO3STATE)
        inner::SendMessage(window_, BM_SETCHECK, (check + 1) % 3, 0);
}

void Button::Paint(HDC dc)
{
    const bool push = !IsCheckBox() && Kind() != BS_GROUPBOX;
    const HBRUSH background = AskColors(push || Has(BS_PUSHLIKE) ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC, dc);
    PaintButton(dc, Client(), {Style(), state_, Enabled(), Themed(), hot_, HiddenCues(), font_, Text()}, background);
}

}  // namespace platform
