#include "platform/src/window/Visibility.h"

#include <algorithm>

namespace platform {

namespace {

Region FrameRegion(const Window& window)
{
    const Region frame(window.frame);
    return window.shape ? frame.Intersect(window.shape->Offset(window.frame.left, window.frame.top)) : frame;
}

bool Covers(const Window& window)
{
    return (window.style & WS_VISIBLE) && !(window.exStyle & WS_EX_TRANSPARENT);
}

Region FromCorner(const Window& window, const Region& screen)
{
    return screen.Offset(-window.frame.left, -window.frame.top);
}

WindowPtr FindToPaint(const Window& parent, Actor thread, const std::function<bool(HWND)>& wanted)
{
    for (Window* window : parent.children) {
        if (!(window->style & WS_VISIBLE))
            continue;
        if (window->actor == thread && NeedsPaint(*window) && wanted(window->handle))
            return window->shared_from_this();
        if (WindowPtr child = FindToPaint(*window, thread, wanted))
            return child;
    }
    return nullptr;
}

}  // namespace

/// Conformance test Painting.DeviceContext_IsClippedToWhatCanBeSeen.
Region VisibleRegion(const Window& window, bool whole, bool clipChildren)
{
    if (!window.IsShown())
        return {};
    Region visible(whole ? window.frame : window.client);
    for (const Window* level = &window; level->parent; level = level->parent) {
        if (level->shape)
            visible = visible.Intersect(FrameRegion(*level));
        if (level->IsTopLevel())
            break;
        visible = visible.Intersect(Region(level->parent->client));
        if (!(level->style & WS_CLIPSIBLINGS))
            continue;
        for (const Window* sibling : level->parent->children) {
            if (sibling == level)
                break;
            if (Covers(*sibling))
                visible = visible.Subtract(FrameRegion(*sibling));
        }
    }
    if (clipChildren)
        for (const Window* child : window.children)
            if (Covers(*child))
                visible = visible.Subtract(FrameRegion(*child));
    return visible;
}

void Mark(Window& window, const Region& area, UINT flags)
{
    if (!window.IsShown())
        return;
    const bool clips = (window.style & WS_CLIPCHILDREN) != 0;
    const Region own = area.Intersect(VisibleRegion(window, (flags & (RDW_FRAME | RDW_VALIDATE)) != 0, clips));
    if (flags & RDW_INVALIDATE) {
        window.invalid = window.invalid.Union(FromCorner(window, own));
        window.eraseWaits |= (flags & RDW_ERASE) && !own.IsEmpty();
        const Region border = Region(window.frame).Subtract(Region(window.client));
        window.frameWaits |= (flags & RDW_FRAME) && !own.Intersect(border).IsEmpty();
    } else if (flags & RDW_VALIDATE) {
        window.invalid = window.invalid.Subtract(FromCorner(window, own));
        if (flags & RDW_NOERASE)
            window.eraseWaits = false;
        if (window.invalid.IsEmpty())
            window.eraseWaits = window.frameWaits = false;
    }
    if (!(flags & RDW_NOCHILDREN) && ((flags & RDW_ALLCHILDREN) || !clips))
        for (const WindowPtr& child : WindowTree::Children(window))
            Mark(*child, area, flags | ((flags & RDW_INVALIDATE) ? RDW_FRAME : 0));
}

bool NeedsPaint(const Window& window)
{
    return (!window.invalid.IsEmpty() || window.internalPaint) && window.IsShown();
}

WindowPtr NextToPaint(Actor thread, const std::function<bool(HWND)>& wanted)
{
    return FindToPaint(Tree().Desktop(), thread, wanted);
}

void FitPixels(Window& topLevel)
{
    const int width = std::max(topLevel.Width(), 0);
    const int height = std::max(topLevel.Height(), 0);
    const std::shared_ptr<Image> old = topLevel.pixels;
    if (old && old->width == width && old->height == height)
        return;
    topLevel.pixels = std::make_shared<Image>(width, height);
    for (int y = 0; old && y < std::min(height, old->height); ++y)
        std::copy_n(&old->pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(old->width)], std::min(width, old->width),
                    &topLevel.pixels->pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)]);
}

}  // namespace platform
