// Control: everything that stands on a form, the system's own user controls and the stock controls alike.
#pragma once

#include "base/String.h"
#include "host/AmbientProperties.h"
#include "host/Container.h"
#include "host/Extender.h"

#include <cstdint>
#include <optional>

namespace host {

class Form;
class PropertyBag;
struct AccessibleFacts;

/// A control is made by a factory, put on a form by `Form` (which gives it its extender) and lives until the form object dies.
/// Its windows and handles live from `LoadNew` or `LoadStored` to `Unload`.
class Control {
public:
    Control();
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// "Frame", "CommandButton", "Label", "Timer", ...: the word that stands in the form file.
    [[nodiscard]] virtual base::StringView Kind() const = 0;
    /// The window that the control shows to others; NULL when it has none. A control that hosts a system window answers with that.
    [[nodiscard]] virtual HWND hWnd() const { return nullptr; }
    [[nodiscard]] virtual bool Enabled() const = 0;
    virtual void Enabled(bool enabled) = 0;
    /// Whether the keyboard focus may go here at all (not: whether it may now).
    [[nodiscard]] virtual bool CanGetFocus() const { return false; }
    /// Makes this the form's active control and gives it the keyboard focus. Nothing happens when it can't have it now.
    virtual void SetFocus() {}
    /// The letter or digit that Alt brings here, as typed in the caption; empty for none.
    [[nodiscard]] virtual base::String AccessKey() const { return {}; }
    /// What a screen reader is told of it.
    [[nodiscard]] virtual AccessibleFacts Accessibility();

    [[nodiscard]] Extender& GetExtender() { return *extender_; }
    [[nodiscard]] const Extender& GetExtender() const { return *extender_; }
    [[nodiscard]] const AmbientProperties& Ambient() const { return ambient_; }
    /// The form it stands on.
    [[nodiscard]] Form& ParentForm() const { return *extender_->Parent(); }
    /// The window of the container: the form's or a containing user control's.
    [[nodiscard]] HWND ContainerWindow() const { return extender_->Container().ContainerHandle(); }
    /// Scale mode in which the extender's position and size count.
    [[nodiscard]] ScaleMode ContainerScale() const { return extender_->Container().ContainerScaleMode(); }

    // The form calls these, in this order in a control's life.

    virtual void LoadNew() = 0;
    virtual void LoadStored(const PropertyBag& bag) = 0;
    /// The form, or the control itself, becomes visible or hidden.
    virtual void Shown() {}
    virtual void Hidden() {}
    /// The extender's position or size changed.
    virtual void Placed() {}
    /// The extender names another container now.
    virtual void ContainerChanged() {}
    virtual void Store(PropertyBag& bag) = 0;
    /// Lets go of windows and handles. May be called twice.
    virtual void Unload() = 0;

    // Focus, told by the form when its active control changes and when the own window gets the keyboard focus.

    virtual void EnterFocus() {}
    virtual void GotFocus() {}
    virtual void LostFocus() {}
    virtual void ExitFocus() {}
    /// The access key, or Enter (13) or Esc (27) for the default and cancel button.
    virtual void AccessKeyPress(std::int16_t) {}
    virtual void AmbientChanged(base::StringView) {}

    /// True for a push button: Enter on it presses it and not the form's default button.
    [[nodiscard]] virtual bool IsButton() const { return false; }
    /// Whether the key is the control's own affair: Tab, Enter and Esc that it does not want move the focus or press a button.
    [[nodiscard]] virtual bool WantsKey(std::int16_t /*keyCode*/) const { return false; }
    /// False for what has no place on the form, like a timer.
    [[nodiscard]] virtual bool HasPlace() const { return true; }
    /// The window that the host gave the control: `hWnd` except where a user control shows a system window beside its own.
    [[nodiscard]] virtual HWND OwnHandle() const { return hWnd(); }
    /// The notification code of a WM_COMMAND that this control's window sent to the container's window.
    virtual void Command(WORD) {}

private:
    friend class Form;
    std::optional<Extender> extender_;
    AmbientProperties ambient_{*this};
};

}  // namespace host
