// Utility: one running copy of the real exe, seen and handled from outside.
#pragma once

#include "base/Handles.h"
#include "base/String.h"
#include "tests/e2e/Desktop.h"
#include "tests/e2e/FormMap.h"

namespace e2e {

class Utility {
public:
    /// Starts the exe in its own folder. The process is ended with the object, whatever it is doing.
    explicit Utility(const base::String& exe);
    ~Utility();
    Utility(const Utility&) = delete;
    Utility& operator=(const Utility&) = delete;

    [[nodiscard]] DWORD ProcessId() const { return processId_; }
    /// Waits for the window to be open and in front.
    [[nodiscard]] bool Opened();
    [[nodiscard]] bool Ended(Milliseconds patience = SOON) const;
    [[nodiscard]] HWND Window() const { return window_; }
    /// The message box that the process shows, NULL when there is none.
    [[nodiscard]] HWND MessageBox() const;
    /// False when its message loop is held up.
    [[nodiscard]] bool Responds() const;

    /// The control's own window, found by place and class; NULL when no visible window or more than one is there.
    [[nodiscard]] HWND Own(Place place) const;
    /// The window that a person sees and that has the control's text or check mark: the system's "Button" or "Edit" where the control
    /// hosts one, which lies over the control's own window, and else the own window.
    [[nodiscard]] HWND Shown(Place place) const;
    /// Whether input reaches it: neither the control nor anything around it is disabled.
    [[nodiscard]] bool Enabled(Place place) const;
    [[nodiscard]] bool Checked(Place place) const;
    [[nodiscard]] base::String Text(Place place) const;
    [[nodiscard]] int Selected(Place comboBox) const;

    // What a person does. Every one of them brings the window to the front first.

    void Click(Place place) const;
    void ClickCloseBox() const;
    void Press(std::initializer_list<WORD> virtualKeys) const;
    /// Presses Tab until the control has the keyboard focus; false when it never gets it.
    [[nodiscard]] bool TabTo(Place place) const;
    /// Clicks into the box, selects all that is there and types over it.
    void Enter(Place textBox, base::StringView text) const;
    /// Opens the list and picks the entry whose first letter this is.
    void Choose(Place comboBox, WCHAR firstLetter) const;

private:
    [[nodiscard]] HWND Find(Place place, const WCHAR* className) const;
    void BringToFront() const;
    [[nodiscard]] HWND Focus() const;

    base::KernelHandle process_;
    DWORD processId_ = 0;
    HWND window_ = nullptr;
};

}  // namespace e2e
