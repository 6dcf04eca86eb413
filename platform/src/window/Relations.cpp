// Who is whose parent, owner, neighbour; finding and counting windows.
#include "platform/src/core/Gate.h"
#include "platform/src/text/Case.h"
#include "platform/src/window/Inner.h"

#include <algorithm>

namespace platform {

namespace {

HWND HandleOf(const Window* window)
{
    return window ? window->handle : nullptr;
}

/// Text of the ANSI functions: code page 1252 as far as it agrees with Latin-1.
std::u16string Wide(LPCSTR text)
{
    std::u16string wide;
    for (; *text; ++text)
        wide += static_cast<char16_t>(static_cast<unsigned char>(*text));
    return wide;
}

HWND Find(HWND parent, HWND after, LPCWSTR className, LPCWSTR text)
{
    const WindowPtr above = parent ? RequireWindow(parent) : Tree().Desktop().shared_from_this();
    if (!above)
        return nullptr;
    auto candidate = above->children.begin();
    if (after) {
        const WindowPtr last = RequireWindow(after);
        candidate = std::find(above->children.begin(), above->children.end(), last.get());
        if (candidate == above->children.end())
            return nullptr;
        ++candidate;
    }
    const auto fits = [&](const Window* window) {
        const bool classFits =
            !className || (IS_INTRESOURCE(className) ? window->windowClass->atom == LOWORD(reinterpret_cast<ULONG_PTR>(className))
                                                     : SameName(window->windowClass->name, className));
        return classFits && (!text || SameName(window->text, text));
    };
    const auto found = std::find_if(candidate, above->children.end(), fits);
    return found == above->children.end() ? nullptr : (*found)->handle;
}

HWND FindAnsi(HWND parent, HWND after, LPCSTR className, LPCSTR text)
{
    const std::u16string wideText = text ? Wide(text) : u"";
    if (IS_INTRESOURCE(className))
        return Find(parent, after, reinterpret_cast<LPCWSTR>(className), text ? wideText.c_str() : nullptr);
    return Find(parent, after, Wide(className).c_str(), text ? wideText.c_str() : nullptr);
}

/// Calls back for each window of a list that is still there; false when the callback wants no more.
bool Visit(const std::vector<WindowPtr>& windows, bool deep, WNDENUMPROC callback, LPARAM parameter)
{
    for (const WindowPtr& window : windows) {
        if (!WindowOf(window->handle))
            continue;
        if (!callback(window->handle, parameter))
            return false;
        if (deep && WindowOf(window->handle) && !Visit(WindowTree::Children(*window), true, callback, parameter))
            return false;
    }
    return true;
}

}  // namespace

namespace inner {

HWND GetParent(HWND handle)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return nullptr;
    if (window->style & WS_POPUP)
        return HandleOf(window->owner);
    return window->style & WS_CHILD ? HandleOf(window->parent) : nullptr;
}

HWND GetAncestor(HWND handle, UINT which)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window || !window->parent)
        return nullptr;
    if (which == GA_PARENT)
        return window->parent->handle;
    Window* root = &window->TopLevel();
    while (which == GA_ROOTOWNER && root->owner)
        root = &root->owner->TopLevel();
    return root->handle;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI IsWindow(HWND window)
{
    SIM_NOTE(window);
    return RequireWindow(window) != nullptr;
}

BOOL WINAPI IsChild(HWND parent, HWND window)
{
    SIM_NOTE(parent, window);
    const WindowPtr above = RequireWindow(parent);
    const WindowPtr found = RequireWindow(window);
    return above && found && !found->IsTopLevel() && found->IsBelow(above.get());
}

HWND WINAPI GetParent(HWND window)
{
    SIM_NOTE(window);
    return inner::GetParent(window);
}

HWND WINAPI GetAncestor(HWND window, UINT which)
{
    SIM_NOTE(window, which);
    return inner::GetAncestor(window, which);
}

HWND WINAPI GetWindow(HWND window, UINT relation)
{
    SIM_NOTE(window, relation);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return nullptr;
    if (relation == GW_CHILD)
        return found->children.empty() ? nullptr : found->children.front()->handle;
    if (relation == GW_OWNER)
        return HandleOf(found->owner);
    if (!found->parent)
        return nullptr;
    const auto& siblings = found->parent->children;
    const auto self = std::find(siblings.begin(), siblings.end(), found.get());
    switch (relation) {
        case GW_HWNDFIRST:
            return siblings.front()->handle;
        case GW_HWNDLAST:
            return siblings.back()->handle;
        case GW_HWNDNEXT:
            return self + 1 == siblings.end() ? nullptr : self[1]->handle;
        case GW_HWNDPREV:
            return self == siblings.begin() ? nullptr : self[-1]->handle;
        default:
            return SimPc::Current().Fail<HWND>(ERROR_INVALID_PARAMETER, nullptr);
    }
}

HWND WINAPI GetDesktopWindow()
{
    SIM_NOTE();
    return Tree().Desktop().handle;
}

DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process)
{
    SIM_NOTE(window);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return 0;
    if (process)
        *process = found->actor.process;
    return found->actor.thread;
}

HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text)
{
    SIM_NOTE(className, text);
    return FindAnsi(nullptr, nullptr, className, text);
}

HWND WINAPI FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text)
{
    SIM_NOTE(parent, after, className, text);
    return FindAnsi(parent, after, className, text);
}

HWND WINAPI FindWindowW(LPCWSTR className, LPCWSTR text)
{
    SIM_NOTE(className, text);
    return Find(nullptr, nullptr, className, text);
}

HWND WINAPI FindWindowExW(HWND parent, HWND after, LPCWSTR className, LPCWSTR text)
{
    SIM_NOTE(parent, after, className, text);
    return Find(parent, after, className, text);
}

BOOL WINAPI EnumWindows(WNDENUMPROC callback, LPARAM parameter)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, parameter);
    return Visit(WindowTree::Children(Tree().Desktop()), false, callback, parameter);
}

BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC callback, LPARAM parameter)
{
    SIM_NOTE(parent, parameter);
    if (!parent)
        return Visit(WindowTree::Children(Tree().Desktop()), false, callback, parameter);
    const WindowPtr found = RequireWindow(parent);
    return found && Visit(WindowTree::Children(*found), true, callback, parameter);
}
