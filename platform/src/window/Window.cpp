// The tree of windows: parents, children and their order from front to back.
#include "platform/src/window/Window.h"

#include "platform/src/gdi/Screen.h"

#include <algorithm>

namespace platform {

Window& Window::TopLevel()
{
    Window* window = this;
    while (window->parent && window->parent->parent)
        window = window->parent;
    return *window;
}

bool Window::IsShown() const
{
    const Window* window = this;
    for (; window; window = window->parent)
        if (!(window->style & WS_VISIBLE))
            return false;
    return true;
}

bool Window::IsBelow(const Window* ancestor) const
{
    for (const Window* window = parent; window; window = window->parent)
        if (window == ancestor)
            return true;
    return false;
}

POINT OriginOf(const Window& window)
{
    return window.IsTopLevel() ? POINT{0, 0} : POINT{window.parent->client.left, window.parent->client.top};
}

WindowTree::WindowTree(SimPc& pc) : Area(pc), desktop_(MakeRoot(u"#32769")), messageRoot_(MakeRoot(u"Message"))
{
    const SIZE screen = pc.Get<Screen>().Size();
    desktop_->frame = desktop_->client = {0, 0, screen.cx, screen.cy};
    desktop_->style |= WS_VISIBLE;
}

WindowPtr WindowTree::MakeRoot(const char16_t* className)
{
    auto root = std::make_shared<Window>();
    root->actor = Actor{4, 8};
    root->windowClass = std::make_shared<WindowClass>();
    root->windowClass->name = className;
    root->style = WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    root->handle = AsHandle<HWND>(pc_.Handles().Open(root, HandleTable::Watch::Ignore));
    return root;
}

WindowPtr WindowTree::Add(Window& parent)
{
    auto window = std::make_shared<Window>();
    window->actor = pc_.CurrentActor();
    const bool own = window->actor.process == SimPc::Own().process;
    window->handle = AsHandle<HWND>(pc_.Handles().Open(window, own ? HandleTable::Watch::Leak : HandleTable::Watch::Ignore));
    window->parent = &parent;
    // A new window stands in front of the others on the screen, but behind its siblings inside another window.
    parent.children.insert(parent.parent ? parent.children.end() : parent.children.begin(), window.get());
    return window;
}

void WindowTree::Remove(Window& window)
{
    const WindowPtr last = window.shared_from_this();
    std::erase(window.parent->children, &window);
    for (Window* other : desktop_->children)
        if (other->owner == &window)
            other->owner = nullptr;
    --window.windowClass->windows;
    pc_.Handles().CloseAny(reinterpret_cast<std::uintptr_t>(window.handle));
}

void WindowTree::Place(Window& window, HWND after)
{
    auto& siblings = window.parent->children;
    if (after == HWND_TOPMOST)
        window.exStyle |= WS_EX_TOPMOST;
    else if (after == HWND_NOTOPMOST || after == HWND_BOTTOM)
        window.exStyle &= ~static_cast<DWORD>(WS_EX_TOPMOST);
    std::erase(siblings, &window);
    // Topmost windows stand in front of all others, whatever order was asked for.
    const auto isTopmost = [](const Window* sibling) { return (sibling->exStyle & WS_EX_TOPMOST) != 0; };
    const auto firstOrdinary = std::find_if_not(siblings.begin(), siblings.end(), isTopmost);
    auto position = isTopmost(&window) ? siblings.begin() : firstOrdinary;
    if (after == HWND_BOTTOM) {
        position = siblings.end();
    } else if (const WindowPtr sibling = WindowOf(after)) {
        const auto found = std::find(siblings.begin(), siblings.end(), sibling.get());
        if (found != siblings.end())
            position = isTopmost(&window) ? std::min(found + 1, firstOrdinary) : std::max(found + 1, firstOrdinary);
    }
    siblings.insert(position, &window);
}

void WindowTree::Move(Window& window, Window& parent)
{
    std::erase(window.parent->children, &window);
    window.parent = &parent;
    parent.children.insert(parent.children.begin(), &window);
}

std::vector<WindowPtr> WindowTree::Children(const Window& window)
{
    std::vector<WindowPtr> children;
    children.reserve(window.children.size());
    for (Window* child : window.children)
        children.push_back(child->shared_from_this());
    return children;
}

void WindowTree::Collect(const Window& window, std::vector<WindowPtr>& into)
{
    for (Window* child : window.children) {
        into.push_back(child->shared_from_this());
        Collect(*child, into);
    }
}

std::vector<WindowPtr> WindowTree::All() const
{
    std::vector<WindowPtr> all;
    Collect(*desktop_, all);
    Collect(*messageRoot_, all);
    return all;
}

void WindowTree::Raise(Window& window)
{
    Place(window, HWND_TOP);
    const std::vector<WindowPtr> siblings = Children(*window.parent);
    for (auto sibling = siblings.rbegin(); sibling != siblings.rend(); ++sibling)
        if ((*sibling)->owner == &window)
            Raise(**sibling);
}

WindowTree& Tree()
{
    return SimPc::Current().Get<WindowTree>();
}

WindowPtr WindowOf(HWND handle)
{
    return SimPc::Current().Handles().Find<Window>(handle);
}

WindowPtr RequireWindow(HWND handle)
{
    WindowPtr window = WindowOf(handle);
    if (!window)
        SimPc::Current().LastError(ERROR_INVALID_WINDOW_HANDLE);
    return window;
}

}  // namespace platform
