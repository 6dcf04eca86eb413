// Registering window classes and asking about them.
#include "platform/src/window/WindowClasses.h"

#include "platform/src/core/Gate.h"
#include "platform/src/text/Case.h"

#include <algorithm>

namespace platform {

namespace {

WindowClasses& Classes()
{
    return SimPc::Current().Get<WindowClasses>();
}

}  // namespace

bool WindowClasses::Register(WindowClass windowClass)
{
    for (const auto& known : classes_)
        if (known->process == windowClass.process && SameName(known->name, windowClass.name))
            return false;
    windowClass.atom = ++lastAtom_;
    classes_.push_back(std::make_shared<WindowClass>(std::move(windowClass)));
    return true;
}

std::shared_ptr<WindowClass> WindowClasses::Find(LPCWSTR name, DWORD process) const
{
    const auto find = [&](DWORD whose) {
        return std::find_if(classes_.begin(), classes_.end(), [&](const auto& known) {
            if (known->process != whose)
                return false;
            return IS_INTRESOURCE(name) ? known->atom == LOWORD(reinterpret_cast<ULONG_PTR>(name)) : SameName(known->name, name);
        });
    };
    auto found = find(process);
    if (found == classes_.end())
        found = find(0);
    return found == classes_.end() ? nullptr : *found;
}

void WindowClasses::Forget(const WindowClass& windowClass)
{
    std::erase_if(classes_, [&](const auto& known) { return known.get() == &windowClass; });
}

}  // namespace platform

using namespace platform;

ATOM WINAPI RegisterClassExW(const WNDCLASSEXW* windowClass)
{
    SIM_CALL(0, ERROR_NOT_ENOUGH_MEMORY, windowClass->lpszClassName);
    SimPc& pc = SimPc::Current();
    if (windowClass->cbSize != sizeof(WNDCLASSEXW))
        return pc.Fail<ATOM>(ERROR_INVALID_PARAMETER, 0);
    if (windowClass->cbWndExtra != 0 || windowClass->cbClsExtra != 0) {
        pc.Unsupported("RegisterClassExW: a class with extra bytes");
        return 0;
    }
    WindowClass made;
    made.name = windowClass->lpszClassName;
    made.style = windowClass->style;
    made.procedure = windowClass->lpfnWndProc;
    made.instance = windowClass->hInstance;
    made.icon = windowClass->hIcon;
    made.smallIcon = windowClass->hIconSm;
    made.cursor = windowClass->hCursor;
    made.background = windowClass->hbrBackground;
    made.menuName = windowClass->lpszMenuName;
    made.process = pc.CurrentActor().process;
    if (!Classes().Register(std::move(made)))
        return pc.Fail<ATOM>(ERROR_CLASS_ALREADY_EXISTS, 0);
    return Classes().Find(windowClass->lpszClassName, pc.CurrentActor().process)->atom;
}

BOOL WINAPI UnregisterClassW(LPCWSTR className, HINSTANCE)
{
    SIM_NOTE(className);
    SimPc& pc = SimPc::Current();
    const auto found = Classes().Find(className, pc.CurrentActor().process);
    if (!found || found->process == 0)
        return pc.Fail(ERROR_CLASS_DOES_NOT_EXIST, FALSE);
    if (found->windows > 0)
        return pc.Fail(ERROR_CLASS_HAS_WINDOWS, FALSE);
    Classes().Forget(*found);
    return TRUE;
}

int WINAPI GetClassNameW(HWND window, LPWSTR className, int capacity)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, capacity);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return 0;
    if (capacity <= 0)
        return SimPc::Current().Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    const std::size_t length = found->windowClass->name.copy(className, static_cast<std::size_t>(capacity) - 1);
    className[length] = 0;
    return static_cast<int>(length);
}

UINT WINAPI RealGetWindowClassW(HWND window, LPWSTR className, UINT capacity)
{
    SIM_CALL(0, ERROR_INVALID_WINDOW_HANDLE, window, capacity);
    const WindowPtr found = RequireWindow(window);
    if (!found || capacity == 0)
        return 0;
    const std::size_t length = found->windowClass->name.copy(className, capacity - 1);
    className[length] = 0;
    return static_cast<UINT>(length);
}
