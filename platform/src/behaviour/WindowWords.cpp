// What is kept with a window: style, procedure, identifier, text.
#include "platform/src/behaviour/Inner.h"
#include "platform/src/core/Gate.h"
#include "platform/src/window/WindowDcs.h"

#include <algorithm>

namespace platform {

namespace {

bool IsOwnProcess(const Window& window)
{
    return window.actor.process == SimPc::Current().CurrentActor().process;
}

/// The two style words tell the window before and after they change.
LONG_PTR ChangeStyle(const WindowPtr& window, int index, DWORD value)
{
    DWORD& word = index == GWL_STYLE ? window->style : window->exStyle;
    STYLESTRUCT change{word, value};
    const DWORD before = word;
    inner::SendMessage(window->handle, WM_STYLECHANGING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    word = change.styleNew;
    if (WindowOf(window->handle))
        inner::SendMessage(window->handle, WM_STYLECHANGED, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    if (WindowOf(window->handle))
        SimPc::Current().Get<WindowDcs>().Follow(window->TopLevel());
    return static_cast<LONG>(before);
}

LONG_PTR Read(HWND handle, int index)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return 0;
    switch (index) {
        case GWL_STYLE:
            return static_cast<LONG>(window->style);
        case GWL_EXSTYLE:
            return static_cast<LONG>(window->exStyle);
        case GWLP_WNDPROC:
            return IsOwnProcess(*window) ? reinterpret_cast<LONG_PTR>(window->procedure)
                                         : SimPc::Current().Fail<LONG_PTR>(ERROR_ACCESS_DENIED, 0);
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(window->instance);
        case GWLP_HWNDPARENT:
            return reinterpret_cast<LONG_PTR>(inner::GetParent(handle));
        case GWLP_ID:
            return window->id;
        case GWLP_USERDATA:
            return window->userData;
        default:
            return SimPc::Current().Fail<LONG_PTR>(ERROR_INVALID_INDEX, 0);
    }
}

LONG_PTR Write(HWND handle, int index, LONG_PTR value)
{
    SimPc& pc = SimPc::Current();
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return 0;
    if (!IsOwnProcess(*window))
        return pc.Fail<LONG_PTR>(ERROR_ACCESS_DENIED, 0);
    switch (index) {
        case GWL_STYLE:
        case GWL_EXSTYLE:
            return ChangeStyle(window, index, static_cast<DWORD>(value));
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(std::exchange(window->procedure, reinterpret_cast<WNDPROC>(value)));
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(std::exchange(window->instance, reinterpret_cast<HINSTANCE>(value)));
        case GWLP_HWNDPARENT: {
            const WindowPtr owner = WindowOf(reinterpret_cast<HWND>(value));
            const Window* before = std::exchange(window->owner, owner ? &owner->TopLevel() : nullptr);
            return reinterpret_cast<LONG_PTR>(before ? before->handle : nullptr);
        }
        case GWLP_ID:
            return std::exchange(window->id, value);
        case GWLP_USERDATA:
            return std::exchange(window->userData, value);
        default:
            return pc.Fail<LONG_PTR>(ERROR_INVALID_INDEX, 0);
    }
}

int CopyText(std::u16string_view text, LPWSTR into, int capacity)
{
    if (capacity <= 0)
        return 0;
    const std::size_t length = text.copy(into, static_cast<std::size_t>(capacity) - 1);
    into[length] = 0;
    return static_cast<int>(length);
}

}  // namespace

}  // namespace platform

using namespace platform;

LONG WINAPI GetWindowLongW(HWND window, int index)
{
    SIM_NOTE(window, index);
    return static_cast<LONG>(Read(window, index));
}

LONG WINAPI SetWindowLongW(HWND window, int index, LONG value)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, index, value);
    return static_cast<LONG>(Write(window, index, value));
}

LONG_PTR WINAPI GetWindowLongPtrW(HWND window, int index)
{
    SIM_NOTE(window, index);
    return Read(window, index);
}

LONG_PTR WINAPI SetWindowLongPtrW(HWND window, int index, LONG_PTR value)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, index, value);
    return Write(window, index, value);
}

// A window of the own process is asked by message; what another process shows is read from where the system keeps it.

BOOL WINAPI SetWindowTextW(HWND window, LPCWSTR text)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, text);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return FALSE;
    const auto parameter = reinterpret_cast<LPARAM>(text);
    return (IsOwnProcess(*found) ? inner::SendMessage(window, WM_SETTEXT, 0, parameter)
                                 : inner::DefWindowProc(window, WM_SETTEXT, 0, parameter)) != 0;
}

int WINAPI GetWindowTextW(HWND window, LPWSTR text, int capacity)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, capacity);
    const WindowPtr found = RequireWindow(window);
    if (capacity > 0)
        text[0] = 0;
    if (!found)
        return 0;
    if (!IsOwnProcess(*found))
        return CopyText(found->text, text, capacity);
    return static_cast<int>(
        inner::SendMessage(window, WM_GETTEXT, static_cast<WPARAM>(std::max(capacity, 0)), reinterpret_cast<LPARAM>(text)));
}

int WINAPI GetWindowTextLengthW(HWND window)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return 0;
    return IsOwnProcess(*found) ? static_cast<int>(inner::SendMessage(window, WM_GETTEXTLENGTH, 0, 0))
                                : static_cast<int>(found->text.size());
}

int WINAPI InternalGetWindowText(HWND window, LPWSTR text, int capacity)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, capacity);
    const WindowPtr found = RequireWindow(window);
    return found ? CopyText(found->text, text, capacity) : 0;
}
