// Balloon: a message at a window, shown at once.
#pragma once

#include "base/String.h"
#include "controls/DSubclass.h"

#include <commctrl.h>

#include <memory>

namespace controls {

/// A balloon that points at a window and takes neither the focus nor the mouse. Assistive programs are told of it. It goes after ten
/// seconds, at a click on it, with the window, or when it is told to; the next message takes its place.
/// https://learn.microsoft.com/windows/win32/controls/implement-balloon-tooltips
class Balloon {
public:
    enum class Icon { Information = TTI_INFO, Warning = TTI_WARNING, Error = TTI_ERROR };

    Balloon() = default;
    Balloon(const Balloon&) = delete;
    Balloon& operator=(const Balloon&) = delete;
    ~Balloon() { Hide(); }

    /// `title` has at most 99 characters. Does nothing where Windows refuses the window.
    void Show(HWND at, Icon icon, const base::String& title, const base::String& text);
    void Hide();

    /// NULL while there is none.
    [[nodiscard]] HWND Window() const { return window_; }

private:
    HWND window_ = nullptr;
    std::unique_ptr<DSubclass> subclass_;
};

}  // namespace controls
