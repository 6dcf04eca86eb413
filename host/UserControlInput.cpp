// UserControl: the messages of its window.
#include "host/Form.h"
#include "host/KeyRouting.h"
#include "host/UserControl.h"

namespace host {

namespace {

constexpr std::int16_t leftButton = 1, rightButton = 2, middleButton = 4;

std::int16_t ButtonsOf(WPARAM keys)
{
    return static_cast<std::int16_t>(((keys & MK_LBUTTON) != 0 ? leftButton : 0) | ((keys & MK_RBUTTON) != 0 ? rightButton : 0) |
                                     ((keys & MK_MBUTTON) != 0 ? middleButton : 0));
}

}  // namespace

LRESULT UserControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (stage_ == Stage::Unloaded)
        return Default(message, wParam, lParam);
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            // A window that stands on this one may ask for the picture behind it and gives a DC for it.
            if (wParam != 0)
                surface_.CopyTo(reinterpret_cast<HDC>(wParam));
            else
                Paint();
            return 0;
        case WM_PRINTCLIENT:
            surface_.CopyTo(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_DESTROY:
            // Somebody else destroys the window, or its parent.
            surface_.Attach(nullptr);
            input_.Attach(nullptr);
            break;
        case WM_SIZE:
            Sized();
            return 0;
        case WM_SETCURSOR:
            if (input_.CursorName() && LOWORD(lParam) == HTCLIENT && reinterpret_cast<HWND>(wParam) == OwnHandle()) {
                SetCursor(LoadCursorW(nullptr, input_.CursorName()));
                return TRUE;
            }
            break;
        case WM_SETFOCUS:
            if (!CanGetFocus()) {
                ParentForm().RestoreFocus();
                return 0;
            }
            ParentForm().Activate(this);
            GotFocus();
            return 0;
        case WM_ENABLE:
            Announce(EVENT_OBJECT_STATECHANGE);
            if (wParam == FALSE)
                ParentForm().PassFocusOn(*this);
            else
                ParentForm().GiveFocusBack(*this);
            break;
        case WM_COMMAND:
            if (Control* const control = ParentForm().ControlOf(reinterpret_cast<HWND>(lParam)); control && control != this)
                control->Command(HIWORD(wParam));
            break;
        case WM_GETOBJECT:
            if (const LRESULT answer = ParentForm().Accessibles().Answer(OwnHandle(), wParam, lParam))
                return answer;
            break;
        case WM_CAPTURECHANGED:
            clickBegun_ = false;
            break;
        default:
            if (const auto event = KeyEventOf(message); event && !OnKey(*event, wParam))
                return 0;
            if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK)
                OnMouse(message, wParam, {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))});
    }
    return Default(message, wParam, lParam);
}

void UserControl::OnMouse(UINT message, WPARAM keys, POINT at)
{
    auto shift = static_cast<std::int16_t>(((keys & MK_SHIFT) != 0 ? 1 : 0) | ((keys & MK_CONTROL) != 0 ? 2 : 0) |
                                           (GetKeyState(VK_MENU) < 0 ? 4 : 0));
    const std::int16_t held = ButtonsOf(keys);
    switch (message) {
        case WM_MOUSEMOVE: {
            std::int16_t buttons = held;
            float x = static_cast<float>(at.x), y = static_cast<float>(at.y);
            UserControl_MouseMove(buttons, shift, x, y);
            break;
        }
        case WM_LBUTTONDOWN:
            // A disabled control's own window is enabled where it stands behind a system window that is not.
            if (CanGetFocus() && Enabled())
                SetFocus();
            ButtonDown(leftButton, shift, at);
            break;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            ButtonDown(rightButton, shift, at);
            break;
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
            ButtonDown(middleButton, shift, at);
            break;
        case WM_LBUTTONDBLCLK:
            SetCapture(OwnHandle());
            UserControl_DblClick();
            break;
        case WM_LBUTTONUP:
            ButtonUp(leftButton, shift, at, held != 0);
            break;
        case WM_RBUTTONUP:
            ButtonUp(rightButton, shift, at, held != 0);
            break;
        case WM_MBUTTONUP:
            ButtonUp(middleButton, shift, at, held != 0);
            break;
        default:
            break;
    }
}

/// The mouse stays with the control until the last button is up.
void UserControl::ButtonDown(std::int16_t button, std::int16_t shift, POINT at)
{
    if (stage_ != Stage::Loaded)
        return;
    SetCapture(OwnHandle());
    clickBegun_ = button == leftButton;
    float x = static_cast<float>(at.x), y = static_cast<float>(at.y);
    UserControl_MouseDown(button, shift, x, y);
}

void UserControl::ButtonUp(std::int16_t button, std::int16_t shift, POINT at, bool othersHeld)
{
    const bool clicks =
        button == leftButton && clickBegun_ && at.x >= 0 && at.y >= 0 && at.x < surface_.ScaleWidth() && at.y < surface_.ScaleHeight();
    if (!othersHeld && GetCapture() == OwnHandle())
        ReleaseCapture();
    if (button == leftButton)
        clickBegun_ = false;
    float x = static_cast<float>(at.x), y = static_cast<float>(at.y);
    UserControl_MouseUp(button, shift, x, y);
    if (clicks && stage_ == Stage::Loaded)
        UserControl_Click();
}

bool UserControl::OnKey(KeyEvent event, WPARAM& key)
{
    return HandOver(
        event, key, [this](auto& code) { UserControl_KeyPress(code); },
        [this](auto& code, auto& shift) { UserControl_KeyDown(code, shift); },
        [this](auto& code, auto& shift) { UserControl_KeyUp(code, shift); });
}

bool UserControl::WantsKey(std::int16_t keyCode) const
{
    return keyCode != VK_ESCAPE && (keyCode != VK_RETURN || IsButton());
}

}  // namespace host
