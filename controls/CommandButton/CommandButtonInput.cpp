// CommandButtonInput: mouse, keys, focus and the messages that a button watches on its window.
#include "controls/CommandButton/CommandButton.h"

#include <shellapi.h>

#include <string>

namespace controls {

using base::StringView;
using host::FocusDirection;

void CommandButton::ShowState(std::int32_t state)
{
    state_ = state;
    DrawControl();
}

void CommandButton::HasFocus(bool has)
{
    hasFocus_ = has;
    // The release of a key that is held goes elsewhere then.
    if (!has && state_ == StatePressed && lastKeyDown_ == VK_SPACE)
        state_ = StateNormal;
    DrawControl();
}

void CommandButton::UserControl_AmbientChanged(StringView name)
{
    if (name != TEXT("DisplayAsDefault"))
        return;
    AnnounceState();
    if (!Ambient().UserMode())
        DrawControl();
}

void CommandButton::UserControl_MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y)
{
    MouseDown.Raise(button, shift, x, y);
    if (button == 1 && Ambient().UserMode())
        ShowState(StatePressed);
}

void CommandButton::UserControl_MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y)
{
    MouseMove.Raise(button, shift, x, y);
}

void CommandButton::UserControl_MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y)
{
    MouseUp.Raise(button, shift, x, y);
    if (button == 1 && Ambient().UserMode())
        ShowState(buttonType_ == ToggleButton ? StatePressed : StateHot);
    lastMouseUpButton_ = button;
}

void CommandButton::UserControl_Click()
{
    if (lastMouseUpButton_ != 1)
        return;
    if (buttonType_ == ToggleButton)
        value_ = value_ == 0 ? 1 : 0;
    ShowState(StateHot);
    Click.Raise();
}

void CommandButton::UserControl_DblClick()
{
    if (lastMouseUpButton_ != 1)
        return;
    std::int16_t button = 1;
    std::int16_t shift = 0;
    float x = 1;
    float y = 1;
    UserControl_MouseDown(button, shift, x, y);
    DblClick.Raise();
}

void CommandButton::ClickByKey()
{
    lastMouseUpButton_ = 1;
    state_ = StateNormal;
    UserControl_Click();
}

void CommandButton::UserControl_KeyDown(std::int16_t& keyCode, std::int16_t& shift)
{
    KeyDown.Raise(keyCode, shift);
    lastKeyDown_ = keyCode;
    switch (keyCode) {
        case VK_SPACE:
            ShowState(StatePressed);
            break;
        case VK_RIGHT:
        case VK_DOWN:
            MoveFocus(FocusDirection::Forward);
            break;
        case VK_LEFT:
        case VK_UP:
            MoveFocus(FocusDirection::Backward);
            break;
        case VK_TAB:
            MoveFocus(GetKeyState(VK_SHIFT) < 0 ? FocusDirection::Backward : FocusDirection::Forward);
            MouseLeave.Raise();
            break;
        default:
            break;
    }
}

void CommandButton::UserControl_KeyPress(std::int16_t& keyAscii)
{
    KeyPress.Raise(keyAscii);
}

void CommandButton::UserControl_KeyUp(std::int16_t& keyCode, std::int16_t& shift)
{
    KeyUp.Raise(keyCode, shift);
    if (keyCode == lastKeyDown_ && (keyCode == VK_RETURN || keyCode == VK_SPACE)) {
        ClickByKey();
        DrawControl();
    }
    lastKeyDown_ = 0;
}

void CommandButton::UserControl_AccessKeyPress(std::int16_t)
{
    if (Enabled())
        ClickByKey();
}

void CommandButton::MoveFocus(FocusDirection direction)
{
    host::MoveFocus(*this, direction, host::FocusScope::OwnContainer);
}

void CommandButton::SubclassControl_WndProc(HWND window, UINT message)
{
    switch (message) {
        case WM_MOUSEMOVE:
            if (MouseMovedOver(window)) {
                ShowState(StateHot);
                MouseEnter.Raise();
            }
            break;
        case WM_MOUSELEAVE:
            MouseLeft();
            ShowState(StateNormal);
            MouseLeave.Raise();
            break;
        case WM_CONTEXTMENU:
            ContextMenu.Raise();
            break;
        case WM_NCPAINT:
            if (!shown_) {
                shown_ = true;
                DrawControl();
            }
            break;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            DrawControl();
            break;
        default:
            break;
    }
}

void CommandButton::SetFocusEx()
{
    SendMessageUnsubclassed(subclassControl_, hWnd(), WM_SETFOCUS, 0, 0);
}

INT_PTR CommandButton::OpenLink(const base::String& sLink)
{
    const int length = WideCharToMultiByte(CP_ACP, 0, sLink.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string link(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, sLink.c_str(), -1, link.data(), length, nullptr, nullptr);
    return reinterpret_cast<INT_PTR>(ShellExecuteA(hWnd(), "open", link.c_str(), "1", "1", SW_SHOWNORMAL));
}

}  // namespace controls
