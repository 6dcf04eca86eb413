// Painting: what of a window can be seen, what of it has to be painted, and its device contexts.
#pragma once

#include "platform/src/window/Window.h"

#include <functional>

namespace platform {

/// What can be seen of a window (its whole frame or its client area), in screen pixels. Other top-level windows cover nothing:
/// each has an image of its own. Empty while the window is hidden.
[[nodiscard]] Region VisibleRegion(const Window& window, bool whole, bool clipChildren);
/// Marks or clears what has to be painted. `area` is in screen pixels; `flags` are RDW_INVALIDATE, _VALIDATE, _ERASE, _FRAME, _CHILDREN.
void Mark(Window& window, const Region& area, UINT flags);
/// Sends WM_NCPAINT and WM_ERASEBKGND when they wait.
void PaintFrameAndBackground(Window& window);
/// WM_PAINT at once for the window and those in it.
void PaintNow(Window& window, bool children);
/// The first window of a thread, a parent before its children, that has something to paint and is wanted; or empty.
[[nodiscard]] WindowPtr NextToPaint(Actor thread, const std::function<bool(HWND)>& wanted);
/// The image of a top-level window gets the size of its frame; what it showed stays in its corner.
void FitPixels(Window& topLevel);

/// The device contexts that are open for windows. When windows move, they follow.
class WindowDcs : public Area {
public:
    using Area::Area;
    /// `clip`, when given, limits it further (screen pixels).
    HDC Open(Window& window, bool whole, bool clipChildren, const Region* clip = nullptr);
    /// One of the screen: a picture of all windows as they stand now.
    HDC OpenScreen();
    bool Close(HDC dc);
    /// Windows inside this top-level window have moved, come or gone.
    void Follow(Window& topLevel);
    /// The window has gone; its device contexts draw nowhere.
    void Forget(const Window& window);

private:
    void ComposeScreen();

    struct Entry {
        HDC dc = nullptr;
        HWND window = nullptr;
        bool whole = false;
        bool clipChildren = false;
        std::optional<Region> clip;  // from the window's corner
    };
    std::vector<Entry> entries_;
    std::shared_ptr<Image> screen_;
};

}  // namespace platform
