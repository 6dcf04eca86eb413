// Utility: one running copy of the real exe, seen and handled from outside.
#pragma once

#include "base/Handles.h"
#include "base/String.h"
#include "tests/e2e/Design.h"
#include "tests/e2e/Eventually.h"

#include <initializer_list>
#include <string>

namespace e2e {

class Utility {
public:
    /// Starts the exe in its own folder. The process is ended with the object, whatever it is doing.
    explicit Utility(const base::String& exe);
    ~Utility();
    Utility(const Utility&) = delete;
    Utility& operator=(const Utility&) = delete;

    /// Waits for the window to be open and in front.
    [[nodiscard]] bool Opened();
    [[nodiscard]] bool Ended(Milliseconds patience = soon) const;
    /// What the process ended with, STILL_ACTIVE while it runs.
    [[nodiscard]] DWORD ExitCode() const;
    [[nodiscard]] HWND Window() const { return window_; }
    /// Places in the process's own memory that hold this text, UTF-16.
    [[nodiscard]] int PlacesOf(base::StringView text) const;
    /// The message box that the process shows, NULL when there is none.
    [[nodiscard]] HWND MessageBox() const { return FindTopLevel(TEXT("#32770")); }
    /// False when its message loop is held up.
    [[nodiscard]] bool Responds() const { return SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, nullptr) != 0; }

    // The controls go by their names on the form and are found by their designed place.

    /// The control's own window; NULL when no visible window or more than one of its class is at its place.
    [[nodiscard]] HWND Own(std::string_view name) const;
    /// The window that a person sees and that has the control's text or check mark: the system's "Button" or "Edit" where the control
    /// hosts one, which lies over the control's own window, and else the own window.
    [[nodiscard]] HWND Shown(std::string_view name) const;
    /// Whether input reaches it: neither the control nor anything around it is disabled.
    [[nodiscard]] bool Enabled(std::string_view name) const;
    [[nodiscard]] bool Checked(std::string_view name) const { return SendMessageW(Shown(name), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    /// The index of the combo box's entry.
    [[nodiscard]] int Selected(std::string_view name) const { return static_cast<int>(SendMessageW(Own(name), CB_GETCURSEL, 0, 0)); }

    /// Whether the keyboard goes to what a person sees of it.
    [[nodiscard]] bool HasFocus(std::string_view name) const;

    // What a person does. Every one of them brings the window to the front first.

    void Click(std::string_view name) const;
    /// Presses the keys in order, the last one with all others held, and lets them go in reverse.
    void Press(std::initializer_list<WORD> virtualKeys) const;
    /// Clicks into the box, selects all that is there and types over it.
    void Enter(std::string_view name, base::StringView text) const;
    /// Opens the list and picks the entry whose first letter this is.
    void Choose(std::string_view name, WCHAR firstLetter) const;

private:
    [[nodiscard]] HWND FindTopLevel(const WCHAR* className) const;
    [[nodiscard]] HWND Find(std::string_view name, base::StringView className) const;
    void BringToFront() const;

    base::KernelHandle process_;
    HWND window_ = nullptr;
};

}  // namespace e2e
