// HostedControl: what the check box and the text box have in common, the two controls that show a system window in place of their own.
#pragma once

#include "base/Handles.h"
#include "controls/BackgroundBrush.h"
#include "controls/HostedWindow.h"
#include "controls/LibraryControl.h"
#include "host/KeyRouting.h"

#include <cstdint>
#include <memory>

namespace controls {

/// The system window is the one that is seen and typed into. The control's own window lies under it and is met only where the system window
/// lets input through because it is disabled: a click there changes nothing, and keys go nowhere but on.
class HostedControl : public LibraryControl {
public:
    [[nodiscard]] HWND hWnd() const override { return hosted_.Window(); }
    [[nodiscard]] bool Enabled() const override { return enabled_; }
    /// Nothing happens while there is no window.
    void Enabled(bool enabled) override;
    [[nodiscard]] bool UseClassicTheme() const { return useClassicTheme_; }
    void UseClassicTheme(bool classic);
    /// A BorderStyleValue.
    [[nodiscard]] std::uint8_t BorderStyle() const { return borderStyle_; }
    void BorderStyle(std::uint8_t style) { Keep(borderStyle_, style, TEXT("BorderStyle"), After::NewWindow); }
    [[nodiscard]] OleColor ForeColor() const { return foreColor_; }
    [[nodiscard]] OleColor BackColor() const { return backColor_; }

    void Refresh() override { hosted_.Redraw(); }
    void SetFocus() override;
    /// Tab on the own window moves the focus on; the system window has its own way with keys.
    [[nodiscard]] bool WantsKey(std::int16_t keyCode) const override;

protected:
    HostedControl(BorderStyleValue border, int foreColor, int backColor);

    // What a kind of control says of its window. The base adds what all have: border, colours, visual style.

    [[nodiscard]] virtual HostedWindow::Shape Shape() = 0;
    /// The window is new: give it what it does not get by its style, and start to listen.
    virtual void WindowMade() = 0;
    /// The window goes, and all that was made for it.
    virtual void ReleaseWindow();
    /// Messages of the system window that the base has no use for.
    virtual void OnHostedMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) = 0;
    /// A key: the form hears of it first, then `ActOnKey`, then the control's event. A code that one of them sets to 0 ends its way.
    virtual void OnKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled);
    virtual void ActOnKey(UINT message, std::int16_t keyCode);
    virtual void RaiseKey(host::KeyEvent event, std::int16_t& code, std::int16_t& shift) = 0;
    template <class Control>
    static void RaiseKeyOf(Control& control, host::KeyEvent event, std::int16_t& code, std::int16_t& shift)
    {
        if (event == host::KeyEvent::Press)
            control.KeyPress.Raise(code);
        else if (event == host::KeyEvent::Down)
            control.KeyDown.Raise(code, shift);
        else
            control.KeyUp.Raise(code, shift);
    }
    virtual void MouseEntered() {}
    virtual void MouseGone() {}
    /// A WM_COMMAND of the system window.
    virtual void OnNotification(WORD /*code*/) {}
    [[nodiscard]] virtual OleColor CurrentBackColor() const { return backColor_; }
    /// What the system window's background is filled with at a paint on `dc`.
    [[nodiscard]] virtual HBRUSH Background(HDC /*dc*/) { return backgroundBrush_.In(CurrentBackColor()); }

    void UserControl_Initialize() override;
    void UserControl_Terminate() override;
    void UserControl_Show() override;
    void UserControl_Hide() override { hosted_.ControlHidden(); }
    void UserControl_Paint() override { hosted_.ControlPainted(); }
    void UserControl_Resize() override { hosted_.Cover(); }
    void UserControl_LostFocus() override { hosted_.ControlLostFocus(); }
    void UserControl_ContainerChanged() override;
    void Follow(After after) override;
    void FontChanged() override { ShowFont(); }

    /// The end of both beginnings of a control's life.
    void Begin();
    /// Makes the system window anew, in place of the present one.
    virtual void CreateWindowAnew();
    virtual void ShowFont();
    void ShowColors();
    /// Tells form and event of a key.
    void TellKey(UINT message, LPARAM lParam, std::int16_t& code);
    /// A released button over the window that it was pressed on, wherever the mouse is captured.
    [[nodiscard]] bool IsOver(LPARAM position) const;

    bool enabled_ = true;
    bool useClassicTheme_ = false;
    std::uint8_t borderStyle_;
    OleColor foreColor_;
    OleColor backColor_;
    HostedWindow hosted_{*this};

private:
    void SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled);
    void SubclassParent_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled);

    base::ModuleHandle shellLibrary_;
    BackgroundBrush backgroundBrush_;
    std::shared_ptr<const base::FontHandle> shownFont_;
};

}  // namespace controls
