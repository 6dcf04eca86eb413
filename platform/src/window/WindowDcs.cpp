#include "platform/src/window/WindowDcs.h"

#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"
#include "platform/src/window/Inner.h"
#include "platform/src/window/Visibility.h"

#include <algorithm>

namespace platform {

namespace {

struct View {
    std::shared_ptr<Image> pixels;
    POINT origin;
    Region visible;
};

View ViewOf(Window& window, bool whole, bool clipChildren, const Region* clip)
{
    Window& top = window.TopLevel();
    Region visible = VisibleRegion(window, whole, clipChildren);
    if (clip)
        visible = visible.Intersect(*clip);
    const RECT& own = whole ? window.frame : window.client;
    const POINT corner{top.frame.left, top.frame.top};
    std::shared_ptr<Image> pixels = top.pixels ? top.pixels : std::make_shared<Image>(1, 1);
    return {pixels, {own.left - corner.x, own.top - corner.y}, visible.Offset(-corner.x, -corner.y).Intersect(Region(pixels->Bounds()))};
}

WindowDcs& Dcs()
{
    return SimPc::Current().Get<WindowDcs>();
}

HDC OpenFor(HWND handle, bool whole, bool clipChildren, const Region* clip = nullptr)
{
    if (!handle || handle == Tree().Desktop().handle)
        return Dcs().OpenScreen();
    const WindowPtr window = RequireWindow(handle);
    return window ? Dcs().Open(*window, whole, clipChildren, clip) : nullptr;
}

bool ClipsChildren(HWND window)
{
    return (inner::GetStyle(window) & WS_CLIPCHILDREN) != 0;
}

}  // namespace

HDC WindowDcs::Open(Window& window, bool whole, bool clipChildren, const Region* clip)
{
    const View view = ViewOf(window, whole, clipChildren, clip);
    const HDC dc = OpenDc(view.pixels, view.origin, view.visible, window.handle);
    Entry& entry = entries_.emplace_back(Entry{dc, window.handle, whole, clipChildren, {}});
    if (clip)
        entry.clip = clip->Offset(-window.frame.left, -window.frame.top);
    return dc;
}

HDC WindowDcs::OpenScreen()
{
    const RECT bounds = Tree().Desktop().frame;
    if (!screen_ || screen_->width != bounds.right || screen_->height != bounds.bottom)
        screen_ = std::make_shared<Image>(bounds.right, bounds.bottom);
    const HDC dc = OpenDc(screen_, {0, 0}, Region(bounds), nullptr);
    FindDc(dc)->ComposeLater([this] { ComposeScreen(); });
    entries_.push_back(Entry{dc, nullptr, true, false, {}});
    return dc;
}

void WindowDcs::ComposeScreen()
{
    const RECT bounds = screen_->Bounds();
    std::fill(screen_->pixels.begin(), screen_->pixels.end(), SwapRedBlue(pc_.Get<Graphics>().SystemColor(COLOR_BACKGROUND)));
    const std::vector<WindowPtr> windows = WindowTree::Children(Tree().Desktop());
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (!(*window)->pixels)
            continue;
        const RECT& frame = (*window)->frame;
        const Image& picture = *(*window)->pixels;
        const Region shown = VisibleRegion(**window, true, false)
                                 .Intersect(Region(bounds))
                                 .Intersect(Region(Shifted(picture.Bounds(), frame.left, frame.top)));
        for (const RECT& part : shown.Rectangles())
            for (int y = part.top; y < part.bottom; ++y)
                std::copy_n(&picture.pixels[static_cast<std::size_t>((y - frame.top) * picture.width + part.left - frame.left)],
                            part.right - part.left, &screen_->At(part.left, y));
    }
}

bool WindowDcs::Close(HDC dc)
{
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.dc == dc; });
    if (found == entries_.end())
        return false;
    entries_.erase(found);
    return CloseDc(dc);
}

void WindowDcs::Follow(Window& topLevel)
{
    for (const Entry& entry : entries_) {
        const WindowPtr window = WindowOf(entry.window);
        if (!window || &window->TopLevel() != &topLevel)
            continue;
        std::optional<Region> clip;
        if (entry.clip)
            clip = entry.clip->Offset(window->frame.left, window->frame.top);
        const View view = ViewOf(*window, entry.whole, entry.clipChildren, clip ? &*clip : nullptr);
        MoveDc(entry.dc, view.pixels, view.origin, view.visible);
    }
}

void WindowDcs::Forget(const Window& window)
{
    for (Entry& entry : entries_) {
        if (entry.window != window.handle)
            continue;
        MoveDc(entry.dc, std::make_shared<Image>(1, 1), {0, 0}, Region());
        entry.window = nullptr;
    }
}

namespace inner {

HDC GetDC(HWND window)
{
    return OpenFor(window, false, ClipsChildren(window));
}

HDC GetWindowDC(HWND window)
{
    return OpenFor(window, true, ClipsChildren(window));
}

void ReleaseDC(HWND, HDC dc)
{
    Dcs().Close(dc);
}

}  // namespace inner

}  // namespace platform

using namespace platform;

HDC WINAPI GetDC(HWND window)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, window);
    return inner::GetDC(window);
}

HDC WINAPI GetWindowDC(HWND window)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, window);
    return inner::GetWindowDC(window);
}

int WINAPI ReleaseDC(HWND window, HDC dc)
{
    SIM_NOTE(window, dc);
    return Dcs().Close(dc);
}
