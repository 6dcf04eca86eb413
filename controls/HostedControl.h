// HostedControl: what the check box and the text box have in common, the two controls that show a system window in place of their own.
#pragma once

#include "controls/HostedWindow.h"
#include "controls/LibraryControl.h"

#include <cstdint>

namespace controls {

/// The system window is the one that is seen and typed into. The control's own window lies under it and is met only where the system window
/// lets input through because it is disabled: a click there changes nothing, and keys go nowhere but on.
class HostedControl : public LibraryControl {
public:
    [[nodiscard]] HWND hWnd() const override { return hosted_.Window(); }
    [[nodiscard]] bool Enabled() const override { return enabled_; }
    /// Nothing happens while there is no window.
    void Enabled(bool enabled) override;
    [[nodiscard]] bool ForceTrueType() const { return forceTrueType_; }
    void ForceTrueType(bool force);
    [[nodiscard]] bool UseClassicTheme() const { return useClassicTheme_; }
    void UseClassicTheme(bool classic);

    void Refresh() override { hosted_.Redraw(); }
    void ZedOrder(HWND insertAfter);
    /// Tab on the own window moves the focus on; the system window has its own way with keys.
    [[nodiscard]] bool WantsKey(std::int16_t keyCode) const override;

protected:
    explicit HostedControl(ToolTipNames names = {});

    /// Makes the system window anew, in place of the present one.
    virtual void CreateWindowAnew() = 0;
    virtual void SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) = 0;
    virtual void SubclassParent_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) = 0;

    void UserControl_Show() override;
    void UserControl_Hide() override { hosted_.ControlHidden(); }
    void UserControl_Paint() override { hosted_.ControlPainted(); }
    void UserControl_LostFocus() override { hosted_.ControlLostFocus(); }
    void UserControl_ContainerChanged() override;

    /// The end of both beginnings of a control's life.
    void Begin();
    /// A released button over the window that it was pressed on, wherever the mouse is captured.
    [[nodiscard]] static bool IsOver(HWND window, LPARAM position);

    bool enabled_ = true;
    bool forceTrueType_ = false;
    bool useClassicTheme_ = false;
    HostedWindow hosted_{*this};
};

}  // namespace controls
