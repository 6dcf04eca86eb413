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
            if (Kind() != BS_PUSHBUTTON && Kind() != BS_3STATE) {
                SimPc::Current().Unsupported("Button: style " + std::to_string(Kind()));
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
        case WM_MOUSEMOVE:
        case WM_MOUSELEAVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
            return HandleMouse(message, wParam, lParam);
        case WM_CAPTURECHANGED:
            if (pressing_) {
                pressing_ = false;
                SetState(BST_PUSHED, 0);
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
        default:
            return HandleShared(message, wParam, lParam);
    }
}

LRESULT Button::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_MOUSEMOVE:
            if (pressing_ && !bySpace_) {
                SetState(BST_PUSHED, Inside(lParam) ? BST_PUSHED : 0);
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

/// The space bar clicks when it is let go, as the mouse does.
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
    if (Has(BS_NOTIFY))
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
    SetState(3, check > BST_INDETERMINATE ? BST_INDETERMINATE : static_cast<UINT>(check));
}

void Button::Press()
{
    pressing_ = true;
    inner::SetCapture(window_);
    SetState(0, BST_PUSHED);
}

/// A check box of this kind leaves its check to its owner, who hears BN_CLICKED.
void Button::Release(bool click)
{
    pressing_ = bySpace_ = false;  // Before the capture goes, whose loss would take a press back.
    SetState(BST_PUSHED, 0);
    if (inner::GetCapture() == window_)
        inner::ReleaseCapture();
    if (click && Alive())
        Notify(BN_CLICKED);
}

void Button::Paint(HDC dc)
{
    const HBRUSH background = AskColors(!IsCheckBox() || Has(BS_PUSHLIKE) ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC, dc);
    PaintButton(dc, Client(), {Style(), state_, Enabled(), Themed(), hot_, font_, Text()}, background);
}

}  // namespace platform
