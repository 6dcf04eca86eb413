#include "host/OwnWindow.h"

#include "host/Wall.h"

namespace host {

void OwnWindow::RegisterClasses()
{
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = &OwnWindow::Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    for (const WCHAR* const name : {formClass, controlClass}) {
        windowClass.lpszClassName = name;
        // A second form finds the classes known and this fails, which does no harm.
        RegisterClassExW(&windowClass);
    }
}

bool OwnWindow::Make(const WindowShape& shape)
{
    const WCHAR* const className = (shape.style & WS_CHILD) != 0 ? controlClass : formClass;
    const RECT& place = shape.place;
    const HWND window =
        CreateWindowExW(shape.extendedStyle, className, shape.text.c_str(), shape.style, place.left, place.top, place.right - place.left,
                        place.bottom - place.top, shape.parent, nullptr, GetModuleHandleW(nullptr), this);
    if (!window)
        handle_ = nullptr;
    window_.Reset(window);
    return window != nullptr;
}

LRESULT OwnWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return Default(message, wParam, lParam);
}

LRESULT OwnWindow::Default(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(handle_, message, wParam, lParam);
}

LRESULT CALLBACK OwnWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    const auto byDefault = [=] { return DefWindowProcW(window, message, wParam, lParam); };
    if (message == WM_NCCREATE) {
        auto* const creator = static_cast<OwnWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creator));
        // A window that does not lead to its object would be seen and never heard of.
        if (GetWindowLongPtrW(window, GWLP_USERDATA) != reinterpret_cast<LONG_PTR>(creator))
            return FALSE;
        creator->handle_ = window;
    }
    auto* const self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || self->handle_ != window)
        return byDefault();
    if (message == WM_NCDESTROY) {
        // The window is gone for everybody, also when Windows destroyed it with its parent.
        self->handle_ = nullptr;
        (void)self->window_.Release();
        return byDefault();
    }
    return BehindWall([=] { return self->OnMessage(message, wParam, lParam); }, byDefault);
}

}  // namespace host
