// TextBoxInput: the messages, keys and notifications of a text box's edit.
#include "controls/DroppedFiles.h"
#include "controls/TextBox/TextBox.h"
#include "host/Form.h"
#include "host/KeyRouting.h"

#include <algorithm>

namespace controls {

void TextBox::OnHostedMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& handled)
{
    switch (message) {
        case WM_LBUTTONUP:
            // The edit has the mouse captured, so the button may be let go anywhere.
            if (IsOver(lParam))
                Click.Raise();
            FixFocus();
            break;
        case WM_LBUTTONDBLCLK:
            DblClick.Raise();
            FixFocus();
            break;
        case WM_MOUSEWHEEL:
            MouseWheel.Raise(static_cast<std::int32_t>(wParam) > 0 ? 1 : 0);
            break;
        case WM_KILLFOCUS:
            OnKillFocus(handled);
            break;
        case WM_CONTEXTMENU:
            ContextMenu.Raise(handled);
            break;
        case WM_DROPFILES: {
            if (!dragDropEnabled_)
                break;
            handled = true;
            std::vector<base::String> paths = TakeDroppedFiles(reinterpret_cast<HDROP>(wParam));
            auto count = static_cast<std::int16_t>(paths.size());
            DragDropFile.Raise(paths, count);
            break;
        }
        default:
            break;
    }
}

/// The control is the form's active one, but its edit has not got the keyboard focus.
void TextBox::FixFocus()
{
    if (hosted_.ControlFocused() && !hosted_.WindowFocused() && hosted_.Window() && ParentForm().ActiveControl() == this)
        hosted_.TakeFocus();
}

void TextBox::OnKillFocus(bool& handled)
{
    hosted_.WindowFocused(false);
    if (!tabKeyTextual_) {
        RepaintForFocus();
    } else if (GetKeyState(VK_TAB) < 0) {
        // Tab is text here: whoever moved the focus because of it has moved it in vain. The form must know so too.
        SetFocus();
        handled = hosted_.WindowFocused();
        if (handled)
            TypeTab();
    }
}

/// A single-line edit has no tab characters; in a multi-line one the edit itself types what the key stands for.
void TextBox::TypeTab()
{
    if (!locked_)
        ReplaceSelection(TEXT("    "));
}

void TextBox::OnKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    if (message == WM_CHAR) {
        OnChar(window, wParam, lParam, result, handled);
        return;
    }
    if (message == WM_KEYDOWN) {
        const std::int16_t shift = host::ShiftState();
        handled = shift == 0 && ForwardFocus(static_cast<std::int16_t>(wParam));
        if (wParam == VK_TAB && !tabKeyTextual_)
            hosted_.TabOn((shift & 1) != 0);
        else if (wParam == VK_TAB && !multiLine_ && (shift & ~1) == 0)
            TypeTab();
        if (handled || wParam == VK_TAB)
            return;
    }
    HostedControl::OnKey(window, message, wParam, lParam, result, handled);
}

void TextBox::ActOnKey(UINT message, std::int16_t keyCode)
{
    if (message == WM_KEYDOWN)
        HostedControl::ActOnKey(message, keyCode);
}

void TextBox::OnChar(HWND window, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    handled = true;
    const auto typed = static_cast<WCHAR>(wParam);
    std::int16_t keyAscii = PassesFilter(typed, rules_) ? static_cast<std::int16_t>(typed) : std::int16_t{0};
    if (keyAscii == VK_TAB && (!tabKeyTextual_ || GetFocus() != window))
        return;
    TellKey(WM_CHAR, lParam, keyAscii);
    if (keyAscii != 0)
        result = hosted_.SubclassControl.CallOriginalProc(window, WM_CHAR, static_cast<WORD>(keyAscii), lParam, handled);
}

/// Up and down always move on; left and right only from the end of the text that they point to. In another text box the caret keeps its
/// place as far as it goes, or stands at the end that it came in by.
bool TextBox::ForwardFocus(std::int16_t keyCode)
{
    host::Control* target = nullptr;
    switch (keyCode) {
        case VK_UP:
            target = forwardFocusUp_;
            break;
        case VK_DOWN:
            target = forwardFocusDown_;
            break;
        case VK_RIGHT:
            target = SelStart() == Length() ? forwardFocusRight_ : nullptr;
            break;
        case VK_LEFT:
            target = SelStart() == 0 ? forwardFocusLeft_ : nullptr;
            break;
        default:
            break;
    }
    if (!target)
        return false;
    target->SetFocus();
    if (target->ParentForm().ActiveControl() != target)
        return false;
    if (auto* const box = dynamic_cast<TextBox*>(target)) {
        const std::int32_t start = keyCode == VK_RIGHT ? 0 : keyCode == VK_LEFT ? box->Length() : SelStart();
        box->SelStart(std::min(start, box->Length()));
    }
    return true;
}

void TextBox::UserControl_GotFocus()
{
    hosted_.ControlGotFocus(FocusScope::AllContainers);
    RepaintForFocus();
}

void TextBox::SetFocusEx()
{
    if (!hosted_.ControlFocused() && !hosted_.WindowFocused())
        SetFocus();
}

// Keys that reach the control's own window belong to the edit, which in a disabled box takes none.

void TextBox::UserControl_KeyDown(std::int16_t& keyCode, std::int16_t&)
{
    PassKeyOn(WM_KEYDOWN, keyCode);
}

void TextBox::UserControl_KeyUp(std::int16_t& keyCode, std::int16_t&)
{
    PassKeyOn(WM_KEYUP, keyCode);
}

void TextBox::UserControl_KeyPress(std::int16_t& keyAscii)
{
    PassKeyOn(WM_CHAR, keyAscii);
}

void TextBox::PassKeyOn(UINT message, std::int16_t code)
{
    if (enabled_ && hosted_.Window())
        SendMessageW(hosted_.Window(), message, static_cast<WORD>(code), 0);
}

void TextBox::OnNotification(WORD code)
{
    switch (code) {
        case EN_CHANGE:
            lineWindowStale_ = true;
            PropertyChanged(TEXT("Text"));
            Change.Raise();
            break;
        case EN_HSCROLL:
        case EN_VSCROLL:
            Scroll.Raise();
            break;
        case EN_MAXTEXT:
            BufferOverflow.Raise();
            break;
        default:
            break;
    }
}

}  // namespace controls
