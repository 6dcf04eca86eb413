// WindowDcs: the device contexts of windows and of the screen.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

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
