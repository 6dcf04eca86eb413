// FormScroll: the part of a form that its window shows where the screen has no room for all of it.
#pragma once

#include <windows.h>

namespace host {

/// The window never reaches beyond the work area; what it can't hold it scrolls. While all of the form fits, nothing here does anything.
class FormScroll {
public:
    /// The place in `area` for the window of a form of `content` pixels: in its middle, no larger than it. `style` gets or loses the scroll
    /// bars. An area that Windows would not tell has room for everything.
    RECT Fit(SIZE content, const RECT& area, DWORD& style);
    /// The window has the size that `Fit` gave it: tells Windows what the bars stand for, and leaves nothing hidden that has room.
    void Show(HWND window);
    /// The work area of the window's screen has changed.
    void Refit(HWND window);

    /// Where the form's upper left corner stands in the client area: 0, 0 or to the left of and above it.
    [[nodiscard]] POINT Origin() const { return {-across_.at, -down_.at}; }

    /// A message of the form's window; true when it is one for scrolling.
    bool On(HWND window, UINT message, WPARAM wParam);
    /// Page Up, Page Down, Ctrl+Home and Ctrl+End, which `focused` has had and may have use for.
    void Key(HWND window, HWND focused, WPARAM key);
    /// Brings a window on the form wholly into view, with a line around it; of one that is too large the beginning.
    void Reveal(HWND window, HWND part);

private:
    /// One direction, in pixels.
    struct Axis {
        LONG content = 0;
        LONG page = 0;
        LONG at = 0;
        [[nodiscard]] LONG Clamped(LONG position) const;
        [[nodiscard]] bool Scrolls() const { return page < content; }
        [[nodiscard]] LONG After(WORD command, WORD position) const;
        [[nodiscard]] LONG Showing(LONG first, LONG last) const;
    };
    void Move(HWND window, LONG across, LONG down);
    void ShowBars(HWND window) const;

    Axis across_, down_;
    bool refitWaits_ = false;
};

}  // namespace host
