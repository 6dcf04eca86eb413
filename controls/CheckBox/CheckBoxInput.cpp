// CheckBoxInput: the messages and keys that a check box watches on its button.
#include "controls/CheckBox/CheckBox.h"
#include "host/Form.h"

namespace controls {

void CheckBox::OnHostedMessage(UINT message, WPARAM, LPARAM lParam, bool& handled)
{
    switch (message) {
        case WM_LBUTTONUP:
            // The button has the mouse captured and so may hear of a release that is far away.
            if (IsMouseInside() && IsOver(lParam))
                Toggle();
            break;
        case WM_KILLFOCUS:
            handled = hosted_.KeepsFocusLook();
            break;
        case WM_CONTEXTMENU:
            ContextMenu.Raise();
            break;
        default:
            break;
    }
}

void CheckBox::OnKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    if (wParam == VK_TAB && host::KeyEventOf(message) == host::KeyEvent::Down) {
        hosted_.TabOn((host::ShiftState() & 1) != 0);
        handled = true;
    } else {
        HostedControl::OnKey(window, message, wParam, lParam, result, handled);
    }
}

void CheckBox::ActOnKey(UINT message, std::int16_t keyCode)
{
    HostedControl::ActOnKey(message, keyCode);
    switch (keyCode) {
        case VK_SPACE:
            Toggle();
            break;
        case VK_RIGHT:
        case VK_DOWN:
            hosted_.MoveFocus(FocusDirection::Forward, FocusScope::OwnContainer);
            break;
        case VK_LEFT:
        case VK_UP:
            hosted_.MoveFocus(FocusDirection::Backward, FocusScope::OwnContainer);
            break;
        default:
            break;
    }
}

}  // namespace controls
