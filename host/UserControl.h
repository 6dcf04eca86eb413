// UserControl: a control with a window and a drawing surface of its own, written in this program.
#pragma once

#include "host/Control.h"
#include "host/InputOptions.h"
#include "host/KeyRouting.h"
#include "host/OwnWindow.h"
#include "host/PropertyBag.h"
#include "host/Surface.h"

namespace host {

/// The life of a new control: Initialize, InitProperties, Resize, Show. Of a stored one: Initialize, ReadProperties, Resize, Show.
/// The window exists (hidden or shown as the extender says) before InitProperties and ReadProperties; at the end come Hide and
/// Terminate, then the window goes. A control whose window can't be made lives on without: OwnHandle is NULL and the surface draws nothing.
///
/// Mouse: the left button going down on an enabled control that can take the focus gives it the focus; Click follows MouseUp when the left
/// button is released over the control that it went down on; a double click is MouseDown, MouseUp, Click, DblClick, MouseUp. Button: 1
/// left, 2 right, 4 middle (in MouseMove the sum of those held); Shift: 1 Shift, 2 Ctrl, 4 Alt; x and y in pixels.
///
/// Focus: EnterFocus, GotFocus when the control becomes the form's active control; LostFocus, ExitFocus when another one does. When
/// the own window gets the keyboard focus while the control is active already, only GotFocus comes. Another window of this or another
/// program taking the keyboard focus is no LostFocus: the control stays the active one.
///
/// OLE drag and drop: OleDropMode and OLEDrag of the input options; the control overrides what it wants to hear of OleDragEvents.
class UserControl : public Control, public Container, protected OleDragEvents, private OwnWindow {
public:
    [[nodiscard]] HWND hWnd() const override { return OwnHandle(); }
    [[nodiscard]] HWND OwnHandle() const final { return OwnWindow::Handle(); }
    [[nodiscard]] bool Enabled() const override { return input_.Enabled(); }
    void Enabled(bool enabled) override { input_.Enabled(enabled); }
    [[nodiscard]] bool CanGetFocus() const override { return true; }
    void SetFocus() override;
    [[nodiscard]] base::String AccessKey() const final { return input_.AccessKey(); }
    /// All keys but Esc, and but Enter unless it is a button.
    [[nodiscard]] bool WantsKey(std::int16_t keyCode) const override;
    /// Marks the whole window for a repaint.
    virtual void Refresh();

    [[nodiscard]] Surface& GetSurface() { return surface_; }
    [[nodiscard]] const Surface& GetSurface() const { return surface_; }
    [[nodiscard]] InputOptions& Input() { return input_; }
    [[nodiscard]] const InputOptions& Input() const { return input_; }

    [[nodiscard]] HWND ContainerHandle() const final { return OwnHandle(); }
    [[nodiscard]] OleColor ContainerBackColor() const final { return surface_.BackColor(); }
    [[nodiscard]] OleColor ContainerForeColor() const final { return surface_.ForeColor(); }

protected:
    /// Tells the container that a property has changed and must be saved.
    void PropertyChanged(base::StringView name);
    /// Tells screen readers what has changed, by an EVENT_OBJECT value. Only what Windows cannot see is told: that a system window which
    /// the control shows is another now, Windows tells itself. Nobody knows a control that has not been shown yet.
    void Announce(DWORD event) const;

    virtual void UserControl_Initialize() {}
    virtual void UserControl_InitProperties() {}
    virtual void UserControl_ReadProperties(const PropertyBag&) {}
    virtual void UserControl_WriteProperties(PropertyBag&) {}
    virtual void UserControl_Terminate() {}
    virtual void UserControl_Show() {}
    virtual void UserControl_Hide() {}
    /// Comes before the picture is copied to the screen; what is drawn in it is seen at once.
    virtual void UserControl_Paint() {}
    /// The window has another size; the surface has been made anew, empty.
    virtual void UserControl_Resize() {}
    virtual void UserControl_EnterFocus() {}
    virtual void UserControl_GotFocus() {}
    virtual void UserControl_LostFocus() {}
    virtual void UserControl_ExitFocus() {}
    virtual void UserControl_MouseDown(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void UserControl_MouseMove(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void UserControl_MouseUp(std::int16_t& /*button*/, std::int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void UserControl_Click() {}
    virtual void UserControl_DblClick() {}
    /// A code set to 0 keeps the key from Windows' own treatment.
    virtual void UserControl_KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    virtual void UserControl_KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    virtual void UserControl_KeyPress(std::int16_t& /*keyAscii*/) {}
    virtual void UserControl_AccessKeyPress(std::int16_t /*key*/) {}
    virtual void UserControl_AmbientChanged(base::StringView /*name*/) {}
    /// The control stands on another container; its own window is there already.
    virtual void UserControl_ContainerChanged() {}

private:
    // What the form asks of every control.
    void LoadNew() final;
    void LoadStored(const PropertyBag& bag) final;
    void Shown() final;
    void Hidden() final;
    void Placed() final;
    void ContainerChanged() final;
    void Store(PropertyBag& bag) final { UserControl_WriteProperties(bag); }
    void Unload() final;
    void EnterFocus() final { UserControl_EnterFocus(); }
    void GotFocus() final { UserControl_GotFocus(); }
    void LostFocus() final { UserControl_LostFocus(); }
    void ExitFocus() final { UserControl_ExitFocus(); }
    void AccessKeyPress(std::int16_t key) final { UserControl_AccessKeyPress(key); }
    void AmbientChanged(base::StringView name) final { UserControl_AmbientChanged(name); }

    void MakeWindow();
    void Sized();
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) final;
    void OnMouse(UINT message, WPARAM keys, POINT at);
    void ButtonDown(std::int16_t button, std::int16_t shift, POINT at);
    void ButtonUp(std::int16_t button, std::int16_t shift, POINT at, bool othersHeld);
    bool OnKey(KeyEvent event, WPARAM& key);
    void Paint();

    enum class Stage { Made, Loading, Loaded, Unloaded };
    Stage stage_ = Stage::Made;
    bool isShown_ = false;
    bool clickBegun_ = false;
    Surface surface_;
    InputOptions input_{*this};
};

}  // namespace host
