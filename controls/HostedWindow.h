// HostedWindow: the system window that a check box or a text box shows in place of its own.
#pragma once

#include "base/String.h"
#include "controls/DSubclass.h"
#include "controls/KeyForwarding.h"
#include "controls/WindowPlace.h"
#include "host/TabOrder.h"
#include "host/UserControl.h"

#include <cstdint>

namespace controls {

using host::FocusDirection;
using host::FocusScope;

/// A window of a system class, a child of the control's container, that always covers the control's own window. It is made anew whenever
/// a property needs another window style.
///
/// The keyboard focus goes to it by way of the control: the control's own window gets it first, so that the form knows its active
/// control, and hands it over. Three subclasses serve that: on the hosted window, on the container, and on the form when that is another.
class HostedWindow {
public:
    explicit HostedWindow(host::UserControl& control);
    HostedWindow(const HostedWindow&) = delete;
    HostedWindow& operator=(const HostedWindow&) = delete;
    ~HostedWindow() { Destroy(); }

    // Asking the window something pauses the first.
    mutable DSubclass SubclassControl;
    DSubclass SubclassParent;
    DSubclass SubclassOwner;
    KeyForwarding Keys;

    /// Notes container and form. Call it when the control begins its life.
    void Attach();

    struct Shape {
        const WCHAR* className;
        DWORD style;  // of the class; what all hosted windows have is added
        DWORD extendedStyle;
        base::String text;
    };
    /// Stands around the destroying of one window and the making of the next: counts as creating, and brings the focus to the new window
    /// when the former one had it.
    class Creation {
    public:
        explicit Creation(HostedWindow& hosted);
        Creation(const Creation&) = delete;
        Creation& operator=(const Creation&) = delete;
        ~Creation();

    private:
        HostedWindow& hosted_;
        bool hadFocus_ = false;
    };
    /// Makes the window over the control, visible as the control is. False when Windows refuses; there is no window then.
    bool Create(const Shape& shape);
    /// Starts listening, at run time only.
    void Subclass();
    void Destroy();

    /// NULL when there is none.
    [[nodiscard]] HWND Window() const { return window_; }
    [[nodiscard]] HWND Container() const { return container_; }
    [[nodiscard]] bool ContainerIsForm() const { return container_ == form_; }
    /// `SendMessageUnsubclassed` to the window.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// Puts `bits` in the place of `mask` in the window's style.
    void SetStyleBits(DWORD mask, DWORD bits) const;
    /// The window's text.
    [[nodiscard]] base::String Text() const;

    // Place and visibility.

    void Cover() { place_.Cover(window_, control_.GetExtender()); }
    void Redraw();
    void ControlPainted();
    void ControlShown();
    void ControlHidden();
    /// The hosted window's own first paint.
    void Painted();

    // Focus.

    [[nodiscard]] bool ControlFocused() const { return controlFocused_; }
    /// The window has been told that it has the keyboard focus, and still has it.
    [[nodiscard]] bool WindowFocused() const { return windowFocused_ && window_ && GetFocus() == window_; }
    void WindowFocused(bool focused) { windowFocused_ = focused; }
    /// The window is losing the focus: true when it must not hear of it because the control stays the form's active one. It hears of it
    /// when the control is left.
    bool KeepsFocusLook();
    /// The control has got the focus. Enabled, it hands it to the window; disabled, it passes it on by the key that brought it, `backward`
    /// being where Left and Up go.
    void ControlGotFocus(FocusScope backward);
    void ControlLostFocus();
    /// Gives the window the keyboard focus without its own handler hearing of it.
    void TakeFocus();
    /// Moves the focus to the next control in tab order.
    void MoveFocus(FocusDirection direction, FocusScope scope);
    /// The same for Tab, which goes through all containers, backward with Shift.
    void TabOn(bool shift);
    /// Activation and deactivation of the form: the window loses its focus with the form and gets it back with it.
    void FormMessage(UINT message, WPARAM wParam, bool& handled);

private:
    host::UserControl& control_;
    HWND window_ = nullptr;
    HWND container_ = nullptr;
    HWND form_ = nullptr;
    int creating_ = 0;
    bool shown_ = false;
    bool firstPaintDone_ = false;
    bool controlFocused_ = false;
    bool windowFocused_ = false;
    bool keptFocusLook_ = false;
    WindowPlace place_;
};

enum BorderStyleValue : std::uint8_t { BorderNone, BorderSingle, BorderStatic, BorderSunken, BorderRaised };

/// A border as window style and extended window style; what is no border style counts as none.
struct BorderBits {
    DWORD style;
    DWORD extendedStyle;
};
[[nodiscard]] BorderBits BorderBitsOf(std::uint8_t borderStyle);

}  // namespace controls
