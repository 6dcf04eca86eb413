// DSubclass: lets an object watch and answer the messages of one window of its own process.
#pragma once

#include "base/String.h"
#include "host/Event.h"

#include <windows.h>

#include <memory>

namespace controls {

/// A link in the subclass chain of a window. Any number of them may stand on the same window; the one installed last hears a message first.
///
/// The owner may destroy it at any time, also inside its own `WndProc` handler: the delivery in progress still gives its result to
/// Windows, and what the link holds is given back after the outermost delivery. All of it belongs to the thread that owns the window.
/// https://learn.microsoft.com/windows/win32/controls/subclassing-overview
class DSubclass {
public:
    DSubclass() = default;
    DSubclass(const DSubclass&) = delete;
    DSubclass& operator=(const DSubclass&) = delete;
    ~DSubclass() { Release(); }

    /// Window, message, wParam, lParam, result (starts at 0) and handled (starts false). A handled message goes no further down the chain.
    host::Event<1, HWND, UINT, WPARAM, LPARAM, LRESULT&, bool&> WndProc;

    /// Installs the object on `window`, after taking it off the one before. False for a dead window, for a window that refuses, and
    /// when the window before does not let go. Raises `OutOfMemory` with everything undone that this call had made.
    bool Enable(HWND window);
    /// Like `Enable`, but lack of memory too just returns false: a control whose window cannot be watched still stands and can be
    /// programmed.
    bool TryEnable(HWND window) noexcept;
    /// Takes the object off its window. False when it was not installed, when a live window does not let go (it then stays installed),
    /// and when the window was gone already (it is then not installed any more).
    bool Disable();

    /// Takes the object off its window and gives back what it holds there: its block, and with the last block of a window the heap. It can
    /// be enabled again.
    void Release();

    /// While paused, messages pass straight through. True when the object was installed and not paused.
    bool PauseSubclass();
    /// True when the object was installed and paused.
    bool ResumeSubclass();

    [[nodiscard]] bool IsSubclassed() const;
    [[nodiscard]] bool IsPaused() const;
    /// The window that the object is installed on, or NULL.
    [[nodiscard]] HWND hWnd() const;

    /// Lets a handler have the default processing first and alter its result: sets `handled` and returns what the rest of the chain
    /// answered. 0 with `handled` untouched when the object is not installed.
    LRESULT CallOriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool& handled);

private:
    class Link;
    std::shared_ptr<Link> link_;  // null until it is enabled for the first time
};

/// Pauses a subclass for as long as it lives, unless it is paused already.
class SubclassPause {
public:
    explicit SubclassPause(DSubclass& subclass) : subclass_(subclass), paused_(subclass.PauseSubclass()) {}
    SubclassPause(const SubclassPause&) = delete;
    SubclassPause& operator=(const SubclassPause&) = delete;
    ~SubclassPause()
    {
        if (paused_)
            subclass_.ResumeSubclass();
    }

private:
    DSubclass& subclass_;
    bool paused_;
};

/// Sends a message to a control's own window past the control's own handler. 0 when there is no window.
LRESULT SendMessageUnsubclassed(DSubclass& subclass, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The text of a control's own window, asked for past the control's own handler.
[[nodiscard]] base::String WindowTextUnsubclassed(DSubclass& subclass, HWND window);

}  // namespace controls
