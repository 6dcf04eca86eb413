// Window: one window of the stand-in PC, its class, and the tree of all windows.
#pragma once

#include "platform/sim/Image.h"
#include "platform/sim/SimPc.h"
#include "platform/src/gdi/Region.h"

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct WindowClass {
    std::u16string name;
    ATOM atom = 0;
    UINT style = 0;
    WNDPROC procedure = nullptr;
    HINSTANCE instance = nullptr;
    HICON icon = nullptr;
    HICON smallIcon = nullptr;
    HCURSOR cursor = nullptr;
    HBRUSH background = nullptr;
    LPCWSTR menuName = nullptr;
    DWORD process = 0;  // 0: a class of the system
    int windows = 0;
};

struct Window final : Object, std::enable_shared_from_this<Window> {
    HWND handle = nullptr;
    Actor actor;
    std::shared_ptr<WindowClass> windowClass;
    WNDPROC procedure = nullptr;

    Window* parent = nullptr;  // NULL only for the two roots
    Window* owner = nullptr;
    std::vector<Window*> children;  // topmost first

    DWORD style = 0;
    DWORD exStyle = 0;
    RECT frame{};                 // the whole window, screen pixels
    RECT client{};                // its client area, screen pixels
    RECT restored{};              // where it returns to when it is no longer minimised
    std::optional<Region> shape;  // SetWindowRgn, from the window's corner

    struct ScrollBar {
        int minimum = 0, maximum = 100, position = 0;
        UINT page = 0;
    };
    ScrollBar scrollBars[2];  // SB_HORZ, SB_VERT

    LONG_PTR id = 0;  // identifier of a child, menu of the others
    HINSTANCE instance = nullptr;
    LONG_PTR userData = 0;
    std::u16string text;
    HICON bigIcon = nullptr;
    HICON smallIcon = nullptr;

    Region invalid;  // what has to be painted, from the window's corner
    bool eraseWaits = false;
    bool frameWaits = false;
    bool internalPaint = false;
    std::shared_ptr<Image> pixels;  // top-level windows: everything that is drawn in them and in their children

    bool sizeMoveWaits = false;  // an overlapped window hears of its size and place when it is first shown
    bool dying = false;          // DestroyWindow is on its way
    bool frameActive = false;    // the caption is drawn as active
    int pressedBox = HTNOWHERE;  // the caption box that the mouse button went down on

    [[nodiscard]] bool IsChildStyle() const { return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }
    /// Whether the window stands directly on the screen.
    [[nodiscard]] bool IsTopLevel() const { return parent && !parent->parent; }
    [[nodiscard]] int Width() const { return frame.right - frame.left; }
    [[nodiscard]] int Height() const { return frame.bottom - frame.top; }
    [[nodiscard]] Window& TopLevel();
    /// Visible, and every window above it too.
    [[nodiscard]] bool IsShown() const;
    [[nodiscard]] bool IsBelow(const Window* ancestor) const;
};

using WindowPtr = std::shared_ptr<Window>;

/// The tree of all windows. Its roots are the desktop window and the parent of message-only windows.
class WindowTree : public Area {
public:
    explicit WindowTree(SimPc& pc);

    [[nodiscard]] Window& Desktop() { return *desktop_; }
    [[nodiscard]] Window& MessageRoot() { return *messageRoot_; }

    /// Puts a new window below `parent`.
    WindowPtr Add(Window& parent);
    /// Takes a window out of the tree and forgets its handle.
    void Remove(Window& window);
    /// Moves a window among its siblings: HWND_TOP, HWND_BOTTOM, HWND_TOPMOST, HWND_NOTOPMOST or a sibling to come after.
    void Place(Window& window, HWND after);
    /// In front of its siblings; windows that it owns stay in front of it.
    void Raise(Window& window);
    /// Hangs a window below another parent, on top.
    void Move(Window& window, Window& parent);
    /// Children from top to bottom; safe to walk while windows come and go.
    [[nodiscard]] static std::vector<WindowPtr> Children(const Window& window);
    /// All windows, a parent before its children, topmost first.
    [[nodiscard]] std::vector<WindowPtr> All() const;

private:
    static void Collect(const Window& window, std::vector<WindowPtr>& into);
    WindowPtr MakeRoot(const char16_t* className);

    WindowPtr desktop_;
    WindowPtr messageRoot_;
};

[[nodiscard]] WindowTree& Tree();
/// The live window of a handle, or empty.
[[nodiscard]] WindowPtr WindowOf(HWND handle);
/// The same; an unknown one sets ERROR_INVALID_WINDOW_HANDLE.
[[nodiscard]] WindowPtr RequireWindow(HWND handle);

/// The client area of the window above, in screen pixels; positions of children count from its corner.
[[nodiscard]] POINT OriginOf(const Window& window);

[[nodiscard]] inline RECT Shifted(const RECT& rectangle, int dx, int dy)
{
    return {rectangle.left + dx, rectangle.top + dy, rectangle.right + dx, rectangle.bottom + dy};
}
[[nodiscard]] inline bool Holds(const RECT& rectangle, POINT point)
{
    return point.x >= rectangle.left && point.x < rectangle.right && point.y >= rectangle.top && point.y < rectangle.bottom;
}
[[nodiscard]] inline bool operator==(const RECT& one, const RECT& other)
{
    return one.left == other.left && one.top == other.top && one.right == other.right && one.bottom == other.bottom;
}

}  // namespace platform
