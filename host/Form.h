// Form: a top-level window with the controls that its form text describes.
#pragma once

#include "host/AccessibleWindows.h"
#include "host/Control.h"
#include "host/ControlFactory.h"
#include "host/Event.h"
#include "host/FormFile.h"
#include "host/FormScroll.h"
#include "host/KeyRouting.h"
#include "host/OwnWindow.h"
#include "host/PropertyBag.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// The life of a form: Load (Form_Initialize, the window, the controls, Form_Load), Show, Unload (Form_Unload, the controls terminate,
/// the window goes). When the last loaded form unloads, the message loop ends.
///
/// The control objects live as long as the form object, so that a handler of a control that unloads the form comes back to something
/// that is there. A form object must not die inside one of its own handlers.
///
/// In the form text a form has `Caption`, `ClientWidth` and `ClientHeight` in twips, `KeyPreview`, `RightToLeft`, `ScaleMode` (3 for
/// pixels, anything else for twips) and `Font`; all else in it are controls.
class Form : public Container, private OwnWindow {
public:
    /// A routine of the form that others may call by its name; it may change both numbers.
    using Routine = std::function<void(std::int16_t&, std::int16_t&)>;

    Form() = default;
    ~Form() override;

    /// Reads the form text and builds the window with its controls. False, and nothing is left behind, when the text has an error, a kind
    /// is unknown to the factory or the window can't be made. True also for a form that unloaded itself in Form_Load.
    bool Load(std::string_view formText, const ControlFactory& factory);
    /// The form and its controls become visible and the first control in tab order gets the focus. Nothing for an unloaded form.
    void Show();
    /// From anywhere, also from inside a control's event. Once.
    void Unload();
    [[nodiscard]] bool IsLoaded() const { return state_ == State::Loaded; }
    [[nodiscard]] bool IsShown() const { return isShown_; }
    /// The error of the last `Load`, with its line; empty when all is well.
    [[nodiscard]] const std::string& LoadError() const { return loadError_; }

    /// A new control with its own defaults, as if just drawn on `container` (the form when null). Null for an unknown kind or
    /// an unloaded form.
    Control* Add(base::StringView kind, base::StringView name, float left, float top, float width, float height,
                 const ControlFactory& factory, Container* container = nullptr);

    /// All controls, those inside of others too, in the order of the form text.
    [[nodiscard]] std::vector<Control*> Controls() const;
    [[nodiscard]] Control* Find(base::StringView name) const;
    /// The control of this name when it is a `T`, else null.
    template <class T>
    [[nodiscard]] T* Find(base::StringView name) const
    {
        return dynamic_cast<T*>(Find(name));
    }
    /// The form text with the present properties.
    [[nodiscard]] std::string Write() const;

    [[nodiscard]] HWND hWnd() const { return OwnWindow::Handle(); }
    [[nodiscard]] const base::String& Name() const { return name_; }
    [[nodiscard]] const base::String& Caption() const { return caption_; }
    void Caption(base::StringView caption);
    /// When true the form sees every key before the control that has the focus.
    [[nodiscard]] bool KeyPreview() const { return keyPreview_; }
    void KeyPreview(bool preview) { keyPreview_ = preview; }
    /// Whether texts are read from right to left; controls ask for it as an ambient property.
    [[nodiscard]] bool RightToLeft() const { return rightToLeft_; }
    [[nodiscard]] host::ScaleMode ScaleMode() const { return scaleMode_; }
    [[nodiscard]] const std::shared_ptr<host::Font>& Font() const { return font_; }
    void Font(std::shared_ptr<host::Font> font);
    [[nodiscard]] OleColor BackColor() const { return backColor_; }
    void BackColor(OleColor color);
    [[nodiscard]] OleColor ForeColor() const { return foreColor_; }
    void ForeColor(OleColor color);
    /// False makes the form a designer's: controls are told by their ambient properties. Set it before Load.
    [[nodiscard]] bool UserMode() const { return userMode_; }
    void UserMode(bool userMode) { userMode_ = userMode; }

    /// The control that has, or on activation will get, the keyboard focus. Null for none.
    [[nodiscard]] Control* ActiveControl() const { return active_; }
    /// Whether a property has changed since the form was loaded.
    [[nodiscard]] bool IsChanged() const { return isChanged_; }
    /// A control's property (its name) has changed.
    Event<1, Control&, base::StringView> PropertyChanged;
    /// The user has pressed a key or a mouse button anywhere on the form, and nobody has heard of it yet.
    Event<2> UserActed;

    /// Makes a routine callable by name. A form publishes its key routines for controls that forward keys.
    void Publish(base::StringView name, Routine routine);
    /// Null when the form has published nothing of this name.
    [[nodiscard]] const Routine* RoutineByName(base::StringView name) const;

    /// The form that was loaded first among those loaded; null when there is none.
    [[nodiscard]] static Form* First();
    /// The loaded form that `window` is or stands on; null for windows of others.
    [[nodiscard]] static Form* Of(HWND window);
    /// The control whose window, own or shown, is `window`; null for the form itself and for windows of others.
    [[nodiscard]] Control* ControlOf(HWND window) const;

    // Controls and the key routing call these.

    /// Changes the active control: the former one gets LostFocus and ExitFocus, this one EnterFocus. Null leaves none.
    void Activate(Control* control);
    /// The active control can't keep the focus (it was hidden or disabled): the next in tab order gets it, as a guest.
    void PassFocusOn(Control& from);
    /// A control is enabled again: it gets back the focus that was passed on from it, if nobody has moved it since.
    void GiveFocusBack(Control& to);
    /// The user has pressed a key or a mouse button: whoever has the focus keeps it.
    void UserActs();
    /// A window that is no one's to type in got the keyboard focus: the active control gets it, or the first that can take it.
    void RestoreFocus();
    void OnPropertyChanged(Control& control, base::StringView name);
    /// Lets the form handle a key as its own. False when the code became 0; else `key` is the code that goes on.
    bool HandleKey(KeyEvent event, WPARAM& key);
    /// A key has been where it was pressed; in a form that is scrolled it may be one that turns its pages.
    void ScrollByKey(const MSG& key) { scroll_.Key(hWnd(), key.hwnd, key.wParam); }
    /// Enters a control in the list of another container.
    static void MoveTo(Control& control, Container& from, Container& to);
    /// A number for a control's SetTimer on the form's window, and who ticks when it is due.
    [[nodiscard]] UINT_PTR AddTimer(std::function<void()> tick);
    void RemoveTimer(UINT_PTR timer);
    /// Answers WM_GETOBJECT for the windows of the form's controls.
    [[nodiscard]] AccessibleWindows& Accessibles() { return accessibles_; }

    [[nodiscard]] HWND ContainerHandle() const final { return hWnd(); }
    [[nodiscard]] host::ScaleMode ContainerScaleMode() const final { return scaleMode_; }
    [[nodiscard]] POINT ContainerOrigin() const final { return scroll_.Origin(); }
    [[nodiscard]] OleColor ContainerBackColor() const final { return backColor_; }
    [[nodiscard]] OleColor ContainerForeColor() const final { return foreColor_; }

protected:
    virtual void Form_Initialize() {}
    virtual void Form_Load() {}
    virtual void Form_KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    virtual void Form_KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    virtual void Form_KeyPress(std::int16_t& /*keyAscii*/) {}
    virtual void Form_Unload() {}

private:
    bool Build(const FormNode& root, const ControlFactory& factory);
    bool MakeWindow();
    bool Place(const FormNode& node, Container& container, const ControlFactory& factory);
    Control* Site(base::StringView kind, base::StringView name, Container& container, const ControlFactory& factory);
    void ReadProperties(const PropertyBag& bag);
    void TearDown();
    void MoveFocusTo(Control* control);
    void Ambient(base::StringView name);
    FormNode Describe(Control& control) const;
    void Fill(HDC target) const;
    void ForwardToControls(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) final;

    enum class State { Made, Loaded, Unloading, Unloaded };
    State state_ = State::Made;
    bool isShown_ = false;
    bool isChanged_ = false;
    base::String name_;
    base::String caption_;
    int clientWidth_ = 0;
    int clientHeight_ = 0;
    FormScroll scroll_;
    bool keyPreview_ = false;
    bool rightToLeft_ = false;
    bool userMode_ = true;
    host::ScaleMode scaleMode_ = ScaleMode::Twips;
    std::shared_ptr<host::Font> font_ = std::make_shared<host::Font>();
    OleColor backColor_ = SystemColor(COLOR_BTNFACE);
    OleColor foreColor_ = SystemColor(COLOR_BTNTEXT);
    std::vector<std::unique_ptr<Control>> controls_;
    Control* active_ = nullptr;
    const Control* passedOnFrom_ = nullptr;
    std::map<base::String, Routine, std::less<>> routines_;
    std::map<UINT_PTR, std::function<void()>> timers_;
    UINT_PTR nextTimer_ = 1;
    AccessibleWindows accessibles_;
    std::string loadError_;
};

}  // namespace host
