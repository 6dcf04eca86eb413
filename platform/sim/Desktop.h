// Desktop: the screen of the stand-in PC and the user who sits before it.
#pragma once

#include "platform/sim/Image.h"
#include "platform/sim/SimPc.h"

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

enum class MouseButton { Left, Right, Middle };

/// Bits of `Desktop::Press`.
enum KeyShift : int { kNoShift = 0, kShift = 1, kControl = 2, kAlt = 4 };

class Desktop : public Area {
public:
    using Area::Area;

    // -- The screen: one monitor, whose bottom 40 pixels belong to the taskbar --

    /// Dots per inch (96).
    [[nodiscard]] int Dpi() const;
    void Dpi(int dotsPerInch);
    /// The screen gets another size (1280 by 800): every window is told.
    void Resolution(int width, int height);

    // -- What the user does. Each step lets everybody handle what it causes (`SimPc::Settle`). Points are screen pixels --

    void MouseMove(int x, int y);
    void MouseDown(MouseButton button = MouseButton::Left);
    void MouseUp(MouseButton button = MouseButton::Left);
    /// 120 is one notch away from the user.
    void MouseWheel(int delta);
    /// Moves to a point of the window's client area, presses and releases.
    void Click(HWND window, int x, int y, MouseButton button = MouseButton::Left);
    /// Two clicks with no time between them.
    void DoubleClick(HWND window, int x, int y, MouseButton button = MouseButton::Left);
    /// Moves to a point of the window's client area.
    void Hover(HWND window, int x, int y);
    void KeyDown(int virtualKey);
    void KeyUp(int virtualKey);
    /// Holds the shift keys (`KeyShift` bits), presses and releases the key, releases the shift keys.
    void Press(int virtualKey, int shift = kNoShift);
    /// Types text on a US keyboard; characters that it lacks arrive as an input method sends them.
    void Type(std::u16string_view text);
    /// Clicks the close box of a top-level window.
    void ClickCloseBox(HWND window);

    /// Called when a thread of another process takes WM_QUIT from its queue: its message loop has ended.
    void OnQuit(std::function<void(Actor thread, int exitCode)> action);

    // -- What can be seen --

    /// A whole window with its frame, as it would look with nothing in front of it: what has been painted so far.
    [[nodiscard]] Image Snapshot(HWND window) const;
    /// Live top-level windows of all processes, topmost first, visible or not.
    [[nodiscard]] std::vector<HWND> Windows() const;
    [[nodiscard]] std::u16string Text(HWND window) const;
    /// The first top-level window with this text, whoever's it is; NULL when there is none.
    [[nodiscard]] HWND FindByText(std::u16string_view text) const;
    /// The window that the keyboard goes to, whoever's it is.
    [[nodiscard]] HWND Focus() const;
    /// The window below a point of the screen that takes part in mouse input.
    [[nodiscard]] HWND WindowAt(POINT screen) const;
    /// Timers that are running for a process.
    [[nodiscard]] std::size_t TimersOf(DWORD process) const;

    // -- Scenes --

    /// The user switched visual styles or changed colours: every window is told as Windows tells it, and repaints.
    void AnnounceThemeChange();
    void AnnounceColorChange();
    /// A thread that handles no messages: posted ones wait, sent ones with a time limit run into it (ERROR_TIMEOUT).
    void Hang(Actor thread, bool hangs = true);
    /// Whether keyboard cues (access key underlines, focus rectangles) are always shown (SPI_GETKEYBOARDCUES; off).
    void KeyboardCues(bool shown);

    /// Face name of the font of captions, menus and messages (SPI_GETNONCLIENTMETRICS; "Segoe UI").
    void MessageFont(std::u16string faceName);
    /// Gives the program's module an icon resource of this name, so that LoadImageW and LoadIconW find it.
    void AddIconResource(std::u16string name);

private:
    void Settle();
};

}  // namespace platform
