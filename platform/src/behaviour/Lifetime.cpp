// Creating and destroying windows.
#include "platform/src/behaviour/Inner.h"
#include "platform/src/behaviour/Placement.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Screen.h"
#include "platform/src/input/Focus.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/message/ParentNotify.h"
#include "platform/src/window/Visibility.h"
#include "platform/src/window/WindowClasses.h"
#include "platform/src/window/WindowDcs.h"

#include <algorithm>

namespace platform {

namespace {

/// The styles that Windows adds of its own accord.
void CompleteStyles(Window& window)
{
    if (!(window.style & (WS_CHILD | WS_POPUP)))
        window.style |= WS_CAPTION | WS_CLIPSIBLINGS;
    else if (window.style & WS_POPUP)
        window.style |= WS_CLIPSIBLINGS;
    const bool frame = (window.exStyle & WS_EX_DLGMODALFRAME) || (window.style & WS_THICKFRAME) ||
                       ((window.style & WS_DLGFRAME) && !(window.exStyle & WS_EX_STATICEDGE));
    window.exStyle = frame ? window.exStyle | WS_EX_WINDOWEDGE : window.exStyle & ~static_cast<DWORD>(WS_EX_WINDOWEDGE);
}

/// Fills in what CW_USEDEFAULT leaves to Windows: a cascade of windows, three quarters of the work area in size. The step is about a
/// caption, so that each window shows the captions of those below it.
void CompletePlace(const Window& window, int& x, int& y, int& width, int& height)
{
    const bool overlapped = !(window.style & (WS_CHILD | WS_POPUP));
    const RECT area = SimPc::Current().Get<Screen>().WorkArea();
    if (x == CW_USEDEFAULT) {
        const int step = overlapped ? 26 * static_cast<int>(1 + window.parent->children.size() % 10) : 0;
        x = y = step;
    }
    if (width == CW_USEDEFAULT) {
        width = overlapped ? area.right * 3 / 4 : 0;
        height = overlapped ? area.bottom * 3 / 4 : 0;
    }
    if (!overlapped && y == CW_USEDEFAULT)
        y = 0;
}

void LimitSize(Window& window)
{
    const MINMAXINFO limits = AskMinMax(window);
    window.frame.right =
        window.frame.left + std::clamp(static_cast<LONG>(window.Width()), limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x);
    window.frame.bottom =
        window.frame.top + std::clamp(static_cast<LONG>(window.Height()), limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
}

void SendDestroy(const WindowPtr& window)
{
    if (!WindowOf(window->handle))
        return;
    inner::SendMessage(window->handle, WM_DESTROY, 0, 0);
    for (const WindowPtr& child : WindowTree::Children(*window))
        SendDestroy(child);
}

/// The end of a window and, before it, of those inside it.
void Vanish(const WindowPtr& window)
{
    if (!WindowOf(window->handle))
        return;
    for (const WindowPtr& child : WindowTree::Children(*window)) {
        child->dying = true;
        Vanish(child);
    }
    inner::SendMessage(window->handle, WM_NCDESTROY, 0, 0);
    if (!WindowOf(window->handle))
        return;
    SimPc& pc = SimPc::Current();
    pc.Get<WindowDcs>().Forget(*window);
    Queues().Forget(*window);
    const bool wasTopLevel = window->IsTopLevel();
    Window& top = window->TopLevel();
    Tree().Remove(*window);
    if (!wasTopLevel)
        pc.Get<WindowDcs>().Follow(top);
    MouseMayHaveLeft();
}

void DestroyOwned(const Window& window)
{
    std::vector<WindowPtr> owned;
    for (Window* candidate : Tree().Desktop().children)
        if (candidate->owner == &window)
            owned.push_back(candidate->shared_from_this());
    for (const WindowPtr& candidate : owned) {
        if (candidate->owner != &window || !WindowOf(candidate->handle))
            continue;
        if (candidate->actor == window.actor)
            inner::DestroyWindow(candidate->handle);
        else
            candidate->owner = nullptr;
    }
}

/// Looks up who the new window belongs to. False, with the last error set, when it cannot be created there.
bool FindParents(HWND parent, DWORD style, WindowPtr& above, Window*& owner)
{
    SimPc& pc = SimPc::Current();
    const bool child = (style & (WS_CHILD | WS_POPUP)) == WS_CHILD;
    if (parent == HWND_MESSAGE) {
        above = Tree().MessageRoot().shared_from_this();
        return true;
    }
    above = Tree().Desktop().shared_from_this();
    if (!parent)
        return child ? pc.Fail(ERROR_TLW_WITH_WSCHILD, false) : true;
    const WindowPtr found = RequireWindow(parent);
    if (!found)
        return false;
    if (child)
        above = found;
    else if (found->parent)
        owner = &found->TopLevel();
    return true;
}

/// WM_NCCREATE to WM_CREATE. False when the window refused or died.
bool Announce(Window& window, CREATESTRUCTW& create)
{
    const HWND handle = window.handle;
    if ((window.style & WS_THICKFRAME) || !(window.style & (WS_POPUP | WS_CHILD)))
        LimitSize(window);
    const LPARAM parameter = reinterpret_cast<LPARAM>(&create);
    if (!WindowOf(handle) || !inner::SendMessage(handle, WM_NCCREATE, 0, parameter)) {
        Vanish(window.shared_from_this());
        return false;
    }
    CalculateClient(window, window.frame, true, nullptr);
    if (window.IsTopLevel())
        FitPixels(window);
    if (inner::SendMessage(handle, WM_CREATE, 0, parameter) == -1) {
        inner::DestroyWindow(handle);
        return false;
    }
    return WindowOf(handle) != nullptr;
}

}  // namespace

namespace inner {

HWND CreateWindowEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height, HWND parent,
                    HMENU menu, HINSTANCE instance, LPVOID parameter)
{
    SimPc& pc = SimPc::Current();
    WindowTree& tree = Tree();
    const auto windowClass = pc.Get<WindowClasses>().Find(className, pc.CurrentActor().process);
    if (!windowClass)
        return pc.Fail<HWND>(ERROR_CANNOT_FIND_WND_CLASS, nullptr);
    WindowPtr above;
    Window* owner = nullptr;
    if (!FindParents(parent, style, above, owner))
        return nullptr;

    const WindowPtr window = tree.Add(*above);
    const HWND handle = window->handle;
    window->windowClass = windowClass;
    ++windowClass->windows;
    window->procedure = windowClass->procedure;
    window->owner = owner;
    window->style = style & ~static_cast<DWORD>(WS_VISIBLE);
    window->exStyle = exStyle;
    CompleteStyles(*window);
    window->id = reinterpret_cast<LONG_PTR>(menu);
    window->instance = instance;
    if (window->exStyle & WS_EX_TOPMOST)
        Tree().Place(*window, HWND_TOPMOST);
    else if (window->IsTopLevel())
        Tree().Place(*window, HWND_TOP);
    CompletePlace(*window, x, y, width, height);
    const POINT origin = OriginOf(*window);
    window->frame = window->client = Shifted({x, y, x + std::max(width, 0), y + std::max(height, 0)}, origin.x, origin.y);

    CREATESTRUCTW create{
        parameter, instance,  menu,           parent, height, width, y, x, static_cast<LONG>(window->style | (style & WS_VISIBLE)),
        name,      className, window->exStyle};
    if (!Announce(*window, create))
        return nullptr;
    // No page says why: an overlapped window hears of its size and place only when it is first shown, all others at once.
    if (window->style & (WS_CHILD | WS_POPUP))
        SendSizeAndMove(*window);
    else
        window->sizeMoveWaits = true;
    if (WindowOf(handle))
        NotifyParents(*window, WM_CREATE, window->id, {});
    if (WindowOf(handle) && (style & WS_VISIBLE))
        inner::ShowWindow(handle, SW_SHOW);
    return WindowOf(handle) ? handle : nullptr;
}

/// The order is that of the conformance test WindowLifetime.Destroying_GoesDownAndComesBackUp. A child hides before it goes and hands
/// the focus to its parent.
BOOL DestroyWindow(HWND handle)
{
    SimPc& pc = SimPc::Current();
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    if (window->actor != pc.CurrentActor() || !window->parent)
        return pc.Fail(ERROR_ACCESS_DENIED, FALSE);
    if (std::exchange(window->dying, true))
        return FALSE;
    if (!window->IsTopLevel())
        NotifyParents(*window, WM_DESTROY, window->id, {});
    if (WindowOf(handle) && (window->style & WS_VISIBLE)) {
        if (window->IsTopLevel())
            inner::SetWindowPos(handle, nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        else
            inner::ShowWindow(handle, SW_HIDE);
    }
    if (window->IsTopLevel())
        DestroyOwned(*window);
    if (!WindowOf(handle))
        return TRUE;
    if (window->IsTopLevel())
        ActivateNext(*window);
    else
        GiveUpFocus(*window, window->parent->handle);
    const WindowPtr captor = WindowOf(GetCapture());
    if (captor && (captor == window || captor->IsBelow(window.get())))
        ReleaseCapture();
    SendDestroy(window);
    Vanish(window);
    return TRUE;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

HWND WINAPI CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height, HWND parent,
                            HMENU menu, HINSTANCE instance, LPVOID parameter)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, exStyle, className, name, style, x, y, width, height, parent, menu);
    return inner::CreateWindowEx(exStyle, className, name, style, x, y, width, height, parent, menu, instance, parameter);
}

BOOL WINAPI DestroyWindow(HWND window)
{
    SIM_NOTE(window);
    return inner::DestroyWindow(window);
}
