// Button: push buttons and check boxes with three states that their owner sets.
#pragma once

#include "platform/src/classes/Control.h"

namespace platform {

class Button : public Control {
public:
    using Control::Control;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// What a painter needs to know.
    struct Look {
        DWORD style = 0;
        UINT state = 0;  // BST_ bits
        bool enabled = true;
        bool themed = false;
        bool hot = false;
        HFONT font = nullptr;
        std::u16string text;
    };

protected:
    void Paint(HDC dc) override;

private:
    [[nodiscard]] DWORD Kind() const { return Style() & BS_TYPEMASK; }
    [[nodiscard]] bool IsCheckBox() const { return Kind() == BS_3STATE; }
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleKey(UINT message, WPARAM key, LPARAM lParam);
    LRESULT HandleFocus(bool focused);
    void SetState(UINT clear, UINT set);
    void SetCheck(WPARAM check);
    void Press();
    /// The press ends; `click` when it ends as a click.
    void Release(bool click);

    UINT state_ = BST_UNCHECKED;
    bool pressing_ = false;  // the mouse or the space bar is down on the button
    bool bySpace_ = false;
    bool hot_ = false;
};

/// Draws a button into `client`. `background` is what the parent answered to WM_CTLCOLORBTN or WM_CTLCOLORSTATIC.
void PaintButton(HDC dc, const RECT& client, const Button::Look& look, HBRUSH background);

}  // namespace platform
