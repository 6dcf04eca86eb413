// CheckBoxInput: the messages that a check box watches on its button, its container and its form.
#include "controls/CheckBox/CheckBox.h"
#include "host/Form.h"
#include "host/KeyRouting.h"

namespace controls {

void CheckBox::SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT&, bool& handled)
{
    switch (message) {
        case WM_MOUSEMOVE:
            MouseMovedOver(window);
            break;
        case WM_MOUSELEAVE:
            MouseLeft();
            break;
        case WM_LBUTTONUP:
            // The button has the mouse captured and so may hear of a release that is far away.
            if (IsMouseInside() && IsOver(window, lParam))
                Toggle();
            break;
        case WM_SETFOCUS:
            hosted_.WindowFocused(true);
            SetFocus();
            break;
        case WM_KILLFOCUS:
            handled = hosted_.KeepsFocusLook();
            break;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            CreateWindowAnew();
            break;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            OnKeyDown(wParam, lParam, handled);
            break;
        case WM_KEYUP:
        case WM_SYSKEYUP:
        case WM_CHAR: {
            auto code = static_cast<std::int16_t>(wParam);
            std::int16_t shift = host::ShiftState();
            hosted_.Keys.Forward(ParentForm(), *host::KeyEventOf(message), lParam, code, shift);
            if (message == WM_CHAR)
                KeyPress.Raise(code);
            else
                KeyUp.Raise(code, shift);
            handled = code == 0;
            break;
        }
        case WM_CONTEXTMENU:
            ContextMenu.Raise();
            break;
        case WM_PAINT:
            hosted_.Painted();
            break;
        default:
            break;
    }
}

void CheckBox::OnKeyDown(WPARAM wParam, LPARAM lParam, bool& handled)
{
    auto keyCode = static_cast<std::int16_t>(wParam);
    std::int16_t shift = host::ShiftState();
    if (keyCode == VK_TAB) {
        hosted_.MoveFocus((shift & 1) != 0 ? FocusDirection::Backward : FocusDirection::Forward, FocusScope::AllContainers);
        handled = true;
        return;
    }
    hosted_.Keys.Forward(ParentForm(), host::KeyEvent::Down, lParam, keyCode, shift);
    ActOnKey(keyCode);
    KeyDown.Raise(keyCode, shift);
    handled = keyCode == 0;
}

void CheckBox::ActOnKey(std::int16_t keyCode)
{
    // The form may have gone by now, and the button with it.
    if (!hosted_.Window())
        return;
    if (!hosted_.ContainerIsForm())
        PostToFormButtons(ParentForm(), keyCode);
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

void CheckBox::SubclassParent_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    const bool asksForColors = message == WM_CTLCOLORBTN || message == WM_CTLCOLORSTATIC;
    if (asksForColors && reinterpret_cast<HWND>(lParam) == hosted_.Window()) {
        result = hosted_.SubclassParent.CallOriginalProc(window, message, wParam, lParam, handled);
        const auto dc = reinterpret_cast<HDC>(wParam);
        SetBkColor(dc, TranslateOleColor(backColor_));
        SetTextColor(dc, TranslateOleColor(foreColor_));
        if (transparent_) {
            SetBkMode(dc, TRANSPARENT);
            if (!transparencyBrush_)
                MakeTransparencyBrush();
        }
        result = reinterpret_cast<LRESULT>(transparent_ ? transparencyBrush_.Get() : backgroundBrush_.Get());
        handled = true;
    }
    if (hosted_.ContainerIsForm())
        hosted_.FormMessage(message, wParam, enabled_, handled);
}

}  // namespace controls
